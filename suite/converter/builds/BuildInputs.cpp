// SPDX-License-Identifier: MIT
#include "BuildInputs.h"
#include "../Notices.h"
#include "../visualstudio/VisualStudio.h"
#include "CMakeSource.h"
#include "NinjaFolder.h"

#include <QCommandLineParser>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void BuildInputs::declare(QCommandLineParser& parser)
{
    const auto value = [&](const QString& name, const QString& help, const QString& kind) {
        parser.addOption({name, help, kind});
    };
    value(u"build-folder"_s, u"convert a build folder of CMake, Meson or Ninja"_s, u"folder"_s);
    value(u"cmake-source"_s,
          u"let cmake configure a source folder in a folder beside the project file, and convert that"_s, u"folder"_s);
    value(u"cmake-options"_s, u"with --cmake-source: more options for cmake, for example \"-DWITH_X=ON\""_s, u"text"_s);
    value(u"make-folder"_s, u"build in a folder, record the build with bear, and convert the record"_s, u"folder"_s);
    value(u"make-command"_s, u"with --make-folder: the command that builds; without it make"_s, u"command"_s);
    value(u"environment"_s, u"with --make-folder: variables of the build, for example \"CC=gcc-12;V=1\""_s, u"list"_s);
    value(u"visual-studio"_s, u"convert a .sln, .slnx, .vcxproj or .vcxitems file"_s, u"file"_s);
    value(u"configuration"_s, u"with --visual-studio: for example Debug; without it the first"_s, u"name"_s);
    value(u"platform"_s, u"with --visual-studio: for example x64; without it the first"_s, u"name"_s);
}

BuildInputs BuildInputs::from(const QCommandLineParser& parser)
{
    return {.visualStudio = parser.value(u"visual-studio"_s),
            .configuration = {parser.value(u"configuration"_s).trimmed(), parser.value(u"platform"_s).trimmed()},
            .cmakeSource = parser.value(u"cmake-source"_s),
            .cmakeOptions = parser.value(u"cmake-options"_s),
            .make = {.command = parser.value(u"make-command"_s),
                     .folder = parser.value(u"make-folder"_s),
                     .environment = parser.value(u"environment"_s)},
            .buildFolder = parser.value(u"build-folder"_s)};
}

int BuildInputs::count() const
{
    return int(!visualStudio.isEmpty()) + int(!cmakeSource.isEmpty()) + int(!make.folder.isEmpty()) +
           int(!buildFolder.isEmpty());
}

BuildAnswer askBuildSystem(const BuildInputs& inputs, const QString& projectFile, Notices& notices)
{
    if (!inputs.visualStudio.isEmpty()) {
        return {.database = {}, .commands = readVisualStudio(inputs.visualStudio, inputs.configuration, notices)};
    }
    if (!inputs.cmakeSource.isEmpty()) {
        return {.database = configureCMake(inputs.cmakeSource, inputs.cmakeOptions, projectFile), .commands = {}};
    }
    if (!inputs.make.folder.isEmpty()) {
        return {.database = recordMake(inputs.make, projectFile, notices), .commands = {}};
    }
    const QString written = QFileInfo(inputs.buildFolder).absoluteFilePath() + u"/compile_commands.json"_s;
    return {.database = QFileInfo(written).isFile() ? written : describeNinja(inputs.buildFolder, projectFile),
            .commands = {}};
}
