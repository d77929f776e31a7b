// SPDX-License-Identifier: MIT
#include "project/ProjectReader.h"
#include "project/ProjectData.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView bodyStart("StartProjectMarker");
constexpr QLatin1StringView filesEnd("EndContainedFilesMarker");
constexpr QLatin1StringView nestedStart("StartSubProjectMarker");
constexpr QLatin1StringView nestedEnd("EndSubProjectMarker");
constexpr QLatin1StringView analysisAnnotation("*lastAnalysis=");

} // namespace

ProjectReader::ProjectReader(QIODevice& device, QStringConverter::Encoding encoding, ProjectData& rootProject)
    : stream(&device)
    , root(rootProject)
{
    stream.setEncoding(encoding);
}

bool ProjectReader::read()
{
    nextLine();
    versioned = line.startsWith("VersionTag"_L1, Qt::CaseInsensitive);
    while (nextLine()) {
        if (line == bodyStart) {
            readBody(root);
            readNested(root);
            return !broken;
        }
    }
    return false;
}

bool ProjectReader::nextLine()
{
    // A device that can not be read further is not at its end.
    if (ended || !stream.readLineInto(&line, longestLine) || line.size() >= longestLine) {
        broken = broken || line.size() >= longestLine;
        ended = true;
        line = QString();
        return false;
    }
    return true;
}

// One annotation of each kind is taken at a time, the language first.
void ProjectReader::takeAnnotations()
{
    if (line.startsWith("*project=ORVCPP"_L1)) {
        declaredLanguage = ProjectType::Cpp;
        nextLine();
    } else if (line.startsWith("*project=ORVC"_L1)) {
        declaredLanguage = ProjectType::C;
        nextLine();
    }
    if (line.startsWith(analysisAnnotation)) {
        lastAnalysis = QString(line).remove(analysisAnnotation);
        nextLine();
    }
}

void ProjectReader::readBody(ProjectData& project)
{
    if (versioned) {
        readVersionedBody(project);
    } else {
        readUnversionedBody(project);
    }
    nextLine();
    takeAnnotations();
}

void ProjectReader::readUnversionedBody(ProjectData& project)
{
    const auto nextText = [this] {
        nextLine();
        return line;
    };
    project.name = nextText();
    nextLine();
    project.setOutputDir(nextText());
    project.setSourceDir(nextText());
    // The line at the end of the file is never a source.
    for (nextLine(); !ended && !stream.atEnd() && line != filesEnd; nextLine()) {
        project.files.emplaceBack(line, project);
    }
    project.messagePersonality = nextText();
    project.analyserPersonality = nextText();
    project.compilerPersonality = nextText();
}

void ProjectReader::readVersionedBody(ProjectData& project)
{
    project.name = nextValue();
    project.setSourceDir(nextValue());
    project.setOutputDir(nextValue());
    project.messagePersonality = nextValue();
    project.analyserPersonality = nextValue();
    project.compilerPersonality = nextValue();
    nextLine();
    takeAnnotations();
    while (!ended && !stream.atEnd() && line != filesEnd) {
        project.files.emplaceBack(line, project);
        nextLine();
        takeAnnotations();
    }
}

// The value ends at a second "=", as all readers of the format have it.
QString ProjectReader::nextValue()
{
    nextLine();
    return line.section(u'=', 1, 1);
}

// Reads all sub-projects in one loop: a body moves the cursor to the parent it was read under.
void ProjectReader::readNested(ProjectData& rootProject)
{
    ProjectData* current = &rootProject;
    ProjectData* cursor = nullptr;
    while (!ended && !stream.atEnd()) {
        if (line == nestedStart) {
            cursor = current;
        } else if (line == nestedEnd) {
            cursor = cursor ? cursor->parent : nullptr;
        } else if (line == bodyStart && cursor) {
            current = &cursor->addSubProject();
            readBody(*current);
            continue;
        }
        nextLine();
        takeAnnotations();
    }
}
