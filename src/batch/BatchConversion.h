// SPDX-License-Identifier: MIT
#pragma once

#include "batch/BatchArguments.h"
#include "personality/Result.h"
#include "process/ConversionRun.h"
#include "process/WizardState.h"

#include <QObject>

/// A conversion without a window: the same checks and the same engine as the wizard's pages. What the conversion
/// program prints goes straight to our own channels, our errors to standard error.
class BatchConversion : public QObject
{
    Q_OBJECT

public:
    BatchConversion();

    enum ExitStatus { Created = 0, ConversionFailed = 1, WrongArguments = 2 };

    /// Does what the command line says, under an event loop of the application's; gives the exit status.
    int execute(const QStringList& arguments);

private:
    int list(const BatchArguments& batch) const;
    Result<void> prepare(const BatchArguments& batch, const QStringList& arguments);
    Result<void> chooseType(const QString& type);
    Result<void> chooseAnalyser(const QStringList& arguments);
    Result<void> checkName(const QString& projectFile) const;
    Result<void> fillInputs(const BatchArguments& batch);
    Result<void> checkPersonalities();
    int convert(const BatchArguments& batch);
    int report(ConversionRun::Outcome outcome) const;

    WizardState state;
    ConversionRun run;
};
