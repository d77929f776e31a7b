// SPDX-License-Identifier: MIT
#include "batch/BatchArguments.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Task = BatchArguments::Task;

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchArguments)
};

enum class Value { None, One, Many };

constexpr unsigned in(Task task)
{
    return 1U << unsigned(task);
}

constexpr unsigned everywhere = ~0U;
constexpr unsigned converting = in(Task::Convert);
constexpr unsigned running = in(Task::Convert) | in(Task::Run);

struct Option
{
    QLatin1StringView name;
    Value value = Value::None;
    /// The tasks that it goes with.
    unsigned tasks = everywhere;
    /// The task that it asks for, if any.
    Task asked = Task::Usage;
};

constexpr std::array options = {
    Option{"-batch"_L1},
    Option{"-trace"_L1},
    Option{"-tracefile"_L1, Value::One},
    Option{"-file"_L1, Value::One},
    Option{"-help"_L1, Value::None, everywhere, Task::Help},
    Option{"--help"_L1, Value::None, everywhere, Task::Help},
    Option{"-h"_L1, Value::None, everywhere, Task::Help},
    Option{"-list-types"_L1, Value::None, in(Task::ListTypes), Task::ListTypes},
    Option{"-list-inputs"_L1, Value::One, in(Task::ListInputs), Task::ListInputs},
    Option{"-check"_L1, Value::One, in(Task::Check), Task::Check},
    Option{"-run"_L1, Value::One, in(Task::Run), Task::Run},
    Option{"-type"_L1, Value::One, converting},
    Option{"-input"_L1, Value::Many, converting},
    Option{"-mp"_L1, Value::One, converting},
    Option{"-ap"_L1, Value::One, converting},
    Option{"-cp"_L1, Value::One, converting},
    Option{"-module"_L1, Value::One, converting},
    Option{"-overwrite"_L1, Value::None, converting},
    Option{"-dry-run"_L1, Value::None, converting},
    Option{"-prj"_L1, Value::One, running},
    Option{"-c"_L1, Value::None, running},
    Option{"-cpp"_L1, Value::None, running},
    Option{"-timeout"_L1, Value::One, running},
    Option{"-quiet"_L1, Value::None, running},
    Option{"--json"_L1, Value::None, converting | in(Task::ListTypes) | in(Task::ListInputs)},
};

struct Given
{
    const Option* option;
    QString value;
};

QString readOptions(const QStringList& arguments, QList<Given>& given)
{
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& name = arguments[i];
        const auto* const option =
            std::ranges::find_if(options, [&](const Option& known) { return name == known.name; });
        if (option == options.end()) {
            return Text::tr("unknown argument \"%1\"; -batch -help lists them").arg(name);
        }
        if (option->value == Value::None) {
            given += Given{option, {}};
            continue;
        }
        if (i + 1 == arguments.size()) {
            return Text::tr("%1 wants a value").arg(name);
        }
        const auto isSame = [&](const Given& earlier) { return earlier.option == option; };
        if (option->value == Value::One && std::ranges::any_of(given, isSame)) {
            return Text::tr("%1 is given twice").arg(name);
        }
        given += Given{option, arguments[++i]};
    }
    return {};
}

// An option that asks for a task decides; a conversion is what all the others are for.
QString decideTask(const QList<Given>& given, Task& task)
{
    const Option* decider = nullptr;
    for (const auto& [option, value] : given) {
        if (option->asked == Task::Help) {
            task = Task::Help;
            return {};
        }
        if (option->asked == Task::Usage) {
            continue;
        }
        if (decider && decider != option) {
            return Text::tr("%1 does not go with %2").arg(decider->name, option->name);
        }
        decider = option;
    }
    const auto isForConversion = [](const Given& one) {
        return one.option->tasks != everywhere && (one.option->tasks & converting) != 0 &&
               one.option->name != "-c"_L1 && one.option->name != "-cpp"_L1;
    };
    task = decider ? decider->asked : std::ranges::any_of(given, isForConversion) ? Task::Convert : Task::Usage;
    for (const auto& [option, value] : given) {
        if (decider && (option->tasks & in(task)) == 0) {
            return Text::tr("%1 does not go with %2").arg(option->name, decider->name);
        }
    }
    return {};
}

QString takeTimeout(BatchArguments& batch, const QString& value)
{
    constexpr int longest = 7 * 24 * 3600;
    batch.timeoutSeconds = value.toInt();
    return batch.timeoutSeconds > 0 && batch.timeoutSeconds <= longest
               ? QString()
               : Text::tr("-timeout wants a number of seconds from 1 to %1, not \"%2\"").arg(longest).arg(value);
}

