// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "builds/NinjaFolder.h"
#include "Failure.h"
#include "Output.h"
#include "SourceLists.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

Failure wrong(const QString& text)
{
    return {text + u"; see prjconv --help"_s, Failure::Kind::Arguments};
}

void declare(QCommandLineParser& parser)
{
    const auto value = [&](const QString& name, const QString& help, const QString& kind) {
        parser.addOption({name, help, kind});
    };
    value(u"compile-commands"_s, u"convert a compilation database, or the one that a build folder holds"_s, u"file"_s);
    value(u"source-folder"_s, u"convert the sources below a folder"_s, u"folder"_s);
    value(u"file-list"_s, u"convert the sources that a text file lists, one a line"_s, u"file"_s);
    BuildInputs::declare(parser);
    value(u"output"_s, u"project file to be written"_s, u"file.prj"_s);
    value(u"name"_s, u"name of the project; without it the project file's"_s, u"name"_s);
    value(u"analyser"_s, u"ORVC or ORVCPP"_s, u"analyser"_s);
    value(u"compiler-personality"_s, u"compiler configuration file"_s, u"file"_s);
    value(u"analyser-personality"_s, u"analyser configuration template"_s, u"file"_s);
    value(u"message-personality"_s, u"message configuration file"_s, u"file"_s);
    value(u"output-folder"_s, u"where the analyser puts its output; without it a folder beside the project file"_s,
          u"folder"_s);
    value(u"extensions"_s, u"with --source-folder: endings of the sources, for example \"c;cpp\""_s, u"list"_s);
    value(u"exclude"_s,
          u"names and paths to leave out, for example \"deps/*;*_test.c\"; @FILE takes them from a file, one a line"_s,
          u"list"_s);
    value(u"defines"_s, u"more defines, for example \"NDEBUG;SIZE=2\""_s, u"list"_s);
    value(u"include-folders"_s, u"more include folders, searched after those of the build"_s, u"list"_s);
    value(u"compiler-macros"_s, u"1: ask the compilers of the build what they predefine (default), 0: do not"_s,
          u"flag"_s);
    value(u"options"_s, u"any of sub-projects, keep-missing, separated by commas"_s, u"list"_s);
    value(u"paths"_s, u"relative (as far as possible) or absolute"_s, u"kind"_s);
    value(u"own-language"_s, u"1: only sources in the analyser's own language"_s, u"flag"_s);
    parser.setApplicationDescription(u"Converts a build description to a KOVRA project file."_s);
    parser.addHelpOption();
    parser.addVersionOption();
}

QStringList list(const QString& text)
{
    static const QRegularExpression separators(u"[;,\\s]+"_s);
    return text.split(separators, Qt::SkipEmptyParts);
}

// What may itself hold blanks and commas.
QStringList parts(const QString& text)
{
    QStringList result;
    for (const QString& part : text.split(u';')) {
        if (const QString trimmed = part.trimmed(); !trimmed.isEmpty()) {
            result += trimmed;
        }
    }
    return result;
}

QStringList patterns(const QString& text)
{
    QStringList result;
    for (const QString& part : parts(text)) {
        if (part.startsWith(u'@')) {
            result += listedLines(part.sliced(1));
        } else {
            result += part;
        }
    }
    return result;
}

void takeOptions(Arguments& arguments, const QString& text)
{
    const QStringList options = list(text);
    for (const QString& option : options) {
        if (option == "sub-projects"_L1) {
            arguments.subProjects = true;
        } else if (option == "keep-missing"_L1) {
            arguments.keepMissing = true;
        } else {
            throw wrong(u"--options does not know \"%1\""_s.arg(option));
        }
    }
}

