// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectTree.h"

#include <QByteArray>

struct Arguments;
class PersonalityFiles;

/// The text of a project file, in UTF-8.
class ProjectText
{
public:
    ProjectText(const Arguments& wanted, const PersonalityFiles& personalities);

    /// Throws Failure for names that a project file can not hold.
    QByteArray of(const ProjectTree& tree);

private:
    struct Personalities
    {
        QString message;
        QString analyser;
        QString compiler;
    };

    void line(const QString& content) { text += content.toUtf8() + '\n'; }
    void value(QLatin1StringView key, const QString& content);
    void body(const ProjectTree::Node& node, const Personalities& personalities, const QString& annotation);

    const Arguments& arguments;
    const PersonalityFiles& files;
    QString outputFolder;
    QByteArray text;
};
