// SPDX-License-Identifier: MIT
#include "batch/BatchConversion.h"
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "batch/BatchInputs.h"
#include "batch/BatchMode.h"
#include "batch/BatchOutput.h"
#include "definitions/ConfigurationKind.h"
#include "personality/FileScans.h"
#include "personality/ProductNames.h"
#include "process/ArgumentSubstitution.h"
#include "process/StopSignals.h"
#include "project/ProjectTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Enough for the reason of a failure.
constexpr qsizetype keptOutput = 64LL * 1024;

} // namespace

BatchConversion::BatchConversion(BatchArguments given)
    : batch(std::move(given))
    , run(&appRegistry->childProcesses)
{
    run.setEmptyFile(ConversionRun::EmptyFile::Refused);
    connect(&run, &ConversionRun::commandStarted, this, [](const QString& command) { appRegistry->Trace(command); });
}

int BatchConversion::execute()
{
    if (const Result<void> prepared = prepare(); !prepared.ok()) {
        BatchOutput::complain(prepared.problem);
        return BatchMode::WrongArguments;
    }
    arguments = conversionArguments(state);
    const QStringList doubtful = placeholdersInValues(state);
    for (const QString& sentence : doubtful) {
        BatchOutput::complain(sentence);
    }
    if (batch.dryRun) {
        return dryRun();
    }
    if (const Result<void> place = checkPlace(); !place.ok()) {
        BatchOutput::complain(place.problem);
        return BatchMode::Failed;
    }
    return convert();
}

Result<void> BatchConversion::prepare()
{
    using Step = Result<void> (BatchConversion::*)();
    for (const Step step : {&BatchConversion::chooseType, &BatchConversion::chooseAnalyser}) {
        if (Result<void> result = (this->*step)(); !result.ok()) {
            return result;
        }
    }
    if (Result<void> result = checkName(); !result.ok()) {
        return result;
    }
    for (const Step step :
         {&BatchConversion::fillInputs, &BatchConversion::applyModule, &BatchConversion::checkPersonalities}) {
        if (Result<void> result = (this->*step)(); !result.ok()) {
            return result;
        }
    }
    return checkOverwriting();
}

Result<void> BatchConversion::chooseType()
{
    for (const auto& creator : appRegistry->definitions.projectCreators) {
        if (creator->name == batch.type) {
            state.projectCreator = creator.get();
            state.conversion = batch.type;
            return {};
        }
    }
    return {tr("-type: there is no conversion type \"%1\"; -batch -list-types lists them").arg(batch.type)};
}

Result<void> BatchConversion::chooseAnalyser()
{
    using enum BatchArguments::Analyser;
    state.cAvailable = QFile::exists(appRegistry->cInstallDir);
    state.cppAvailable = QFile::exists(appRegistry->cppInstallDir);
    const bool asksForC = batch.analyser == C;
    if (batch.analyser != Open) {
        CommandLine::presetAnalyser(asksForC, state);
    }
    CommandLine::presetProject(batch.projectFile, state);
    for (auto file = batch.configurations.cbegin(); file != batch.configurations.cend(); ++file) {
        state.configuration(file.key()) = file.value();
    }
    state.decideAnalyser(appRegistry->cInstallDir, appRegistry->cppInstallDir);
    if (state.noAnalyserInstalled) {
        BatchOutput::warn(tr("there are no KOVRA Analysers installed on this machine"));
    }
    const bool servesOne = state.projectCreator->orvcProject != state.projectCreator->orvcppProject;
    const bool isServed = !servesOne || state.projectCreator->orvcProject == asksForC;
    if (batch.analyser != Open && (asksForC != state.isORVC || !isServed)) {
        return {tr("%1: this conversion type or installation allows only the other analyser")
                    .arg(asksForC ? u"-c"_s : u"-cpp"_s)};
    }
    if (!state.analyserFixed) {
        return {tr("the conversion type serves both analysers: choose with -c or -cpp")};
    }
    return {};
}

// A name holds no further dot and ends in .prj, as one made of the wizard's first page does.
Result<void> BatchConversion::checkName() const
{
    const QString asked = QDir::cleanPath(QFileInfo(batch.projectFile).absoluteFilePath());
    if (!state.fileName.isEmpty() && QDir::fromNativeSeparators(state.ProjectFile()) == asked) {
        return {};
    }
    return {tr("-prj: %1 can not be the project file; it would become %2").arg(batch.projectFile, state.ProjectFile())};
}

