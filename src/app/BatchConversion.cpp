// SPDX-License-Identifier: MIT
#include "app/BatchConversion.h"
#include "app/AppRegistry.h"
#include "app/BatchInputs.h"
#include "app/BatchListing.h"
#include "app/CommandLine.h"
#include "app/StopSignals.h"
#include "personality/FileScans.h"
#include "process/ArgumentSubstitution.h"
#include "project/ProjectTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
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
    const QString problem = prepare(batch, arguments);
    if (!problem.isEmpty()) {
        complain(problem);
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

QString BatchConversion::prepare(const BatchArguments& batch, const QStringList& arguments)
{
    QString problem = chooseType(batch.type);
    if (problem.isEmpty()) {
        problem = chooseAnalyser(arguments);
    }
    if (problem.isEmpty()) {
        problem = checkName(batch.projectFile);
    }
    if (problem.isEmpty()) {
        problem = fillInputs(batch);
    }
    if (problem.isEmpty()) {
        problem = checkPersonalities();
    }
    return problem;
}

QString BatchConversion::chooseType(const QString& type)
{
    for (const auto& creator : appRegistry->definitions.projectCreators) {
        if (creator->name == type) {
            state.projectCreator = creator.get();
            state.conversion = type;
            return {};
        }
    }
    return tr("-type: there is no conversion type \"%1\"; -batch -list-types lists them").arg(type);
}

QString BatchConversion::chooseAnalyser(const QStringList& arguments)
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
        return tr("%1: this conversion type or installation allows only the other analyser")
            .arg(asksForC ? u"-c"_s : u"-cpp"_s);
    }
    return state.analyserFixed ? QString() : tr("the conversion type serves both analysers: choose with -c or -cpp");
}

// A name holds no further dot and ends in .prj, as one made of the wizard's first page does.
QString BatchConversion::checkName(const QString& projectFile) const
{
    const QString asked = QDir::cleanPath(QFileInfo(projectFile).absoluteFilePath());
    if (!state.fileName.isEmpty() && QDir::fromNativeSeparators(state.ProjectFile()) == asked) {
        return {};
    }
    return tr("-prj: %1 can not be the project file; it would become %2").arg(projectFile, state.ProjectFile());
}

QString BatchConversion::fillInputs(const BatchArguments& batch)
{
    BatchInputs inputs(state.projectCreator->inputData, state.isORVC);
    for (const QString& input : batch.inputs) {
        const QString problem = inputs.set(input);
        if (!problem.isEmpty()) {
            return u"-input: "_s + problem;
        }
    }
    const FieldSource source = inputs.source();
    if (const auto* missing = InputValues::firstIncomplete(state.projectCreator->inputData, source)) {
        return missing->fileMustExist ? tr("-input: \"%1\" must name an existing file").arg(missing->displayName)
                                      : tr("-input: \"%1\" must be given").arg(missing->displayName);
    }
    for (const auto& input : state.projectCreator->inputData) {
        InputValues::value(*input, source, true);
    }
    return {};
}

QString BatchConversion::checkPersonalities()
{
    struct Kind
    {
        const char* option;
        bool asked;
        QString* file;
        QString preset;
    };
    const ProjectCreatorData& creator = *state.projectCreator;
    const bool isC = state.isORVC;
    const std::array kinds{
        Kind{"-mp", creator.hasMessagePersonality, &state.messagePersonality, creator.MessagePersonality(isC)},
        Kind{"-ap", creator.hasAnalyserPersonality, &state.analyserPersonality, creator.AnalyserPersonality(isC)},
        Kind{"-cp", creator.hasCompilerPersonality, &state.compilerPersonality, creator.CompilerPersonality(isC)},
    };
    for (const Kind& kind : kinds) {
        if (kind.asked && kind.file->isEmpty()) {
            *kind.file = kind.preset;
        }
        if (!kind.file->isEmpty() && !QFile::exists(*kind.file)) {
            return tr("%1: the configuration file %2 does not exist").arg(QLatin1StringView(kind.option), *kind.file);
        }
        if (FileScans::isForOtherAnalyser(*kind.file, isC)) {
            return tr("%1: the configuration file %2 is for the other analyser")
                .arg(QLatin1StringView(kind.option), *kind.file);
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
    switch (outcome) {
    case ConversionRun::Outcome::Created:
        print(stdout, tr("New project file: ") + state.ProjectFile() + u'\n');
        return Created;
    case ConversionRun::Outcome::NotCreated:
        complain(tr("Error: Project file [%1] not created").arg(state.ProjectFile()));
        break;
    case ConversionRun::Outcome::NotStarted:
        complain(tr("Error: Could not run conversion process"));
        break;
    case ConversionRun::Outcome::Failed:
    case ConversionRun::Outcome::Stopped:
        complain(tr("Error: Conversion Process Failed"));
        break;
    }
    return ConversionFailed;
}
