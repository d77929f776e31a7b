// SPDX-License-Identifier: MIT
#include "ProjectWriter.h"
#include "Arguments.h"
#include "Failure.h"
#include "ProjectTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView optionsHeader("* Include folders and defines of the converted build; written by prjconv");

QString orDefault(const QString& personality)
{
    return personality.isEmpty() ? u"default string"_s : personality;
}

// Readers take a line for a value and cut the value at its first "=".
void checkValue(const QString& value, const QString& what)
{
    if (value.contains(u'=') || value.contains(u'\n') || value.contains(u'\r')) {
        throw Failure{u"%1: the %2 holds \"=\" or a line break, which a project file can not. Rename it."_s.arg(
            QString(value).replace(u'\n', u' '), what)};
    }
}

QString fileLine(const QString& file, const QString& sourceDir, bool absolutePaths)
{
    if (file.contains(u'\n') || file.contains(u'\r')) {
        throw Failure{u"%1: the name holds a line break, which a project file can not. Rename the file."_s.arg(
            QString(file).replace(u'\n', u' '))};
    }
    const QString prefix = sourceDir.endsWith(u'/') ? sourceDir : sourceDir + u'/';
    if (absolutePaths || !file.startsWith(prefix)) {
        return file;
    }
    const QString relative = file.sliced(prefix.size());
    // A name must not be taken for an annotation, a marker or one of Qt's own resources.
    const bool isOdd = relative.startsWith(u'*') || relative.startsWith(u':') || relative.endsWith("Marker"_L1);
    return isOdd ? u"./"_s + relative : relative;
}

class ProjectText
{
public:
    explicit ProjectText(const Arguments& wanted)
        : arguments(wanted)
        , outputFolder(wanted.outputFolder.isEmpty()
                           ? QFileInfo(wanted.output).absolutePath() + u'/' + wanted.name + u".out"_s
                           : wanted.outputFolder)
    {
    }

    QString write(const ProjectTree& tree, const QString& analyserPersonality)
    {
        line(u"VersionTag 45"_s);
        body(tree.root,
             {orDefault(arguments.messagePersonality), orDefault(analyserPersonality),
              orDefault(arguments.compilerPersonality)},
             arguments.forC ? u"*project=ORVC"_s : u"*project=ORVCPP"_s);
        if (!tree.subProjects.isEmpty()) {
            line(u"StartSubProjectMarker"_s);
            const QString inherit = u"inherit string"_s;
            for (const ProjectTree::Node& node : tree.subProjects) {
                body(node, {inherit, inherit, inherit}, {});
            }
            line(u"EndSubProjectMarker"_s);
        }
        // Readers never look at the last line.
        line(u"EndOfProjectFile"_s);
        return text;
    }

private:
    void line(const QString& content) { text += content + u'\n'; }

    void value(QLatin1StringView key, const QString& content)
    {
        checkValue(content, key);
        line(key + u'=' + content);
    }

    void body(const ProjectTree::Node& node, const QStringList& personalities, const QString& annotation)
    {
        line(u"StartProjectMarker"_s);
        value("name"_L1, node.name);
        value("sourceDir"_L1, node.sourceDir);
        value("outputDir"_L1,
              node.outputSubFolder.isEmpty() ? outputFolder : outputFolder + u'/' + node.outputSubFolder);
        value("messagePersonality"_L1, personalities[0]);
        value("analyserPersonality"_L1, personalities[1]);
        value("compilerPersonality"_L1, personalities[2]);
        if (!annotation.isEmpty()) {
            line(annotation);
        }
        for (const QString& file : node.files) {
            line(fileLine(file, node.sourceDir, arguments.absolutePaths));
        }
        line(u"EndContainedFilesMarker"_s);
    }

    const Arguments& arguments;
    QString outputFolder;
    QString text;
};

QString oneLine(const QString& option)
{
    if (option.contains(u'\n') || option.contains(u'\r')) {
        throw Failure{
            u"%1: this include folder or define holds a line break, which an option file can not. Change it."_s.arg(
                QString(option).replace(u'\n', u' '))};
    }
    return option;
}

QString optionsText(const ProjectTree& tree, const Arguments& arguments)
{
    QString text = optionsHeader + u'\n';
    if (!arguments.analyserPersonality.isEmpty()) {
        text += u"-via \"%1\"\n"_s.arg(arguments.analyserPersonality);
    }
    for (const QString& folder : tree.includeFolders) {
        text += u"-i \"%1\"\n"_s.arg(oneLine(folder));
    }
    for (const QString& define : tree.defines) {
        text += u"-d %1\n"_s.arg(oneLine(define));
    }
    return text;
}

void refuseForeignFile(const QString& name)
{
    QFile file(name);
    if (file.open(QIODevice::ReadOnly) && !file.readLine().startsWith(optionsHeader.latin1())) {
        throw Failure{
            u"%1: is there already and was not written by this program. Move it away or choose another project "
            "name."_s.arg(name)};
    }
}

void open(QSaveFile& file)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        throw Failure{
            u"%1: can not be written (%2). Choose another folder."_s.arg(file.fileName(), file.errorString())};
    }
}

void commit(QSaveFile& file)
{
    if (!file.commit()) {
        throw Failure{u"%1: can not be written (%2)."_s.arg(file.fileName(), file.errorString())};
    }
}

} // namespace

void writeProject(const ProjectTree& tree, const Arguments& arguments)
{
    const bool hasOptions = !tree.includeFolders.isEmpty() || !tree.defines.isEmpty();
    const QFileInfo project(arguments.output);
    const QString optionsName = project.absolutePath() + u'/' + project.completeBaseName() + u".options.p_a"_s;
    const QString text = ProjectText(arguments).write(tree, hasOptions ? optionsName : arguments.analyserPersonality);

    QSaveFile projectFile(arguments.output);
    open(projectFile);
    projectFile.write(text.toLocal8Bit());
    if (!hasOptions) {
        commit(projectFile);
        return;
    }
    refuseForeignFile(optionsName);
    const bool optionsExisted = QFile::exists(optionsName);
    QSaveFile options(optionsName);
    open(options);
    options.write(optionsText(tree, arguments).toLocal8Bit());
    commit(options);
    try {
        commit(projectFile);
    } catch (const Failure&) {
        if (!optionsExisted) {
            QFile::remove(optionsName);
        }
        throw;
    }
}
