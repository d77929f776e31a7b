// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>
#include <QStringList>

/// Entries "NAME=value" in the form in which the system keeps them: bytes, or UTF-16 on Windows. What a user's own
/// variable holds is never encoded anew.
namespace OwnEnvironment {

/// Puts what differs from before into this program's own environment.
void set(const QStringList& environment, const QStringList& before);

/// A child's environment: what this program has inherited, with what differs from before.
QProcessEnvironment forChild(const QStringList& environment, const QStringList& before);

} // namespace OwnEnvironment
