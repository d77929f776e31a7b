// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

/// A temporary folder with the files of one test.
class TestFolder
{
public:
    QString path(const QString& name) const { return folder.filePath(name); }
    /// As the system and the program's texts write it.
    QString nativePath(const QString& name) const { return QDir::toNativeSeparators(path(name)); }
    /// Writes a file below the folder, making its folders and giving it that time, if any; gives its path.
    QString write(const QString& name, const QByteArray& contents, const QDateTime& time = {}) const;
    /// A program that does what these verbs of testchild say, or behind "#!" a shell script, for what is Unix' own;
    /// gives its path, which ends with ".exe" on Windows.
    QString writeChild(const QString& name, const QByteArray& verbs) const;
    /// Puts a program there under that name (on Windows with ".exe"): as a link, or as a copy where there is none to be
    /// had.
    QString placeProgram(const QString& program, const QString& name) const;
    /// Reads a file below the folder, or anywhere by its absolute path; empty when it can not be read.
    QByteArray read(const QString& name) const;
    /// The same, with line ends and separators of Windows as everywhere else.
    QByteArray readLines(const QString& name) const { return read(name).replace("\r\n", "\n").replace('\\', '/'); }
    /// True while the process with this id, as a script wrote it, runs.
    static bool isAlive(const QByteArray& pid);
    /// Of the processes whose ids stand in a file, one a line, those that run.
    QByteArrayList running(const QString& file) const;

protected:
    QTemporaryDir folder;
};

/// While it lives, there is a file where temporary files should be made.
class NoTemporaryFolder
{
public:
    explicit NoTemporaryFolder(const TestFolder& place) { set(place.write(QStringLiteral("no folder"), "")); }
    ~NoTemporaryFolder() { set(former); }
    Q_DISABLE_COPY_MOVE(NoTemporaryFolder)

private:
    static void set(const QString& folder)
    {
        qputenv("TMPDIR", folder.toLocal8Bit());
        qputenv("TMP", QDir::toNativeSeparators(folder).toLocal8Bit());
    }

    const QString former = QDir::tempPath();
};
