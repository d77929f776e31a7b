// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The words of a command line as a POSIX shell would see them: blanks separate, quotes and backslashes protect.
/// Nothing is expanded.
QStringList splitCommand(QStringView command);
