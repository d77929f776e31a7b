// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The functions that $(…) can call, as far as build descriptions use them to find their files.
namespace PropertyFunctions {

/// [type]::name(arguments); relative paths count from the folder. Nothing for an unknown function.
std::optional<QString> callStatic(const QString& type, const QString& name, const QStringList& arguments,
                                  const QString& folder);

/// value.name(arguments). Nothing for an unknown function.
std::optional<QString> callMember(const QString& value, const QString& name, const QStringList& arguments);

} // namespace PropertyFunctions
