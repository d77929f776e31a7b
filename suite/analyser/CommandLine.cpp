// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Failure.h"

#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct ToolName
{
    const char* name;
    Tool tool;
    bool isLauncher;
};

constexpr std::array toolNames = {
    ToolName{"orvc", Tool::Analyse, true},     ToolName{"orvcpp", Tool::Analyse, true},
    ToolName{"orvreport", Tool::Report, true}, ToolName{"orvbrowse", Tool::Browse, true},
    ToolName{"orvcount", Tool::Count, true},   ToolName{"orvcma", Tool::WholeProgram, true},
    ToolName{"orvstatus", Tool::Status, true}, ToolName{"analyse", Tool::Analyse, false},
    ToolName{"report", Tool::Report, false},   ToolName{"browse", Tool::Browse, false},
    ToolName{"count", Tool::Count, false},     ToolName{"across", Tool::WholeProgram, false},
    ToolName{"status", Tool::Status, false},   ToolName{"job", Tool::Job, false},
    ToolName{"--help", Tool::Help, false},     ToolName{"-h", Tool::Help, false},
    ToolName{"help", Tool::Help, false},       ToolName{"--version", Tool::Version, false},
};

const ToolName* toolCalled(const QString& name)
{
    for (const ToolName& each : toolNames) {
        if (name == QLatin1StringView(each.name)) {
            return &each;
        }
    }
    return nullptr;
}

[[noreturn]] void refuse(const QString& what)
{
    throw Failure{what + u"\nTry \"orv --help\"."_s};
}

class Reader
{
public:
    explicit Reader(CommandLine& commandLine)
        : line(commandLine)
    {
    }

    void read(const QStringList& arguments)
    {
        rest = arguments;
        while (!rest.isEmpty()) {
            QString word = rest.takeFirst();
            // As compilers' friends write it: -j4.
            if (word.startsWith("-j"_L1) && word.size() > 2) {
                rest.prepend(word.sliced(2));
                word = u"-j"_s;
            }
            if (!takeForm(word) && !takeSetting(word)) {
                takeOther(word);
            }
        }
    }

private:
    bool takeForm(const QString& word)
    {
        static const QHash<QString, ReportForm> forms{{u"--text"_s, ReportForm::Text},
                                                      {u"--html"_s, ReportForm::Html},
                                                      {u"--plain-html"_s, ReportForm::PlainHtml},
                                                      {u"--csv"_s, ReportForm::Csv},
                                                      {u"--sarif"_s, ReportForm::Sarif}};
        const auto form = forms.constFind(word);
        if (form == forms.cend()) {
            return false;
        }
        line.form = *form;
        line.hasForm = true;
        return true;
    }

    bool takeSetting(const QString& word)
    {
        if (word == "-j"_L1) {
            line.run.jobs = number(word);
        } else if (word == "--launcher"_L1) {
            line.run.launcher = value(word);
        } else if (word == "--time-limit"_L1) {
            line.run.timeLimit = number(word);
        } else if (word == "-o"_L1) {
            line.outputFile = value(word);
        } else if (word == "--fail-on"_L1) {
            line.limit = severity(word);
            line.hasLimit = true;
        } else if (word == "--severity"_L1) {
            line.least = severity(word);
        } else if (word == "--incomplete-ok"_L1) {
            line.mayBeIncomplete = true;
        } else if (word == "--no-browser"_L1) {
            line.opensBrowser = false;
        } else if (word == "--help"_L1) {
            line.tool = Tool::Help;
        } else {
            return false;
        }
        return true;
    }

    void takeOther(const QString& word)
    {
        if (word == "-prj"_L1) {
            line.projectFile = value(word);
        } else if (word == "-via"_L1 || word == "-list"_L1) {
            line.words += {word, value(word)};
        } else if (line.isLauncher) {
            line.words += word;
        } else if (word.startsWith(u'-')) {
            refuse(u"There is no option \"%1\"."_s.arg(word));
        } else if (!line.projectFile.isEmpty()) {
            refuse(u"One project at a time: \"%1\" is too much."_s.arg(word));
        } else {
            line.projectFile = word;
        }
    }

    QString value(const QString& option)
    {
        if (rest.isEmpty()) {
            refuse(u"%1 wants a value."_s.arg(option));
        }
        return rest.takeFirst();
    }

    int number(const QString& option)
    {
        const QString text = value(option);
        const int result = text.toInt();
        if (result <= 0) {
            refuse(u"%1 wants a number above 0, not \"%2\"."_s.arg(option, text));
        }
        return result;
    }

    Severity severity(const QString& option)
    {
        const QString text = value(option);
        Severity result = Severity::Error;
        if (!readSeverity(text, result)) {
            refuse(u"%1 wants error, warning, style, performance, portability or information, not \"%2\"."_s.arg(option,
                                                                                                                 text));
        }
        return result;
    }

    CommandLine& line;
    QStringList rest;
};

} // namespace

CommandLine CommandLine::read(const QStringList& arguments)
{
    CommandLine line;
    QString name = QFileInfo(arguments.value(0)).baseName();
    QStringList rest = arguments.mid(1);
    const ToolName* tool = toolCalled(name);
    // A copy under a launcher's name starts its own jobs, too.
    if (!tool || !tool->isLauncher || rest.value(0) == "job"_L1) {
        name = rest.isEmpty() ? u"help"_s : rest.takeFirst();
        tool = toolCalled(name);
    }
    if (!tool) {
        refuse(u"There is no command \"%1\"."_s.arg(name));
    }
    line.tool = tool->tool;
    line.isLauncher = tool->isLauncher;
    line.mayBeIncomplete = tool->isLauncher;
    line.forC = name == "orvc"_L1;
    line.form = tool->isLauncher ? ReportForm::PlainHtml : ReportForm::Text;
    if (line.tool == Tool::Job) {
        line.words = rest;
        return line;
    }
    Reader(line).read(rest);
    const bool needsInput = line.tool != Tool::Help && line.tool != Tool::Version;
    if (needsInput && line.projectFile.isEmpty() && line.words.isEmpty()) {
        refuse(u"Name a project file."_s);
    }
    return line;
}

QString CommandLine::usage()
{
    return QStringLiteral(R"(Analyses KOVRA projects with cppcheck and reports what it finds.

  orv analyse PROJECT [-j N] [--launcher CMD] [--time-limit SECONDS] [--fail-on SEVERITY] [--incomplete-ok]
             [FORM of the report that follows, as below] [-o FILE]
  orv report PROJECT [--text | --html | --plain-html | --csv | --sarif] [-o FILE] [--severity LEAST]
             [--fail-on SEVERITY] [--incomplete-ok]
  orv browse PROJECT [-o FOLDER] [--no-browser]
  orv across PROJECT
  orv count PROJECT
  orv status PROJECT
  orv --help | --version

  -j N                  so many sources at once; all cores otherwise
  --launcher CMD        put CMD before every job, such as "srun -n1"
  --time-limit SECONDS  give up on a source after so long; 600 otherwise
  --fail-on SEVERITY    end with 1 when there is a message of this weight: error, warning, style, performance,
                        portability, information
  --severity LEAST      report only messages of this weight
  --incomplete-ok       sources that could not be analysed are told, but are no failure
  -via FILE             read further options from FILE, such as those of a coding standard
  -o FILE               write the report to FILE

Exit status: 0 no finding at or above the limit; 1 findings at or above --fail-on; 2 wrong use, or not every source
could be analysed.
)");
}
