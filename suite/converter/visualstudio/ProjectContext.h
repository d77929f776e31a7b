// SPDX-License-Identifier: MIT
#pragma once

#include "Properties.h"

#include <QHash>
#include <QList>
#include <QString>

#include <functional>

class Notices;
class PathFinder;
class XmlFiles;
struct XmlElement;

/// A value with the place that gave it.
struct Setting
{
    QString text;
    QString file;
    qint64 line = 0;
};

/// By their lower-case names.
using Settings = QHash<QString, Setting>;

/// A group of items or of their defaults, with the file that it stands in.
struct ProjectGroup
{
    const XmlElement* element;
    QString file;
};

/// A project in one configuration, while it is read: its macros, and what reading any of its files needs.
struct ProjectContext
{
    XmlFiles& files;
    PathFinder& paths;
    Notices& notices;
    QString projectFile;
    QString projectFolder;
    Properties properties = {};

    QString expand(const QString& text, const QString& file) const;
    /// Whether an element's condition is true. Relative paths in it count from the folder; metadata replaces %(…).
    /// A condition that is not understood counts as false and is told.
    bool holds(const XmlElement& element, const QString& file, const QString& folder,
               const std::function<QString(const QString&)>& metadata = {}) const;
    /// The parts of a list; those with unknown macros are told and left out, silently when the compiler's own.
    QStringList entries(const Setting& list) const;
};
