// SPDX-License-Identifier: MIT
#pragma once

#include "batch/TerminalOutput.h"
#include "personality/Result.h"
#include "process/ChildProcess.h"
#include "process/OutputDecoder.h"
#include "project/Project.h"

#include <QObject>

struct ApplicationRecord;
struct BatchArguments;

/// A launcher of the follow-up page without its button: what the tool prints goes to our own channels, and its exit
/// status is ours.
class BatchLauncher : public QObject
{
    Q_OBJECT

public:
    BatchLauncher();

    int execute(const BatchArguments& batch);

private:
    Result<QString> programOf(const ApplicationRecord& application, bool isC) const;
    Result<QStringList> argumentsOf(const ApplicationRecord& application, bool isC);
    int run(const QString& program, const QStringList& arguments, const BatchArguments& batch);

    void passOutputOn();
    void showOutput();

    ChildProcess process;
    TerminalOutput terminal;
    OutputDecoder decoder;
    Project project;
    bool stopped = false;
};
