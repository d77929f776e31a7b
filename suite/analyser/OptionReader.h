// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisOptions.h"

#include <QHash>
#include <QSet>

/// Reads option and list files, UTF-8, and command lines of the same options. Lines that begin with "*" are comments,
/// bar
/// "*orv KEY=VALUE"; options that are not ours are passed over. Throws a Failure that names a file that can not be
/// read.
class OptionReader
{
public:
    AnalysisOptions options;

    /// -via, -list, -prj, -outputpath, -i, -d, -u, -fi, -cmaf and the options of MessageSelection.
    void takeWords(const QStringList& words);
    /// Each file counts once. An empty name is none.
    void readFile(const QString& name);
    /// A file that is not to be read any more.
    void leaveOut(const QString& name) { isNew(name); }
    /// Puts the defines and undefines into options; call it at the end.
    void finish();

private:
    /// True the first time that a file is named.
    bool isNew(const QString& name);
    void readLines(const QString& name, bool isList);
    void takeLine(const QString& line, bool isList);
    bool takeOption(const QString& option, const QString& value);
    void takeAnnotation(const QString& key, const QString& value);
    bool takeCompilerAnnotation(const QString& key, const QString& value);
    void define(const QString& text, bool isDefined);

    /// A macro's last word, and when it was spoken.
    struct Macro
    {
        QString text;
        bool isDefined;
    };

    QSet<QString> seen;
    QHash<QString, Macro> macros;
    QStringList macroOrder;
    FolderKind nextFolder = FolderKind::Normal;
};
