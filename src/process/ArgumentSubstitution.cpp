// SPDX-License-Identifier: MIT
#include "process/ArgumentSubstitution.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"
#include "personality/ProductNames.h"
#include "process/WizardState.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void SubstituteArgument(QStringList& arguments, const QString& placeholder, const QString& value, const QString& prefix,
                        bool quote)
{
    static const QRegularExpression whiteSpace(u"\\s"_s, QRegularExpression::UseUnicodePropertiesOption);
    if (placeholder.isEmpty()) {
        return;
    }
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (!arguments[i].contains(placeholder)) {
            continue;
        }
        QString argument = QString(arguments[i]).replace(placeholder, value);
        const bool isEmpty = argument.isEmpty();
        if (quote && argument.contains(whiteSpace)) {
            argument = u'"' + argument + u'"';
        }
        arguments[i] = argument;
        if (!prefix.isEmpty() && !isEmpty) {
            arguments.insert(i, prefix);
            ++i;
        }
    }
}

QStringList conversionArguments(const WizardState& state)
{
    QStringList arguments = state.projectCreator->exeArgs;
    const QString via = u"-via"_s;
    // Each "+" form goes before the plain one, which is a prefix of it.
    SubstituteArgument(arguments, u"%Q"_s, ProductNames::of(state.isORVC).shortName);
    SubstituteArgument(arguments, u"%D"_s, state.fileDir);
    SubstituteArgument(arguments, u"%J"_s, state.fileName);
    SubstituteArgument(arguments, u"%PF"_s, state.ProjectFile());
    const auto& kinds = configurationKinds();
    for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind) {
        const QString& file = state.configuration(kind->kind);
        SubstituteArgument(arguments, kind->placeholder + u'+', file, via);
        SubstituteArgument(arguments, kind->placeholder, file);
    }
    for (const auto& input : state.projectCreator->inputData) {
        SubstituteArgument(arguments, input->argument, input->value, input->prefix);
    }
    return arguments;
}
