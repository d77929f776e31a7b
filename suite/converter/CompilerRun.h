// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerSetup.h"

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QTimer>

struct CompilerPersonality;

/// One compiler that is asked one question.
class CompilerRun : public QObject
{
    Q_OBJECT

public:
    CompilerRun(QString compiler, CompilerSetup question);
    ~CompilerRun() override;

    /// Ends with finished(), always, and never at once.
    void start();
    /// Puts the answer down, or the reason why there is none.
    void tell(CompilerPersonality& answer) const;

Q_SIGNALS:
    void finished();

private:
    QStringList questionWords() const;
    void collect();
    void end(const QString& why);

    QString program;
    CompilerSetup setup;
    QProcess process;
    QTimer timer;
    QByteArray macros;
    QByteArray notes;
    QString reason;
    bool isOver = false;
};
