// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The option names of both analysers, and which of them only one analyser knows.
namespace OptionTables {

/// Without the leading "-", in the analysers' own order.
const QStringList& cOptionNames();
const QStringList& cppOptionNames();

/// With the leading "-": the options that the other analyser does not know.
const QStringList& cOnlyOptions();
const QStringList& cppOnlyOptions();

} // namespace OptionTables
