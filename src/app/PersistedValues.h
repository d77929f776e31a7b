// SPDX-License-Identifier: MIT
#pragma once

#include "project/Project.h"

#include <QString>
#include <QStringList>

/// The user values that all tools of the suite share. Read once at start; Write() is for the wizards that keep them.
/// The keys and defaults stand in PersistedValues.cpp.
class PersistedValues
{
public:
    /// Reads every value; executable is the program's path, from which the folders' defaults follow.
    void Read(const QString& executable);
    /// Writes all but installPath and searchPaths back. A store that refuses is left as it is.
    void Write() const;

    QString binArea;
    QString xmlArea;
    QString helpArea;
    QString installPath;
    QStringList searchPaths;
    QString cCompilerPersonality;
    QString cppCompilerPersonality;
    QString cAnalyserPersonality;
    QString cppAnalyserPersonality;
    QString cMessagePersonality;
    QString cppMessagePersonality;
    QString cPersonalityLocation;
    QString cppPersonalityLocation;
    QString rootMakefile;
    QString autoCreateStartingDir;
    QStringList autoCreateExts;
    QStringList autoCreateIncludes;
    QStringList autoCreateDefines;
    QString autoCreateOutpath;
    bool projectCreatorProductType = true;
    QStringList projectList;
    Project project;
    bool runCMA = true;
    QString cCurrentCEValue;
    QString cppCurrentCEValue;
    QStringList cMessages;
    QStringList cppMessages;
    bool useMessageViewerMessages = true;
};
