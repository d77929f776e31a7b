// SPDX-License-Identifier: MIT
#pragma once

#include "personality/AnalyserInference.h"

#include <QString>
#include <QTextStream>

class ProjectData;
class QIODevice;

/// Reads the two dialects of project files: the unversioned one and the versioned one, whose first line begins with
/// "VersionTag". Both are lines of text.
class ProjectReader
{
public:
    /// A longer line is no project file's.
    static constexpr qint64 longestLine = 1024LL * 1024;

    ProjectReader(QIODevice& device, QStringConverter::Encoding encoding, ProjectData& root);

    /// True when a project body was found and no line was overlong. A cut-short file gives what was read.
    bool read();

    ProjectType declaredLanguage = ProjectType::Unknown;
    QString lastAnalysis;

private:
    bool nextLine();
    void takeAnnotations();
    void readBody(ProjectData& project);
    void readUnversionedBody(ProjectData& project);
    void readVersionedBody(ProjectData& project);
    void readNested(ProjectData& root);
    QString nextValue();

    QTextStream stream;
    ProjectData& root;
    /// The current line; null past the end.
    QString line;
    bool versioned = false;
    /// Nothing more is read: the end, a failure, or a line that is too long.
    bool ended = false;
    bool broken = false;
};
