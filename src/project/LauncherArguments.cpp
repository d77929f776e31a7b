// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "definitions/PathHelpers.h"
#include "project/Project.h"
#include "project/ProjectReader.h"
#include "project/ProjectSurvey.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString viaLine(const QString& path)
{
    return !path.isEmpty() && QFile::exists(path) ? u"-via "_s + QuotedNativePath(path) + u'\n' : QString();
}

QString cannotWrite(const QFile& file)
{
    return ProjectData::tr("The temporary file %1 can not be written: %2. Make room in its folder or make it writable.")
        .arg(file.fileName(), file.errorString());
}

/// A new temporary file's name; without one problem says why.
QString temporaryName(const QString& suffix, QString& problem)
{
    QString name = appRegistry->CreateTempFileName(suffix);
    if (name.isEmpty() && problem.isEmpty()) {
        problem = ProjectData::tr("A temporary file can not be made in %1. Make room there or make it writable.")
                      .arg(QDir::toNativeSeparators(QDir::tempPath()));
    }
    return name;
}

} // namespace

QString ProjectData::projectOptionText() const
{
    QString text = u"-outputpath "_s + QuotedNativePath(outputFolder()) + u'\n';
    for (const QString& personality :
         {resolvedMessagePersonality(), resolvedAnalyserPersonality(), resolvedCompilerPersonality()}) {
        text += viaLine(personality);
    }
    for (const auto& standard : appRegistry->definitions.codingStandards) {
        if (standard->available && standard->selected) {
            text += viaLine(standard->messagePersonality) + viaLine(standard->analyserPersonality) +
                    viaLine(standard->compilerPersonality);
        }
    }
    return text;
}

QString ProjectData::projectOptionFile(QString& problem)
{
    const QString text = projectOptionText();
    if (viaFilePath.isEmpty()) {
        viaFilePath = temporaryName(u".via"_s, problem);
        lastViaText.clear();
    }
    if (text != lastViaText && !viaFilePath.isEmpty()) {
        QFile file(viaFilePath);
        const QByteArray bytes = text.toLocal8Bit();
        // A file that could be written only in part holds neither text.
        lastViaText.clear();
        if (file.open(QIODevice::WriteOnly | QIODevice::Text) && file.write(bytes) == bytes.size() && file.flush()) {
            lastViaText = text;
        } else {
            problem = cannotWrite(file);
        }
    }
    return viaFilePath;
}

void ProjectData::crossModuleListText(QTextStream& stream) const
{
    const AnalysedFiles analysed = ProjectSurvey().analysedFiles(*this);
    visitProjects([&](const ProjectData& project) {
        if (analysed.countBelow.value(&project) > 0) {
            stream << "-outputpath " << QuotedNativePath(project.outputFolder()) << '\n';
            for (const SourceEntry* entry : analysed.own.value(&project)) {
                stream << QuotedNativePath(entry->sourcePath()) << '\n';
            }
        }
        return false;
    });
    if (!parent) {
        stream << "-cmaf " << QuotedNativePath(JoinPath(outputFolder(), name)) << '\n';
    }
}

QString ProjectData::crossModuleListFile(QString& problem) const
{
    QString fileName = temporaryName(u".lst"_s, problem);
    QFile file(fileName);
    if (fileName.isEmpty()) {
        return {};
    }
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        problem = cannotWrite(file);
        return fileName;
    }
    QTextStream stream(&file);
    stream.setEncoding(ProjectReader::encoding);
    crossModuleListText(stream);
    stream.flush();
    if (!file.flush() || file.error() != QFile::NoError) {
        problem = cannotWrite(file);
    }
    return fileName;
}

QStringList Project::expandLauncherArguments(const QStringList& arguments, const QString& analyser,
                                             const QString& extraOptionFile, QString* problem)
{
    QString trouble;
    const QString optionFile = root.projectOptionFile(trouble);
    const QString listFile = root.crossModuleListFile(trouble);
    QStringList result;
    for (const QString& item : arguments) {
        if (item == "%Q"_L1) {
            result += analyser;
        } else if (item == "%PF"_L1) {
            result += projectFile;
        } else if (item == "%P+"_L1) {
            result += {u"-via"_s, optionFile};
            if (!extraOptionFile.isEmpty()) {
                result += {u"-via"_s, extraOptionFile};
            }
        } else if (item == "%P"_L1) {
            result += optionFile;
        } else if (item == "%L+"_L1) {
            result += {u"-list"_s, listFile};
        } else if (item == "%L"_L1) {
            result += listFile;
        } else if (item == "%R+"_L1) {
            result += {u"-file"_s, temporaryName(u".txt"_s, trouble)};
        } else if (item == "%R"_L1) {
            result += temporaryName(u".txt"_s, trouble);
        } else {
            result += item;
        }
    }
    if (problem) {
        *problem = trouble;
    }
    return result;
}