Result<void> BatchConversion::fillInputs()
{
    BatchInputs inputs(state.projectCreator->inputData, state.isORVC);
    for (const QString& input : std::as_const(batch.inputs)) {
        const Result<void> taken = inputs.set(input);
        if (!taken.ok()) {
            return {u"-input: "_s + taken.problem};
        }
    }
    const FieldSource source = inputs.source();
    if (const auto* missing = InputValues::firstIncomplete(state.projectCreator->inputData, source)) {
        const QString text = missing->fileMustExist ? tr("-input: \"%1\" must name an existing file")
                                                    : tr("-input: \"%1\" must be given");
        return {text.arg(missing->displayName)};
    }
    for (const auto& input : state.projectCreator->inputData) {
        InputValues::remember(*input, source);
    }
    return {};
}

// As on the configuration page: a module decides the files that it has.
Result<void> BatchConversion::applyModule()
{
    if (batch.module.isEmpty()) {
        return {};
    }
    QStringList names;
    for (const auto& module : appRegistry->definitions.complianceModules) {
        if (module->isC != state.isORVC || !QFile::exists(module->location)) {
            continue;
        }
        names += module->name;
        if (module->name != batch.module) {
            continue;
        }
        for (const ConfigurationFacts& kind : configurationKinds()) {
            const QString& file = (*module).*kind.moduleFile;
            if (file.isEmpty() || !(state.projectCreator->*kind.asked)) {
                continue;
            }
            if (batch.configurations.contains(kind.kind)) {
                return {tr("%1 does not go with -module: \"%2\" has that file").arg(kind.option, module->name)};
            }
            state.configuration(kind.kind) = QDir::toNativeSeparators(file);
        }
        return {};
    }
    return {tr("-module: there is no compliance module \"%1\" for this analyser; installed are: %2")
                .arg(batch.module, names.join(u", "_s))};
}

Result<void> BatchConversion::checkPersonalities()
{
    const bool isC = state.isORVC;
    for (const ConfigurationFacts& kind : configurationKinds()) {
        QString& file = state.configuration(kind.kind);
        if (state.projectCreator->*kind.asked && file.isEmpty()) {
            file = presetOf(*state.projectCreator, kind, isC);
        }
        if (!file.isEmpty() && !QFile::exists(file)) {
            return {tr("%1: the configuration file %2 does not exist").arg(kind.option, file)};
        }
        if (FileScans::isForOtherAnalyser(file, isC)) {
            return {tr("%1: the configuration file %2 is for the other analyser").arg(kind.option, file)};
        }
    }
    return {};
}

Result<void> BatchConversion::checkOverwriting() const
{
    const QString project = state.ProjectFile();
    const QFileInfo info(project);
    if (batch.overwrite || (!info.exists() && !info.isSymLink())) {
        return {};
    }
    return {info.exists() ? tr("-prj: %1 already exists; -overwrite replaces it").arg(project)
                          : tr("-prj: %1 is a link to %2, which does not exist; -overwrite replaces it")
                                .arg(project, info.symLinkTarget())};
}

Result<void> BatchConversion::checkPlace() const
{
    if (!QDir(state.fileDir).exists()) {
        if (const Result<void> created = ProjectTarget::createFolder(state.fileDir); !created.ok()) {
            return {tr("-prj: the folder %1 can not be created: %2").arg(state.fileDir, created.problem)};
        }
    }
    const Result<void> writable = ProjectTarget::checkWritable(state.ProjectFile());
    return writable.ok()
               ? writable
               : Result<void>{tr("-prj: can not create file %1: %2").arg(state.ProjectFile(), writable.problem)};
}

int BatchConversion::dryRun() const
{
    if (batch.json) {
        printJson(u"dryRun"_s, BatchMode::Good);
        return BatchMode::Good;
    }
    BatchOutput::print(state.projectCreator->exe + u'\n');
    for (const QString& argument : arguments) {
        BatchOutput::print(u"  "_s + argument + u'\n');
    }
    return BatchMode::Good;
}

