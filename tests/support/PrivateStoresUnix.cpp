// SPDX-License-Identifier: MIT
#include "PrivateStores.h"

PrivateStores::PrivateStores(const QString&) {}

PrivateStores::~PrivateStores() = default;