QString takeInput(BatchArguments& batch, const QString& text)
{
    if (text.indexOf(u'=') < 1) {
        return Text::tr("-input wants <name>=<value>, not \"%1\"").arg(text);
    }
    batch.inputs += text;
    return {};
}

QString takeAnalyser(BatchArguments& batch, BatchArguments::Analyser analyser)
{
    if (batch.analyser != BatchArguments::Analyser::Open && batch.analyser != analyser) {
        return Text::tr("%1 does not go with %2").arg(u"-c"_s, u"-cpp"_s);
    }
    batch.analyser = analyser;
    return {};
}

bool takeText(BatchArguments& batch, const QString& name, const QString& value)
{
    const std::pair<QLatin1StringView, QString&> texts[] = {
        {"-prj"_L1, batch.projectFile},   {"-type"_L1, batch.type},    {"-list-inputs"_L1, batch.type},
        {"-check"_L1, batch.checkedFile}, {"-run"_L1, batch.launcher}, {"-module"_L1, batch.module}};
    for (const auto& [option, target] : texts) {
        if (name == option) {
            target = value;
            return true;
        }
    }
    for (const ConfigurationFacts& kind : configurationKinds()) {
        if (name == kind.option) {
            batch.configurations[kind.kind] = value;
            return true;
        }
    }
    return false;
}

bool takeSwitch(BatchArguments& batch, const QString& name)
{
    const std::pair<QLatin1StringView, bool&> switches[] = {{"-overwrite"_L1, batch.overwrite},
                                                            {"--json"_L1, batch.json},
                                                            {"-dry-run"_L1, batch.dryRun},
                                                            {"-quiet"_L1, batch.quiet}};
    for (const auto& [option, target] : switches) {
        if (name == option) {
            target = true;
            return true;
        }
    }
    return false;
}

QString take(BatchArguments& batch, const QString& name, const QString& value)
{
    if (takeText(batch, name, value) || takeSwitch(batch, name)) {
        return {};
    }
    if (name == "-input"_L1) {
        return takeInput(batch, value);
    }
    if (name == "-timeout"_L1) {
        return takeTimeout(batch, value);
    }
    if (name == "-c"_L1 || name == "-cpp"_L1) {
        return takeAnalyser(batch, name == "-c"_L1 ? BatchArguments::Analyser::C : BatchArguments::Analyser::Cpp);
    }
    return {};
}

QString missing(const BatchArguments& batch)
{
    if (batch.task == Task::Run && batch.projectFile.isEmpty()) {
        return Text::tr("-prj <file> is missing: the project file that the launcher works on");
    }
    if (batch.task != Task::Convert) {
        return {};
    }
    if (batch.projectFile.isEmpty()) {
        return Text::tr("-prj <file> is missing: the project file to be created");
    }
    return batch.type.isEmpty()
               ? Text::tr("-type <name> is missing: the conversion type; -batch -list-types lists them")
               : QString();
}

} // namespace

BatchArguments BatchArguments::parse(const QStringList& arguments)
{
    BatchArguments batch;
    QList<Given> given;
    batch.error = readOptions(arguments, given);
    if (batch.error.isEmpty()) {
        batch.error = decideTask(given, batch.task);
    }
    for (const auto& [option, value] : given) {
        if (batch.error.isEmpty() && batch.task != Task::Help) {
            batch.error = take(batch, option->name, value);
        }
    }
    if (batch.error.isEmpty()) {
        batch.error = missing(batch);
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
                    "  -module <name>         compliance module that gives the personalities\n"
                    "  -overwrite             replace an existing project file\n"
                    "  -dry-run               say what would run, and run nothing\n"
                    "  -timeout <seconds>     stop the conversion after that time\n"
                    "  -quiet                 say nothing unless something fails\n"
                    "  --json                 the result as JSON on standard output\n"
                    "  -file <file>           definitions file\n"
                    "  -trace, -tracefile <file>\n"
                    "       ProjectCreation -batch -list-types [--json]\n"
                    "       ProjectCreation -batch -list-inputs <type> [--json]\n"
                    "       ProjectCreation -batch -check <file>\n"
                    "  Looks for mistakes in a definitions file.\n"
                    "       ProjectCreation -batch -run <launcher> -prj <file> [-c | -cpp] [-timeout <seconds>]\n"
                    "  Runs a tool of the suite on a project; the exit status is the tool's.\n"
                    "Exit status: 0 the conversion program ended with 0 and the project file was created, 1 it failed\n"
                    "or the output could not be written, 2 wrong arguments.\n");
}
