// SPDX-License-Identifier: MIT
#pragma once

#include "TestRows.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

/// The test classes of one program; KOVRA_TEST adds to it, TestMain.cpp runs them in turn.
std::vector<std::function<std::unique_ptr<QObject>()>>& testFactories();

/// Lists a test class so that the program's main() runs it.
#define KOVRA_TEST(Class)                                                                                              \
    static const bool registered##Class =                                                                              \
        (testFactories().emplace_back([] { return std::make_unique<Class>(); }), true);
