// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How texts are written into Ninja's build files.
namespace NinjaSyntax {

/// A word of a command. Ninja gives its commands to a shell, but where there is none to the system as they are.
QString shellQuoted(const QString& word);
/// For the value of a variable.
QString value(QString text);
/// For the name of a file in a build statement.
QString path(const QString& path);
/// The beginning of a command, in the form of value(): what --launcher puts before every job. A shell takes it from the
/// variable, so that the file stays the same; without one it stands there as given.
QString launcher(const QString& given);

/// The variable that holds the launcher.
inline constexpr char launcherVariable[] = "ORV_LAUNCHER";

} // namespace NinjaSyntax
