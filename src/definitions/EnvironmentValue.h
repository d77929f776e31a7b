// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// The value of an environment variable, up to its first "="; a leading "$" of the name is dropped and letter case
/// does not matter. With orCurrentFolder a value that names nothing on disk becomes the current folder.
QString EnvironmentValue(const QString& name, bool orCurrentFolder,
                         const QStringList& environment = QProcess::systemEnvironment());
