// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"
#include "wizard/WizardState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

bool CommandLine::endsProgram(const QStringList& arguments)
{
    const QStringList options = arguments.mid(1);
    return options.contains("-ver"_L1) || options.contains("-help"_L1);
}

void CommandLine::preset(const QStringList& arguments, WizardState& state)
{
    bool compilerGiven = false;
    bool analyserGiven = false;
    bool messageGiven = false;
    const auto takeFile = [](const QString& file, QString& field, bool& given) {
        field = file;
        given |= QFile::exists(file);
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& option = arguments[i];
        if (option == "-c"_L1 || option == "-cpp"_L1) {
            state.cAvailable = option == "-c"_L1;
            state.cppAvailable = !state.cAvailable;
        }
        if (i + 1 == arguments.size()) {
            break;
        }
        const QString& value = arguments[i + 1];
        if (option == "-cp"_L1) {
            takeFile(value, state.compilerPersonality, compilerGiven);
        } else if (option == "-ap"_L1) {
            takeFile(value, state.analyserPersonality, analyserGiven);
        } else if (option == "-mp"_L1) {
            takeFile(value, state.messagePersonality, messageGiven);
        } else if (option == "-prj"_L1) {
            const QFileInfo file(value);
            state.fileDir = QDir::toNativeSeparators(file.absolutePath());
            state.fileName = file.baseName();
        }
    }
    state.personalitiesGiven = compilerGiven && analyserGiven && messageGiven;
}
