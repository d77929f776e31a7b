// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <vector>

/// A project of real files, 500 in a folder, every second one analysed.
struct LargeProject
{
    static constexpr int filesPerFolder = 500;

    QString projectFile;
    /// Every source with its two output files, by path.
    std::vector<QByteArray> sources;
    std::vector<QByteArray> outputs;

    /// Makes it in a folder, with as many files as that is in whole folders; false when that fails.
    bool create(const QString& place, int files)
    {
        QByteArray text = "VersionTag 1\n";
        for (int i = 0; i < files / filesPerFolder; ++i) {
            const QString sourceDir = place + QStringLiteral("/src/module%1").arg(i);
            const QString outputDir = place + QStringLiteral("/out/module%1").arg(i);
            if (!QDir().mkpath(sourceDir) || !QDir().mkpath(outputDir)) {
                return false;
            }
            text += "StartProjectMarker\nname=m\nsourceDir=" + sourceDir.toUtf8() +
                    "\noutputDir=" + outputDir.toUtf8() + "\nm=default string\na=default string\nc=default string\n";
            for (int j = 0; j < filesPerFolder; ++j) {
                const QString name = QStringLiteral("translation_unit_%1.cpp").arg(j);
                text += name.toUtf8() + '\n';
                if (!add(sources, sourceDir + u'/' + name, true) ||
                    !add(outputs, outputDir + u'/' + name + QStringLiteral(".met"), j % 2 == 0) ||
                    !add(outputs, outputDir + u'/' + name + QStringLiteral(".err"), j % 2 == 0)) {
                    return false;
                }
            }
            text += i == 0 ? "EndContainedFilesMarker\nStartSubProjectMarker\n" : "EndContainedFilesMarker\n";
        }
        projectFile = place + QStringLiteral("/p.prj");
        QFile file(projectFile);
        return file.open(QIODevice::WriteOnly) && file.write(text + "end\n") > 0;
    }

private:
    static bool add(std::vector<QByteArray>& list, const QString& name, bool exists)
    {
        list.push_back(QFile::encodeName(name));
        return !exists || QFile(name).open(QIODevice::WriteOnly);
    }
};
