// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class ProjectData;
class QTextStream;

/// The texts that tell an analyser's tools of a project. Paths stand in double quotes, in native form.
namespace OptionTexts {

/// The project's output folder, then its personalities and the standards' option files, as far as they exist.
QString projectOptions(const ProjectData& project, const QStringList& standardFiles);

/// The analysed files of the tree with the output folder of each part, and for a root its cross-module analysis file.
void crossModuleList(const ProjectData& project, QTextStream& stream);

} // namespace OptionTexts
