// SPDX-License-Identifier: MIT
#include "launchers/LauncherArguments.h"
#include "app/AppRegistry.h"
#include "launchers/PageData.h"
#include "personality/MessageSelectionFile.h"
#include "personality/ProductNames.h"
#include "project/Project.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(RunAppData)
};

/// The message selection for the tool; no file when the user does not want one.
Result<QString> prepareMessageFile()
{
    PersistedValues& values = appRegistry->values;
    if (!values.useMessageViewerMessages) {
        return {};
    }
    if (!values.project.isCAnalyser()) {
        values.cMessages = values.cppMessages;
    }
    const QString fileName = appRegistry->CreateTempFileName(u".via"_s);
    if (!fileName.isEmpty() && writeMessageSelectionFile(values.cMessages, fileName).ok()) {
        return {fileName};
    }
    return {{},
            Text::tr("A temporary file can not be written in %1. Make room there or make it writable.")
                .arg(QDir::toNativeSeparators(QDir::tempPath()))};
}

} // namespace

Result<QStringList> LauncherArguments::prepare(const QStringList& templates, const PageData* page)
{
    const Result<QString> messageFile = prepareMessageFile();
    if (!messageFile.ok()) {
        return {{}, messageFile.problem};
    }
    // A page without a project of its own works on the one the suite used last.
    Project own;
    const bool ownProject = page && !page->projectFile.isEmpty();
    if (ownProject) {
        own.load(page->projectFile, appRegistry->projectFacts());
    }
    Project& project = ownProject ? own : appRegistry->values.project;
    const bool isC = ownProject ? page->isORVC : project.isCAnalyser();
    return project.expandLauncherArguments(templates, ProductNames::of(isC).shortName, messageFile.value,
                                           appRegistry->optionSources());
}
