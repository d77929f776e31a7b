// SPDX-License-Identifier: MIT
#pragma once

#include "Option.h"
#include "OptionSpellings.h"

#include <QList>
#include <QStringList>

/// The include folders of a command, whose final paths depend on what stands further behind.
class IncludeFolders
{
public:
    IncludeFolders(QString directory, bool windows);

    /// Takes an option that has to do with folders; false for any other.
    bool take(Meaning meaning, const QString& value);
    /// The system root whose headers are used; empty without one.
    const QString& sysroot() const { return headerSysroot.isEmpty() ? root : headerSysroot; }
    const QString& workingDirectory() const { return directory; }
    QString absolute(const QString& path) const;
    QList<Option> options(bool isC) const;

private:
    enum class Only { Any, C, Cpp };
    struct Folder
    {
        OptionKind kind;
        QString path;
        Only only = Only::Any;
    };

    bool takeRoot(Meaning meaning, const QString& value);
    QString finalPath(const QString& path) const;

    QString directory;
    bool windows;
    QString prefix;
    QString root;
    QString headerSysroot;
    QList<Folder> folders;
};
