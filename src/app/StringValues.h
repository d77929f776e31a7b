// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Install values of the suite: where help lies, how it is started, how the installer's files are called.
/// The defaults hold for whatever wendleTools.xml does not say.
struct StringValues
{
    QString helpDir;
    QString helpFile = QStringLiteral("wendle.adp");
    QString helpProfileStr = QStringLiteral("-profile");
    QString installerFile = QStringLiteral("install.xml.enc");
    QString setupFileReplaceStr = QStringLiteral("szDir=");
    QString issFilename = QStringLiteral("setup.iss");
    QStringList zipFileExts = {QStringLiteral("zip"), QStringLiteral("tgz"), QStringLiteral("gz")};
    QStringList tarFileExts = {QStringLiteral("tar")};
    QString tarFilename = QStringLiteral("tar");
    QString unzipFile = QStringLiteral("unzip.exe");
};
