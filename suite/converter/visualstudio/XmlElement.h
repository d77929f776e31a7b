// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

/// An element of an XML file with what it holds, and the line it begins in.
struct XmlElement
{
    QString name;
    QList<std::pair<QString, QString>> attributes;
    /// What stands directly in it, without that of its children.
    QString text;
    std::vector<XmlElement> children;
    qint64 line = 0;

    /// Empty where there is none of this name.
    QString attribute(const QString& wanted) const;
};

/// Reads XML files, each once however often it is asked for.
class XmlFiles
{
public:
    /// The root element. Throws Failure, with line and column, for what is no XML, declares a document type or is
    /// nested deeper than any build description; what tells in words what kind of file was wanted.
    const XmlElement& load(const QString& path, const QString& what);

private:
    QHash<QString, std::shared_ptr<const XmlElement>> files;
};
