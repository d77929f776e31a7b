// SPDX-License-Identifier: MIT
#include "batch/BatchMode.h"
#include "app/AppRegistry.h"
#include "app/StartupWarnings.h"
#include "batch/BatchArguments.h"
#include "batch/BatchCheck.h"
#include "batch/BatchConversion.h"
#include "batch/BatchLauncher.h"
#include "batch/BatchListing.h"
#include "batch/BatchOutput.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Task = BatchArguments::Task;

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchMode)
};

int listInputs(const BatchArguments& batch)
{
    const auto& creators = appRegistry->definitions.projectCreators;
    const auto creator = std::ranges::find_if(creators, [&](const auto& known) { return known->name == batch.type; });
    if (creator == creators.end()) {
        BatchOutput::complain(
            Text::tr("there is no conversion type \"%1\"; -batch -list-types lists them").arg(batch.type));
        return BatchMode::WrongArguments;
    }
    BatchOutput::print(BatchListing::inputs(**creator, batch.json));
    return BatchMode::Good;
}

int withDefinitions(const BatchArguments& batch)
{
    const QStringList warnings = StartupWarnings::all(*appRegistry);
    for (const QString& warning : warnings) {
        BatchOutput::warn(warning);
    }
    const QString foreign = StartupWarnings::foreignDefinitions(*appRegistry);
    if (!foreign.isEmpty() && !batch.quiet) {
        BatchOutput::complain(Text::tr("note: %1").arg(foreign));
    }
    if (batch.task == Task::Run) {
        return BatchLauncher().execute(batch);
    }
    if (!appRegistry->definitions.hasConversionTypes()) {
        BatchOutput::complain(Text::tr("no conversion types: the definitions file %1 is missing or not of the correct "
                                       "format; -trace tells more")
                                  .arg(appRegistry->DefinitionsFileName()));
        return BatchMode::WrongArguments;
    }
    if (batch.task == Task::ListTypes) {
        BatchOutput::print(BatchListing::types(appRegistry->definitions.projectCreators, batch.json));
        return BatchMode::Good;
    }
    return batch.task == Task::ListInputs ? listInputs(batch) : BatchConversion(batch).execute();
}

int dispatch(const BatchArguments& batch)
{
    if (!batch.error.isEmpty()) {
        BatchOutput::complain(batch.error);
        return BatchMode::WrongArguments;
    }
    switch (batch.task) {
    case Task::Usage:
        BatchOutput::printError(BatchArguments::usage());
        return BatchMode::WrongArguments;
    case Task::Help:
        BatchOutput::print(BatchArguments::usage());
        return BatchMode::Good;
    case Task::Check:
        return BatchCheck::execute(batch.checkedFile);
    default:
        return withDefinitions(batch);
    }
}

int statusOf(int status)
{
    return status == BatchMode::Good && BatchOutput::isBroken() ? BatchMode::Failed : status;
}

} // namespace

int BatchMode::execute(const QStringList& arguments)
{
    return statusOf(dispatch(BatchArguments::parse(arguments)));
}

int BatchMode::help()
{
    return print(BatchArguments::usage());
}

int BatchMode::print(const QString& text)
{
    BatchOutput::print(text);
    return statusOf(Good);
}