QString absolute(const QString& path)
{
    return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

void check(const QCommandLineParser& parser, Arguments& arguments)
{
    // An input that was left empty arrives as an empty argument.
    QStringList strays = parser.positionalArguments();
    strays.removeAll(QString());
    if (!strays.isEmpty()) {
        throw wrong(u"unexpected argument \"%1\""_s.arg(strays.first()));
    }
    const int sources = int(!arguments.compileCommands.isEmpty()) + int(!arguments.sourceFolder.isEmpty()) +
                        int(!arguments.fileList.isEmpty()) + arguments.build.count();
    if (sources != 1) {
        throw wrong(u"give one of --compile-commands, --source-folder, --file-list, --build-folder, --cmake-source, "
                    "--make-folder and --visual-studio"_s);
    }
    if (arguments.output.isEmpty()) {
        throw wrong(u"--output is missing"_s);
    }
    const QString analyser = parser.value(u"analyser"_s);
    if (analyser != "ORVC"_L1 && analyser != "ORVCPP"_L1) {
        throw wrong(u"--analyser wants ORVC or ORVCPP, not \"%1\""_s.arg(analyser));
    }
    const QString paths = parser.value(u"paths"_s);
    if (!paths.isEmpty() && paths != "relative"_L1 && paths != "absolute"_L1) {
        throw wrong(u"--paths wants relative or absolute, not \"%1\""_s.arg(paths));
    }
    const QString macros = parser.value(u"compiler-macros"_s);
    if (!macros.isEmpty() && macros != "0"_L1 && macros != "1"_L1) {
        throw wrong(u"--compiler-macros wants 0 or 1, not \"%1\""_s.arg(macros));
    }
    arguments.compilerMacros = macros != "0"_L1;
    arguments.forC = analyser == "ORVC"_L1;
    arguments.absolutePaths = paths == "absolute"_L1;
}

/// Ends the program when it was only asked about itself.
void answerQuestions(const QCommandLineParser& parser)
{
    if (parser.isSet(u"help"_s)) {
        // QCommandLineParser would open a window where Windows sees no console.
        print(stdout, parser.helpText().chopped(1));
        std::exit(0);
    }
    if (parser.isSet(u"version"_s)) {
        print(stdout, QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion());
        std::exit(0);
    }
}

} // namespace

Arguments Arguments::parse(const QStringList& commandLine)
{
    QCommandLineParser parser;
    declare(parser);
    if (!parser.parse(commandLine)) {
        throw wrong(parser.errorText());
    }
    answerQuestions(parser);
    Arguments arguments;
    arguments.compileCommands = parser.value(u"compile-commands"_s);
    arguments.sourceFolder = parser.value(u"source-folder"_s);
    arguments.fileList = parser.value(u"file-list"_s);
    arguments.build = BuildInputs::from(parser);
    // Ninja tells what a build folder without a database compiles.
    if (isNinjaFolder(arguments.compileCommands) &&
        !QFileInfo::exists(arguments.compileCommands + u"/compile_commands.json"_s)) {
        arguments.build.buildFolder = std::exchange(arguments.compileCommands, {});
    }
    arguments.output = absolute(parser.value(u"output"_s));
    arguments.name = parser.value(u"name"_s);
    if (arguments.name.isEmpty()) {
        arguments.name = QFileInfo(arguments.output).completeBaseName();
    }
    arguments.compilerPersonality = absolute(parser.value(u"compiler-personality"_s));
    arguments.analyserPersonality = absolute(parser.value(u"analyser-personality"_s));
    arguments.messagePersonality = absolute(parser.value(u"message-personality"_s));
    arguments.outputFolder = absolute(parser.value(u"output-folder"_s));
    arguments.extensions = list(parser.value(u"extensions"_s));
    arguments.exclude = patterns(parser.value(u"exclude"_s));
    arguments.defines = parts(parser.value(u"defines"_s));
    for (const QString& folder : parts(parser.value(u"include-folders"_s))) {
        arguments.includeFolders += QDir::cleanPath(absolute(folder));
    }
    arguments.onlyOwnLanguage = parser.value(u"own-language"_s) == "1"_L1;
    takeOptions(arguments, parser.value(u"options"_s));
    check(parser, arguments);
    return arguments;
}
