// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Install values of the suite: where help lies, how it is started, how the installer's files are called.
/// The defaults hold for whatever wendleTools.xml does not say.
struct StringValues
{
    /// Locates and reads the file; one that is missing or broken leaves the defaults of what it does not give.
    void ReadFile(const QString& name);
    /// Takes every known element, wherever it stands; the last one of a name wins.
    void readDocument(const QByteArray& document);

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
