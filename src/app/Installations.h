// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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
