// SPDX-License-Identifier: MIT
#include "RecordTexts.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"

using namespace Qt::StringLiterals;

Facts facts(const ArgumentDefinition& field)
{
    const QStringList kinds{u"file"_s, u"dir"_s, u"group"_s, u"check"_s, u"radio"_s, u"edit"_s};
    return {u"name kind key help needed exists out ext sep columns prefix arg forC forCpp c cpp fields"_s,
            {field.displayName, kinds.at(int(field.inputType)), field.key, field.hoverHelp, field.mustBeSet,
             field.fileMustExist, field.outputString, field.extension, field.separator, field.columns, field.prefix,
             field.argument, field.cOnly, field.cppOnly, field.cDefaultValue, field.cppDefaultValue,
             described(field.children)}};
}

Facts facts(const ProjectCreatorData& type)
{
    return {u"name forC forCpp exe args cc cppc ca cppa cm cppm hasM hasA hasC"_s,
            {type.name, type.orvcProject, type.orvcppProject, type.exe, type.exeArgs.join(u','),
             type.cCompilerPersonality, type.cppCompilerPersonality, type.cAnalyserPersonality,
             type.cppAnalyserPersonality, type.cMessagePersonality, type.cppMessagePersonality,
             type.hasMessagePersonality, type.hasAnalyserPersonality, type.hasCompilerPersonality}};
}

Facts facts(const ComplianceModule& module)
{
    return {u"name forC place c a m"_s,
            {module.name, module.isC, module.location, module.compilerPersonality, module.analyserPersonality,
             module.messagePersonality}};
}

Facts facts(const CodingStandard& standard)
{
    return {u"name forC about c a m"_s,
            {standard.name, standard.isC, standard.description, standard.compilerPersonality,
             standard.analyserPersonality, standard.messagePersonality}};
}

Facts facts(const CrossModuleAnalysis& analysis)
{
    return {u"exe args"_s, {analysis.exe, analysis.exeArgs.join(u',')}};
}

Facts facts(const PageData& page)
{
    return {u"attribute title subtitle help columns width height across down launchers conditions"_s,
            {page.titleAttribute, page.title, page.subtitle, page.helpPage, page.columns, page.buttonWidth,
             page.buttonHeight, page.horizontalSpacing, page.verticalSpacing, qulonglong(page.applications.size()),
             page.conditions.size()}};
}
