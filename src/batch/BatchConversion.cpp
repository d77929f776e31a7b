// SPDX-License-Identifier: MIT
#include "batch/BatchConversion.h"
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "batch/BatchInputs.h"
#include "batch/BatchListing.h"
#include "definitions/ConfigurationKind.h"
#include "personality/FileScans.h"
#include "process/ArgumentSubstitution.h"
#include "process/StopSignals.h"
#include "project/ProjectTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(std::FILE* channel, const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), channel);
    std::fflush(channel);
}

void complain(const QString& text)
{
    print(stderr, u"ProjectCreation: "_s + text + u'\n');
}

} // namespace

BatchConversion::BatchConversion()
    : run(&appRegistry->childProcesses)
{
    connect(&run, &ConversionRun::commandStarted, this, [](const QString& command) { appRegistry->Trace(command); });
}

int BatchConversion::execute(const QStringList& arguments)
{
    const BatchArguments batch = BatchArguments::parse(arguments);
    if (!batch.error.isEmpty()) {
        complain(batch.error);
        return WrongArguments;
    }
    if (batch.task == BatchArguments::Task::Usage) {
        print(stderr, BatchArguments::usage());
        return WrongArguments;
    }
    if (!appRegistry->definitions.hasConversionTypes()) {
        complain(
            tr("no conversion types: the definitions file %1 is missing or not of the correct format; -trace tells "
               "more")
                .arg(appRegistry->DefinitionsFileName()));
        return WrongArguments;
    }
    if (batch.task != BatchArguments::Task::Convert) {
        return list(batch);
    }
    const Result<void> prepared = prepare(batch, arguments);
    if (!prepared.ok()) {
        complain(prepared.problem);
        return WrongArguments;
    }
    return convert(batch);
}

int BatchConversion::list(const BatchArguments& batch) const
{
    if (batch.task == BatchArguments::Task::ListTypes) {
        print(stdout, BatchListing::types(appRegistry->definitions.projectCreators, batch.json));
        return Created;
    }
    for (const auto& creator : appRegistry->definitions.projectCreators) {
        if (creator->name == batch.type) {
            print(stdout, BatchListing::inputs(*creator, batch.json));
            return Created;
        }
    }
    complain(tr("there is no conversion type \"%1\"; -batch -list-types lists them").arg(batch.type));
    return WrongArguments;
}

Result<void> BatchConversion::prepare(const BatchArguments& batch, const QStringList& arguments)
{
    Result<void> result = chooseType(batch.type);
    if (result.ok()) {
        result = chooseAnalyser(arguments);
    }
    if (result.ok()) {
        result = checkName(batch.projectFile);
    }
    if (result.ok()) {
        result = fillInputs(batch);
    }
    return result.ok() ? checkPersonalities() : result;
}

Result<void> BatchConversion::chooseType(const QString& type)
{
    for (const auto& creator : appRegistry->definitions.projectCreators) {
        if (creator->name == type) {
            state.projectCreator = creator.get();
            state.conversion = type;
            return {};
        }
    }
    return {tr("-type: there is no conversion type \"%1\"; -batch -list-types lists them").arg(type)};
}

Result<void> BatchConversion::chooseAnalyser(const QStringList& arguments)
{
    const qsizetype c = arguments.lastIndexOf(u"-c"_s);
    const qsizetype cpp = arguments.lastIndexOf(u"-cpp"_s);
    state.cAvailable = QFile::exists(appRegistry->cInstallDir);
    state.cppAvailable = QFile::exists(appRegistry->cppInstallDir);
    CommandLine::preset(arguments, state);
    state.decideAnalyser(appRegistry->cInstallDir, appRegistry->cppInstallDir);
    if (state.noAnalyserInstalled) {
        complain(tr("warning: there are no KOVRA Analysers installed on this machine"));
    }
    const bool servesOne = state.projectCreator->orvcProject != state.projectCreator->orvcppProject;
    const bool asksForC = c > cpp;
    const bool isServed = !servesOne || state.projectCreator->orvcProject == asksForC;
    if (c != cpp && (asksForC != state.isORVC || !isServed)) {
        return {tr("%1: this conversion type or installation allows only the other analyser")
                    .arg(asksForC ? u"-c"_s : u"-cpp"_s)};
    }
    if (!state.analyserFixed) {
        return {tr("the conversion type serves both analysers: choose with -c or -cpp")};
    }
    return {};
}

// A name holds no further dot and ends in .prj, as one made of the wizard's first page does.
Result<void> BatchConversion::checkName(const QString& projectFile) const
{
    const QString asked = QDir::cleanPath(QFileInfo(projectFile).absoluteFilePath());
    if (!state.fileName.isEmpty() && QDir::fromNativeSeparators(state.ProjectFile()) == asked) {
        return {};
    }
    return {tr("-prj: %1 can not be the project file; it would become %2").arg(projectFile, state.ProjectFile())};
}

Result<void> BatchConversion::fillInputs(const BatchArguments& batch)
{
    BatchInputs inputs(state.projectCreator->inputData, state.isORVC);
    for (const QString& input : batch.inputs) {
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

int BatchConversion::convert(const BatchArguments& batch)
{
    const QString project = state.ProjectFile();
    if (QFile::exists(project) && !batch.overwrite) {
        complain(tr("-prj: %1 already exists; -overwrite replaces it").arg(project));
        return WrongArguments;
    }
    if (!QDir(state.fileDir).exists() && !ProjectTarget::createFolder(state.fileDir)) {
        complain(tr("-prj: the folder %1 can not be created").arg(state.fileDir));
        return ConversionFailed;
    }
    if (!ProjectTarget::isWritable(project)) {
        complain(tr("-prj: can not create file %1").arg(project));
        return ConversionFailed;
    }
    run.child().setProcessChannelMode(QProcess::ForwardedChannels);
    StopSignals signals;
    connect(&signals, &StopSignals::received, &run, &ConversionRun::stop);
    // The end may come before there is an event loop to leave.
    connect(
        &run, &ConversionRun::ended, this, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
    if (run.start(state.projectCreator->exe, conversionArguments(state), project)) {
        QCoreApplication::exec();
    }
    return report(run.outcome());
}

int BatchConversion::report(ConversionRun::Outcome outcome) const
{
    if (!run.detail().isEmpty()) {
        complain(run.detail());
    }
    const QString text = ConversionRun::endText(outcome, state.ProjectFile());
    if (outcome != ConversionRun::Outcome::Created) {
        complain(text);
        return ConversionFailed;
    }
    print(stdout, text + u'\n');
    return Created;
}
