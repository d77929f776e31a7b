// SPDX-License-Identifier: MIT
#include "batch/BatchCheck.h"
#include "app/AppRegistry.h"
#include "batch/BatchMode.h"
#include "batch/BatchOutput.h"
#include "definitions/ConfigurationKind.h"
#include "process/ExecutableLookup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMultiMap>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchCheck)
};

/// What was found, in the order of the lines.
using Remarks = QMultiMap<qint64, QString>;

void checkProgram(Remarks& remarks, ExecutableLookup& lookup, qint64 line, const QString& owner, const QString& program)
{
    if (!program.isEmpty() && lookup.find(program).isEmpty()) {
        remarks.insert(
            line, Text::tr("the program of \"%1\" is not found: %2").arg(owner, QDir::toNativeSeparators(program)));
    }
}

void checkConfigurations(Remarks& remarks, const ProjectCreatorData& creator)
{
    for (const ConfigurationFacts& kind : configurationKinds()) {
        for (const bool isC : {true, false}) {
            const QString& file = presetOf(creator, kind, isC);
            if (!file.isEmpty() && !QFile::exists(file)) {
                remarks.insert(creator.line, Text::tr("the configuration file of \"%1\" does not exist: %2")
                                                 .arg(creator.name, QDir::toNativeSeparators(file)));
            }
        }
    }
}

void checkFiles(Remarks& remarks, const KOVRASettingsFile& definitions)
{
    ExecutableLookup lookup(appRegistry->executableFolders());
    for (const auto& creator : definitions.projectCreators) {
        checkProgram(remarks, lookup, creator->line, creator->name, creator->exe);
        checkConfigurations(remarks, *creator);
    }
    for (const auto& application : definitions.applications) {
        QStringList programs = application->dependency + QStringList{application->cExe, application->cppExe};
        programs.removeDuplicates();
        for (const QString& program : std::as_const(programs)) {
            checkProgram(remarks, lookup, application->line, application->title(), program);
        }
    }
}

} // namespace

int BatchCheck::execute(const QString& fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        const QString reason = file.error() == QFile::NoError ? Text::tr("it is not a file") : file.errorString();
        BatchOutput::complain(Text::tr("-check: %1 can not be read: %2").arg(fileName, reason));
        return BatchMode::WrongArguments;
    }
    Remarks remarks;
    KOVRASettingsFile::Context context = appRegistry->definitionsContext();
    context.readPage = {};
    context.remark = [&](qint64 line, const QString& text) { remarks.insert(line, text); };
    KOVRASettingsFile definitions;
    definitions.readDocument(file.readAll(), context);
    if (definitions.lastError.line > 0) {
        remarks.insert(definitions.lastError.line, Text::tr("reading ends here: %1").arg(definitions.lastError.reason));
    }
    checkFiles(remarks, definitions);
    for (auto remark = remarks.cbegin(); remark != remarks.cend(); ++remark) {
        BatchOutput::print(u"%1:%2: %3\n"_s.arg(fileName).arg(remark.key()).arg(remark.value()));
    }
    return remarks.isEmpty() ? BatchMode::Good : BatchMode::Failed;
}
