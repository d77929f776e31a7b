// SPDX-License-Identifier: MIT
// Analysing a code base of 150 sources with the suite's analyser against cppcheck itself, both with two jobs; again
// with nothing changed; and the report of 100,000 messages. Arguments: the orv program, and another number of sources.
#include "Ratio.h"
#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int functions = 20;
constexpr int inlineFunctions = 20;
constexpr int messages = 100000;
constexpr int rounds = 2;

void write(const QString& name, const QByteArray& contents)
{
    QDir().mkpath(QFileInfo(name).absolutePath());
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("%s can not be written", qPrintable(name));
    }
}

/// Thirty lines that give the analyser values to follow: loops, branches, pointers, a list.
QByteArray function(const QByteArray& name)
{
    static const QByteArray pattern =
        "static int work_@(struct item *first, const int *values, size_t count, char *text)\n"
        "{\n    struct item *item = first;\n    int sum = 0;\n    size_t i;\n"
        "    for (i = 0; i < count; i++) {\n        if (values[i] > LIMIT) {\n            sum += values[i] - LIMIT;\n"
        "        } else if (values[i] == @) {\n            text[i] = (char)('a' + i % 26);\n        } else {\n"
        "            switch (values[i] % 4) {\n            case 0: sum++; break;\n            case 1: sum--; break;\n"
        "            default: sum ^= (int)i;\n            }\n        }\n    }\n"
        "    while (item) {\n        if (item->value > sum && item->next)\n            item = item->next->next;\n"
        "        else\n            item = item->next;\n        sum += item ? item->value : -1;\n    }\n"
        "    if (sum > @ && text)\n        text[0] = 0;\n    return sum;\n}\n\n";
    return QByteArray(pattern).replace('@', name);
}

QByteArray header()
{
    QByteArray text = "#include <stddef.h>\nstruct item { struct item *next; int value; };\n";
    for (int i = 0; i < inlineFunctions; ++i) {
        text += function('9' + QByteArray::number(i));
    }
    return text;
}

QByteArray source(int number)
{
    QByteArray text = "#include \"item.h\"\n\n";
    QByteArray calls;
    for (int i = 0; i < functions; ++i) {
        const QByteArray name = QByteArray::number(number) + '0' + QByteArray::number(i);
        text += function(name);
        calls += "    sum += work_" + name + "(first, values, count, text);\n";
    }
    return text + "int all_" + QByteArray::number(number) +
           "(struct item *first, const int *values, size_t count, char *text)\n{\n    int sum = 0;\n" + calls +
           "    return sum;\n}\n";
}

class CodeBase
{
public:
    explicit CodeBase(int sources)
    {
        QByteArray files;
        QByteArray entries;
        write(place(u"item.h"_s), header());
        for (int i = 0; i < sources; ++i) {
            const QByteArray name = "s" + QByteArray::number(i) + ".c";
            write(place(QString::fromLatin1(name)), source(i));
            files += name + '\n';
            entries += (i > 0 ? ",{\"directory\":\"" : "{\"directory\":\"") + place({}).toUtf8() + "\",\"file\":\"" +
                       name + "\",\"command\":\"cc -DLIMIT=7 -c " + name + "\"}\n";
        }
        write(database, '[' + entries + ']');
        write(box.path(u"o.p_a"_s), "-d LIMIT=7\n");
        write(project, "VersionTag 45\nStartProjectMarker\nname=p\nsourceDir=" + place({}).toUtf8() +
                           "\noutputDir=" + output.toUtf8() +
                           "\nmessagePersonality=default string\nanalyserPersonality=" + box.path(u"o.p_a"_s).toUtf8() +
                           "\ncompilerPersonality=default string\n*project=ORVC\n" + files +
                           "EndContainedFilesMarker\nEndOfProjectFile\n");
    }

    QString place(const QString& name) const { return box.path(u"code"_s) + (name.isEmpty() ? name : u'/' + name); }

    Sandbox box;
    QString database = box.path(u"db.json"_s);
    QString project = box.path(u"p.prj"_s);
    QString output = box.path(u"out"_s);
};

void run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("%s failed", qPrintable(program));
    }
}

int reportTime(const char* name, double limit, const std::function<void()>& work)
{
    std::vector<double> times;
    times.reserve(rounds + 2);
    for (int i = 0; i < rounds + 2; ++i) {
        times.push_back(Ratio::milliseconds(work));
    }
    const double time = Ratio::median(times);
    std::printf("%s: %.1f ms (at most %.0f) %s\n", name, time, limit, time <= limit ? "ok" : "MISSED");
    return time <= limit ? 0 : 1;
}

void writeManyMessages(const CodeBase& code, int sources)
{
    for (int i = 0; i < sources; ++i) {
        QByteArray lines;
        for (int line = 0; line < messages / sources + 1; ++line) {
            lines += code.place(u"s%1.c"_s.arg(i)).toUtf8() + ':' + QByteArray::number(line + 1) +
                     ":5: style: Variable 'sum' is assigned a value that is never used. [unreadVariable]\n";
        }
        write(code.output + u"/s%1.c.err"_s.arg(i), lines);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const int sources = Ratio::sizeFrom(argc, argv, 150, 2);
    const CodeBase code(sources);
    const QString orv = QString::fromLocal8Bit(argc > 1 ? argv[1] : "orvtool");
    const auto analyse = [&] { run(orv, {u"analyse"_s, code.project, u"-j"_s, u"2"_s}); };
    const QByteArray name = "analysing " + QByteArray::number(sources) + " sources with two jobs";
    const Ratio::Outcome outcome = Ratio::measure(
        name.constData(), 1.1,
        [&] {
            QDir(code.output).removeRecursively();
            analyse();
        },
        [&] {
            run(u"cppcheck"_s, {u"-q"_s, u"-j2"_s, u"--inline-suppr"_s,
                                u"--enable=warning,style,performance,portability"_s, u"--project="_s + code.database});
        },
        rounds);
    Ratio::reportCost(sources, outcome, 0);
    int missed = outcome.missed + reportTime("analysing them again with nothing changed", 300, analyse);
    writeManyMessages(code, sources);
    for (const auto& form : {u"--html"_s, u"--plain-html"_s, u"--csv"_s, u"--sarif"_s, u"--text"_s}) {
        missed += reportTime(("report of 100,000 messages, " + form.toLatin1()).constData(), 1000, [&] {
            run(orv, {u"report"_s, code.project, form, u"-o"_s, code.box.path(u"report"_s)});
        });
    }
    return missed;
}
