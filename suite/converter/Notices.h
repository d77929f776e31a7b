// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

/// What the reader of a build description has to tell the user: what it decided, and what it leaves out where.
class Notices
{
public:
    struct LeftOut
    {
        QString what;
        QString reason;
        /// File and line.
        QString place;

        QString text() const { return QStringLiteral("warning: %1: %2 is left out: %3").arg(place, what, reason); }
    };

    void say(const QString& text)
    {
        if (!decisions.contains(text)) {
            decisions += text;
        }
    }
    void leaveOut(const QString& file, qint64 line, const QString& what, const QString& reason)
    {
        const LeftOut omission{what, reason, file + u':' + QString::number(line)};
        if (const QString text = omission.text(); !known.contains(text)) {
            known.insert(text);
            omissions += omission;
        }
    }

    /// Both in order; nothing twice.
    const QStringList& said() const { return decisions; }
    const QList<LeftOut>& leftOut() const { return omissions; }

private:
    QStringList decisions;
    QList<LeftOut> omissions;
    QSet<QString> known;
};
