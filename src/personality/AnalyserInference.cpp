// SPDX-License-Identifier: MIT
#include "personality/AnalyserInference.h"
#include "personality/FileScans.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using Scan = bool (*)(const QString&);

// A file that speaks for both, or for neither, decides nothing.
ProjectType byContents(const QString& path, Scan speaksForC, Scan speaksForCpp)
{
    if (path.isEmpty() || !QFile::exists(path)) {
        return ProjectType::Unknown;
    }
    const bool c = speaksForC(path);
    const bool cpp = speaksForCpp(path);
    if (c == cpp) {
        return ProjectType::Unknown;
    }
    return c ? ProjectType::C : ProjectType::Cpp;
}

ProjectType byPlace(const InferenceInput& input)
{
    // An unknown installation has an empty folder, which every path contains.
    if (input.projectFile.contains(input.cInstallDir)) {
        return ProjectType::C;
    }
    return input.projectFile.contains(input.cppInstallDir) ? ProjectType::Cpp : ProjectType::Unknown;
}

ProjectType bySuffix(const InferenceInput& input)
{
    ProjectType type = ProjectType::Unknown;
    input.eachSource([&type](const QString& path) {
        const QStringView suffix = QStringView(path).sliced(path.lastIndexOf(u'.') + 1);
        if (suffix == "cc"_L1 || suffix == "cxx"_L1 || suffix == "cpp"_L1) {
            type = ProjectType::CppBySuffix;
        } else if (suffix == "c"_L1) {
            type = ProjectType::CBySuffix;
        }
        return type != ProjectType::Unknown;
    });
    return type;
}

} // namespace

ProjectType inferAnalyser(const InferenceInput& input)
{
    using namespace FileScans;
    ProjectType type = input.declaredLanguage;
    if (type == ProjectType::Unknown) {
        type = byContents(input.compilerPersonality, mentionsCOnlyOption, mentionsCppOnlyOption);
    }
    if (type == ProjectType::Unknown) {
        type = byContents(input.analyserPersonality, mentionsCOnlyOption, mentionsCppOnlyOption);
    }
    if (type == ProjectType::Unknown) {
        type = byContents(input.metricsPath, hasCMetrics, hasCppMetrics);
    }
    if (type == ProjectType::Unknown) {
        type = byPlace(input);
    }
    return type == ProjectType::Unknown ? bySuffix(input) : type;
}
