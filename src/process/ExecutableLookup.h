// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// Where a program is: as named, on PATH, or in one of the folders, in their order. Empty when it is nowhere. The
/// folders also answer an empty name, with themselves.
QString FindExecutable(const QString& program, const QStringList& folders);

/// The same, each program looked up once. For one press or one building of a page: what is installed later is found
/// by the next.
class ExecutableLookup
{
public:
    explicit ExecutableLookup(QStringList searched);

    QString find(const QString& program);

private:
    QStringList folders;
    QHash<QString, QString> known;
};
