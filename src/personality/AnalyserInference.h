// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// Which analyser a project belongs to, with the numbers that project files use.
enum class ProjectType { C = 0, Cpp = 1, CBySuffix = 2, CppBySuffix = 3, Unknown = 4 };

/// What the inference looks at.
struct InferenceInput
{
    ProjectType declaredLanguage = ProjectType::Unknown;
    /// The root's settings as they stand in the file.
    QString compilerPersonality;
    QString analyserPersonality;
    /// The first metrics file that exists.
    QString metricsPath;
    QString projectFile;
    QString cInstallDir;
    QString cppInstallDir;
    /// Calls its argument with each source path, in the project's order, until that returns true.
    std::function<void(const std::function<bool(const QString&)>&)> eachSource;
};

/// The declared analyser, else what the personalities, the metrics, the project file's place and the sources' suffixes
/// tell, in this order.
ProjectType inferAnalyser(const InferenceInput& input);
