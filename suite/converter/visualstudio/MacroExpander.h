// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class Properties;

/// Replaces $(…) in a text: macros, a few functions on them, and MSBuildThisFile… of the file that the text stands in.
class MacroExpander
{
public:
    enum class Purpose { Value, Condition };

    MacroExpander(const Properties& known, const QString& ownFile, Purpose use = Purpose::Value)
        : properties(known)
        , file(ownFile)
        , purpose(use)
    {
    }

    /// Leaves a mark (UnknownMacros) for what is not known. Throws Failure when the result grows beyond any use.
    QString expand(const QString& text) const { return expand(text, 0); }

private:
    QString expand(const QString& text, int depth) const;
    QString evaluate(const QString& body, int depth) const;
    QString evaluateStatic(const QString& body, int depth) const;
    QString applyMembers(QString value, const QString& calls, const QString& body, int depth) const;
    QStringList arguments(const QString& text, int depth) const;
    QString macro(const QString& name) const;

    const Properties& properties;
    QString file;
    Purpose purpose;
};