int BatchConversion::convert()
{
    passOutputOn();
    StopSignals signals;
    connect(&signals, &StopSignals::received, &run, &ConversionRun::stop);
    // The end may come before there is an event loop to leave.
    connect(
        &run, &ConversionRun::ended, this, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
    clock.start();
    if (run.start(state.projectCreator->exe, arguments, state.ProjectFile())) {
        if (batch.timeoutSeconds > 0) {
            QTimer::singleShot(std::chrono::seconds(batch.timeoutSeconds), this, [this] {
                timedOut = run.isRunning();
                run.stop();
            });
        }
        QCoreApplication::exec();
    }
    return report();
}

void BatchConversion::passOutputOn()
{
    if (batch.quiet) {
        connect(&run, &ConversionRun::outputReady, this, &BatchConversion::keepOutput);
    } else if (batch.json) {
        connect(&run, &ConversionRun::outputReady, this, &BatchConversion::forwardOutput);
    } else if (TerminalOutput::isPossible()) {
        run.child().setProcessChannelMode(TerminalOutput::channelMode());
        usesTerminal = true;
        connect(&run, &ConversionRun::outputReady, this, &BatchConversion::showOutput);
    } else {
        run.child().setProcessChannelMode(QProcess::ForwardedChannels);
    }
}

void BatchConversion::showOutput()
{
    terminal.add(run.takeOutput());
}

// Standard output is for the result alone.
void BatchConversion::forwardOutput()
{
    BatchOutput::printError(run.takeOutput());
}

void BatchConversion::keepOutput()
{
    lastOutput += run.takeOutput();
    lastOutput = lastOutput.last(std::min(keptOutput, lastOutput.size()));
}

int BatchConversion::report()
{
    if (usesTerminal) {
        showOutput();
        terminal.finish();
    }
    const ConversionRun::Outcome outcome = run.outcome();
    const bool isGood = outcome == ConversionRun::Outcome::Created && run.exitCode() == 0;
    const int status = isGood ? BatchMode::Good : BatchMode::Failed;
    if (!isGood) {
        BatchOutput::printError(lastOutput);
    }
    if (timedOut) {
        BatchOutput::complain(
            tr("-timeout: the conversion took longer than %n second(s)", nullptr, batch.timeoutSeconds));
    }
    if (!run.detail().isEmpty()) {
        BatchOutput::complain(run.detail());
    }
    if (!run.warning().isEmpty()) {
        BatchOutput::complain(tr("%1 was left by a conversion that failed").arg(state.ProjectFile()));
    } else if (!isGood) {
        BatchOutput::complain(ConversionRun::endText(outcome, state.ProjectFile()));
    } else if (!batch.json && !batch.quiet) {
        BatchOutput::print(ConversionRun::endText(outcome, state.ProjectFile()) + u'\n');
    }
    if (batch.json) {
        printJson(outcomeName(), status);
    }
    return status;
}

QString BatchConversion::outcomeName() const
{
    switch (run.outcome()) {
    case ConversionRun::Outcome::Created:
        return run.exitCode() == 0 ? u"created"_s : u"createdButFailed"_s;
    case ConversionRun::Outcome::NotCreated:
        return u"notCreated"_s;
    case ConversionRun::Outcome::NotStarted:
        return u"notStarted"_s;
    case ConversionRun::Outcome::Failed:
        return u"crashed"_s;
    case ConversionRun::Outcome::Stopped:
        break;
    }
    return timedOut ? u"timedOut"_s : u"stopped"_s;
}

void BatchConversion::printJson(const QString& outcome, int status) const
{
    constexpr double msPerSecond = 1000.0;
    const QJsonObject object{
        {u"project"_s, state.ProjectFile()},
        {u"type"_s, batch.type},
        {u"analyser"_s, ProductNames::of(state.isORVC).shortName},
        {u"program"_s, state.projectCreator->exe},
        {u"arguments"_s, QJsonArray::fromStringList(arguments)},
        {u"outcome"_s, outcome},
        {u"exitCode"_s, run.exitCode() < 0 ? QJsonValue() : QJsonValue(run.exitCode())},
        {u"duration"_s, clock.isValid() ? QJsonValue(double(clock.elapsed()) / msPerSecond) : QJsonValue()},
        {u"status"_s, status},
        {u"detail"_s, run.detail()},
    };
    BatchOutput::print(QString::fromUtf8(QJsonDocument(object).toJson()));
}
