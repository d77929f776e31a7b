// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

/// Where a program is: as named, on PATH, in the suite's bin folder or in an analyser's. Empty when it is nowhere. The
/// folders also answer an empty name, with themselves.
QString FindExecutable(const QString& program);

/// While one lives, each program is looked up once. For one press or one building of a page: what is installed later is
/// found by the next.
class ExecutableAnswers
{
public:
    ExecutableAnswers();
    ~ExecutableAnswers();
    ExecutableAnswers(const ExecutableAnswers&) = delete;
    ExecutableAnswers& operator=(const ExecutableAnswers&) = delete;

private:
    friend QString FindExecutable(const QString& program);

    QHash<QString, QString> known;
    ExecutableAnswers* outer;
};
