// SPDX-License-Identifier: MIT
#include "process/ArgumentSubstitution.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/DefinitionRecords.h"
#include "personality/ProductNames.h"
#include "process/WizardState.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

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

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(ArgumentSubstitution)
};

struct Substitution
{
    QString placeholder;
    QString value;
    QString prefix = {};
};

// In their order: each "+" form goes before the plain one, which is a prefix of it.
QList<Substitution> substitutions(const WizardState& state)
{
    QList<Substitution> list{{u"%Q"_s, ProductNames::of(state.isORVC).shortName},
                             {u"%D"_s, state.fileDir},
                             {u"%J"_s, state.fileName},
                             {u"%PF"_s, state.ProjectFile()}};
    const auto& kinds = configurationKinds();
    for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind) {
        const QString& file = state.configuration(kind->kind);
        list += {kind->placeholder + u'+', file, u"-via"_s};
        list += {kind->placeholder, file};
    }
    for (const auto& input : state.projectCreator->inputData) {
        list += {input->argument, input->value, input->prefix};
    }
    return list;
}

} // namespace

QStringList conversionArguments(const WizardState& state)
{
    QStringList arguments = state.projectCreator->exeArgs;
    const QList<Substitution> list = substitutions(state);
    for (const auto& [placeholder, value, prefix] : list) {
        SubstituteArgument(arguments, placeholder, value, prefix);
    }
    return arguments;
}

QStringList placeholdersInValues(const WizardState& state)
{
    QStringList sentences;
    const QList<Substitution> list = substitutions(state);
    const auto isUsed = [&](const QString& placeholder) {
        return std::ranges::any_of(state.projectCreator->exeArgs,
                                   [&](const QString& argument) { return argument.contains(placeholder); });
    };
    for (qsizetype i = 0; i < list.size(); ++i) {
        for (qsizetype later = i + 1; later < list.size() && isUsed(list[i].placeholder); ++later) {
            const QString& placeholder = list[later].placeholder;
            if (!placeholder.isEmpty() && list[i].value.contains(placeholder)) {
                sentences += Text::tr("Warning: \"%1\" holds %2, which this conversion type replaces: the conversion "
                                      "program gets another text. Choose a name without it.")
                                 .arg(list[i].value, placeholder);
            }
        }
    }
    sentences.removeDuplicates();
    return sentences;
}
