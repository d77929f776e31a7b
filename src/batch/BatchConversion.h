// SPDX-License-Identifier: MIT
#pragma once

#include "batch/BatchArguments.h"
#include "batch/TerminalOutput.h"
#include "personality/Result.h"
#include "process/ConversionRun.h"
#include "process/WizardState.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

/// A conversion without a window: the same checks and the same engine as the wizard's pages. What the conversion
/// program prints goes straight to our own channels, our errors to standard error.
class BatchConversion : public QObject
{
    Q_OBJECT

public:
    explicit BatchConversion(BatchArguments arguments);

    /// Gives the exit status.
    int execute();

private:
    Result<void> prepare();
    Result<void> chooseType();
    Result<void> chooseAnalyser();
    Result<void> checkName() const;
    Result<void> fillInputs();
    Result<void> applyModule();
    Result<void> checkPersonalities();
    /// Problems of the project file's place end with another status than wrong arguments.
    Result<void> checkOverwriting() const;
    Result<void> checkPlace() const;
    int dryRun() const;
    int convert();
    void passOutputOn();
    void showOutput();
    void forwardOutput();
    void keepOutput();
    int report();
    void printJson(const QString& outcome, int status) const;
    QString outcomeName() const;

    BatchArguments batch;
    WizardState state;
    ConversionRun run;
    TerminalOutput terminal;
    QStringList arguments;
    QElapsedTimer clock;
    /// The end of what the program printed, for a quiet run that fails.
    QString lastOutput;
    bool usesTerminal = false;
    bool timedOut = false;
};
