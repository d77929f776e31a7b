// SPDX-License-Identifier: MIT
#include "definitions/CreatorCheck.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"
#include "definitions/DefinitionsXml.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(DefinitionsReader)
};

QStringList placeholders(const ProjectCreatorData& creator)
{
    QStringList known{u"%Q"_s, u"%D"_s, u"%J"_s, u"%PF"_s};
    for (const ConfigurationFacts& kind : configurationKinds()) {
        known += {QString(kind.placeholder) + u'+', QString(kind.placeholder)};
    }
    for (const auto& input : creator.inputData) {
        if (!input->argument.isEmpty()) {
            known += input->argument;
        }
    }
    return known;
}

// In the order in which a run replaces them.
QString withoutPlaceholders(QString argument, const QStringList& known)
{
    for (const QString& placeholder : known) {
        argument.remove(placeholder);
    }
    return argument;
}

void checkPlaceholders(DefinitionsReader& xml, const ProjectCreatorData& creator, qint64 line)
{
    static const QRegularExpression placeholder(u"%[A-Za-z]\\w*\\+?"_s);
    const QStringList known = placeholders(creator);
    for (const QString& argument : creator.exeArgs) {
        const auto match = placeholder.match(withoutPlaceholders(argument, known));
        if (match.hasMatch()) {
            xml.remarkAt(line, Text::tr("%1 in <exeargs> stands for nothing: no input of \"%2\" has it in its <argDef>")
                                   .arg(match.captured(), creator.name));
        }
    }
    for (const auto& input : creator.inputData) {
        const auto holds = [&](const QString& argument) { return argument.contains(input->argument); };
        if (!input->argument.isEmpty() && std::ranges::none_of(creator.exeArgs, holds)) {
            xml.remarkAt(line, Text::tr("the value of the input \"%1\" reaches no argument: %2 is not in <exeargs>")
                                   .arg(input->displayName, input->argument));
        }
    }
}

} // namespace

void checkCreator(DefinitionsReader& xml, const ProjectCreatorData& creator, qint64 argumentsLine)
{
    if (!xml.isChecked()) {
        return;
    }
    if (creator.name.isEmpty()) {
        xml.remarkAt(creator.line, Text::tr("<projectCreator> has no <name> and can not be chosen"));
    }
    if (creator.exe.isEmpty()) {
        xml.remarkAt(creator.line, Text::tr("<projectCreator> has no <exe> and can not be run"));
    }
    if (!creator.orvcProject && !creator.orvcppProject) {
        xml.remarkAt(creator.line, Text::tr("<projectCreator> serves no analyser: neither <orvcProject> nor "
                                            "<orvcppProject> is 1"));
    }
    checkPlaceholders(xml, creator, argumentsLine);
}
