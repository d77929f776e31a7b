// SPDX-License-Identifier: MIT
#include "ProjectText.h"
#include "Arguments.h"
#include "Failure.h"
#include "Paths.h"
#include "PersonalityFiles.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// Readers take a line for a value and cut the value at its first "=".
void checkValue(const QString& value, const QString& what)
{
    if (value.contains(u'=') || value.contains(u'\n') || value.contains(u'\r')) {
        throw Failure{u"%1: the %2 holds \"=\" or a line break, which a project file can not. Rename it."_s.arg(
            QString(value).replace(u'\n', u' '), what)};
    }
}

// File lines, unlike values, may hold "=": such a folder becomes a piece of them.
QString folderForValue(QString folder)
{
    while (folder.contains(u'=') && Paths::folderOf(folder) != folder) {
        folder = Paths::folderOf(folder);
    }
    return folder;
}

QString fileLine(const QString& file, const QString& sourceDir, bool absolutePaths)
{
    if (file.contains(u'\n') || file.contains(u'\r')) {
        throw Failure{u"%1: the name holds a line break, which a project file can not. Rename the file."_s.arg(
            QString(file).replace(u'\n', u' '))};
    }
    if (absolutePaths || !Paths::isBelow(file, sourceDir)) {
        return file;
    }
    const QString relative = file.sliced(sourceDir.size() + (sourceDir.endsWith(u'/') ? 0 : 1));
    // A name must not be taken for an annotation, a marker or one of Qt's own files.
    const bool isOdd = relative.startsWith(u'*') || relative.startsWith(u':') || relative.endsWith("Marker"_L1);
    return isOdd ? u"./"_s + relative : relative;
}

} // namespace

ProjectText::ProjectText(const Arguments& wanted, const PersonalityFiles& personalities)
    : arguments(wanted)
    , files(personalities)
    , outputFolder(wanted.outputFolder.isEmpty()
                       ? QFileInfo(wanted.output).absolutePath() + u'/' + wanted.name + u".out"_s
                       : wanted.outputFolder)
{
}

QByteArray ProjectText::of(const ProjectTree& tree)
{
    text.clear();
    line(u"VersionTag 45"_s);
    const QString message = arguments.messagePersonality.isEmpty() ? u"default string"_s : arguments.messagePersonality;
    body(tree.root, {message, files.rootAnalyser(), files.rootCompiler(tree)},
         arguments.forC ? u"*project=ORVC"_s : u"*project=ORVCPP"_s);
    if (!tree.parts.isEmpty()) {
        line(u"StartSubProjectMarker"_s);
        for (const ProjectTree::Node& part : tree.parts) {
            body(part, {u"inherit string"_s, files.analyserOf(part), files.compilerOf(part)}, {});
        }
        line(u"EndSubProjectMarker"_s);
    }
    // Readers never look at the last line.
    line(u"EndOfProjectFile"_s);
    return std::move(text);
}

void ProjectText::value(QLatin1StringView key, const QString& content)
{
    checkValue(content, key);
    line(key + u'=' + content);
}

void ProjectText::body(const ProjectTree::Node& node, const Personalities& personalities, const QString& annotation)
{
    const QString sourceDir = folderForValue(node.sourceDir);
    line(u"StartProjectMarker"_s);
    value("name"_L1, node.name);
    value("sourceDir"_L1, sourceDir);
    value("outputDir"_L1, node.outputSubFolder.isEmpty() ? outputFolder : outputFolder + u'/' + node.outputSubFolder);
    value("messagePersonality"_L1, personalities.message);
    value("analyserPersonality"_L1, personalities.analyser);
    value("compilerPersonality"_L1, personalities.compiler);
    if (!annotation.isEmpty()) {
        line(annotation);
    }
    for (const QString& file : node.files) {
        line(fileLine(file, sourceDir, arguments.absolutePaths));
    }
    line(u"EndContainedFilesMarker"_s);
}
