// SPDX-License-Identifier: MIT
#include "batch/BatchArguments.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchArguments)
};

// Options of the whole program: they are read elsewhere, here only their values are stepped over.
bool isSharedSwitch(const QString& option)
{
    return option == "-batch"_L1 || option == "-c"_L1 || option == "-cpp"_L1 || option == "-trace"_L1;
}

bool isSharedWithValue(const QString& option)
{
    return option == "-file"_L1 || option == "-tracefile"_L1 || option == "-mp"_L1 || option == "-ap"_L1 ||
           option == "-cp"_L1;
}

void addInput(BatchArguments& batch, const QString& text)
{
    if (text.indexOf(u'=') < 1) {
        batch.error = Text::tr("-input wants <name>=<value>, not \"%1\"").arg(text);
        return;
    }
    batch.inputs += text;
}

void takeValue(BatchArguments& batch, const QString& option, const QString& value)
{
    if (option == "-prj"_L1) {
        batch.projectFile = value;
    } else if (option == "-type"_L1) {
        batch.type = value;
    } else if (option == "-list-inputs"_L1) {
        batch.task = BatchArguments::Task::ListInputs;
        batch.type = value;
    } else if (option == "-input"_L1) {
        addInput(batch, value);
    }
}

bool takesValue(const QString& option)
{
    return option == "-prj"_L1 || option == "-type"_L1 || option == "-list-inputs"_L1 || option == "-input"_L1 ||
           isSharedWithValue(option);
}

bool takeSwitch(BatchArguments& batch, const QString& option)
{
    if (option == "-overwrite"_L1) {
        batch.overwrite = true;
    } else if (option == "--json"_L1) {
        batch.json = true;
    } else if (option == "-list-types"_L1) {
        batch.task = BatchArguments::Task::ListTypes;
    } else {
        return isSharedSwitch(option);
    }
    return true;
}

void checkConversion(BatchArguments& batch)
{
    if (batch.projectFile.isEmpty()) {
        batch.error = Text::tr("-prj <file> is missing: the project file to be created");
    } else if (batch.type.isEmpty()) {
        batch.error = Text::tr("-type <name> is missing: the conversion type; -batch -list-types lists them");
    }
}

} // namespace

BatchArguments BatchArguments::parse(const QStringList& arguments)
{
    BatchArguments batch;
    for (qsizetype i = 1; i < arguments.size() && batch.error.isEmpty(); ++i) {
        const QString& option = arguments[i];
        if (takesValue(option)) {
            if (i + 1 == arguments.size()) {
                batch.error = Text::tr("%1 wants a value").arg(option);
                break;
            }
            takeValue(batch, option, arguments[++i]);
        } else if (!takeSwitch(batch, option)) {
            batch.error = Text::tr("unknown argument \"%1\"").arg(option);
        }
    }
    const bool asksForConversion = !batch.projectFile.isEmpty() || !batch.type.isEmpty() || !batch.inputs.isEmpty();
    if (batch.task == Task::Usage && asksForConversion) {
        batch.task = Task::Convert;
        if (batch.error.isEmpty()) {
            checkConversion(batch);
        }
    }
    return batch;
}

bool BatchArguments::isBatch(const QStringList& arguments)
{
    return arguments.mid(1).contains("-batch"_L1);
}

QString BatchArguments::usage()
{
    return Text::tr("Usage: ProjectCreation -batch -prj <file> -type <name> [options]\n"
                    "  Converts a build description to a project file without a window.\n"
                    "  -prj <file>            project file to be created\n"
                    "  -type <name>           conversion type\n"
                    "  -input <name>=<value>  value of an input of that type; may be repeated\n"
                    "  -c, -cpp               analyser, where the type and the installation leave it open\n"
                    "  -mp, -ap, -cp <file>   message, analyser and compiler personality\n"
                    "  -overwrite             replace an existing project file\n"
                    "  -file <file>           definitions file\n"
                    "  -trace, -tracefile <file>\n"
                    "       ProjectCreation -batch -list-types [--json]\n"
                    "       ProjectCreation -batch -list-inputs <type> [--json]\n"
                    "Exit status: 0 the project file was created, 1 the conversion failed, 2 wrong arguments.\n");
}
