// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/// The macros of a project: what its files set, and what they may count on without.
class Properties
{
public:
    /// A fixed one, which no file can change: the configuration, the platform, what concerns the solution.
    void fix(const QString& name, const QString& value);
    void set(const QString& name, const QString& value);
    /// Without regard to case. What nothing sets has its usual value, or that of an environment variable.
    std::optional<QString> value(const QString& name) const;
    /// The same; empty for an unknown one.
    QString text(const QString& name) const { return value(name).value_or(QString()); }

private:
    std::optional<QString> usual(const QString& key) const;

    QHash<QString, QString> values;
    QHash<QString, QString> fixed;
};

/// Unknown macros stay in an expanded text as marks, so that whoever uses the text can leave out what holds one.
namespace UnknownMacros {

QString mark(const QString& name);
bool isIn(const QString& text);
/// Their names as they were written.
QStringList in(const QString& text);
QString removed(QString text);
/// The text as the file has it.
QString written(QString text);
/// True when all of them name the place of the compiler itself or of what comes with it.
bool areTheCompilers(const QString& text);

} // namespace UnknownMacros
