// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// Finds the analysers that are installed, by the installers' records and the environment.
namespace Installations {

/// The C and C++ analysers' folders; empty where none was found.
struct Folders
{
    QString c;
    QString cpp;
};

/// Both analysers' folders.
Folders FindInstallations();

/// The "Path" of the last recorded version (in text order) when it exists, else the environment variable's value.
QString FindInstallation(const QString& product, const QString& variable);

} // namespace Installations

/// The value of an environment variable, up to its first "="; a leading "$" of the name is dropped and letter case
/// does not matter. With orCurrentFolder a value that names nothing on disk becomes the current folder.
QString EnvironmentValue(const QString& name, bool orCurrentFolder,
                         const QStringList& environment = QProcess::systemEnvironment());
