// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

/// The columns of a data-driven test, by type and name; each call adds a row.
template <typename... Columns>
class TestRows
{
    template <typename>
    using Name = const char*;

public:
    explicit TestRows(Name<Columns>... names) { (QTest::addColumn<Columns>(names), ...); }
    void operator()(const char* name, const Columns&... values) const { (QTest::newRow(name) << ... << values); }
};
