// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/// The suite's settings: system-wide is the rule, a user's own store stands in where that cannot be written.
namespace SettingsStore {

/// The organisation all stores of the suite belong to.
QString organisation();

/// From now on all stores are files in this folder, the system's and the user's being one.
void keepIn(const QString& folder);

/// A store to read from: the user's value first, then the system's.
std::unique_ptr<QSettings> openForReading(const QString& application);

/// Lets write fill the system-wide store, or the user's when that cannot be written. Values that went to the
/// system-wide store are taken out of the user's, where an older one would hide them. False when nothing was kept.
bool write(const QString& application, const std::function<void(QSettings&)>& write);

/// The groups of an application, of both stores, without duplicates.
QStringList childGroups(const QString& application);

} // namespace SettingsStore
