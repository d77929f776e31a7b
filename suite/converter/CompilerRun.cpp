// SPDX-License-Identifier: MIT
#include "CompilerRun.h"
#include "CompilerPersonality.h"

#include <QDir>
#include <QSet>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestAnswer = 5s;
constexpr qsizetype mostBytes = 4LL * 1024 * 1024;

// What every compiler says in its own words, and what the analyser sets by itself.
bool isOfLanguage(const QString& name)
{
    static const QSet<QString> names{u"__cplusplus"_s,       u"__STDC__"_s,      u"__STDC_VERSION__"_s,
                                     u"__FILE__"_s,          u"__LINE__"_s,      u"__DATE__"_s,
                                     u"__TIME__"_s,          u"__TIMESTAMP__"_s, u"__COUNTER__"_s,
                                     u"__INCLUDE_LEVEL__"_s, u"__BASE_FILE__"_s};
    return names.contains(name);
}

// #define NAME VALUE and #define NAME(ARGUMENTS) VALUE
QStringList definesOf(const QByteArray& output)
{
    QStringList result;
    for (const QByteArray& line : output.split('\n')) {
        if (!line.startsWith("#define ")) {
            continue;
        }
        const QString text = QString::fromUtf8(line).sliced(8).trimmed();
        qsizetype end = text.indexOf(u' ');
        const qsizetype bracket = text.indexOf(u'(');
        if (bracket >= 0 && (end < 0 || bracket < end)) {
            end = text.indexOf(u')') + 1;
        }
        end = end <= 0 ? text.size() : end;
        if (!isOfLanguage(text.first(end))) {
            result += text.first(end) + u'=' + text.sliced(end).trimmed();
        }
    }
    return result;
}

// The list behind '#include <...> search starts here:'.
QStringList foldersOf(const QByteArray& notes)
{
    QStringList result;
    bool isList = false;
    for (const QByteArray& line : notes.split('\n')) {
        if (line.startsWith("#include <...>")) {
            isList = true;
        } else if (isList && line.startsWith(' ')) {
            result += QDir::cleanPath(QString::fromLocal8Bit(line.trimmed()));
        } else if (isList) {
            break;
        }
    }
    return result;
}

} // namespace

CompilerRun::CompilerRun(QString compiler, CompilerSetup question)
    : program(std::move(compiler))
    , setup(std::move(question))
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [this] { end(u"it gave no answer in time"_s); });
    connect(&process, &QProcess::readyReadStandardOutput, this, &CompilerRun::collect);
    connect(&process, &QProcess::readyReadStandardError, this, &CompilerRun::collect);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            end(process.errorString());
        }
    });
    connect(&process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        collect();
        const bool isGood = status == QProcess::NormalExit && code == 0;
        end(isGood ? QString() : u"it refused to answer: "_s + QString::fromLocal8Bit(notes).section(u'\n', -2, -2));
    });
}

CompilerRun::~CompilerRun()
{
    process.disconnect(this);
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(1000);
    }
}

QStringList CompilerRun::questionWords() const
{
    QStringList words;
    if (setup.family == CompilerName::Family::ClangCl) {
        words += u"--driver-mode=gcc"_s;
        if (setup.target.filter(u"--target="_s).isEmpty()) {
            words += u"--target=x86_64-pc-windows-msvc"_s;
        }
    }
    words += {u"-E"_s, u"-dM"_s, u"-v"_s, u"-x"_s, setup.isC ? u"c"_s : u"c++"_s};
    if (!setup.standard.isEmpty()) {
        words += u"-std="_s + setup.standard;
    }
    for (const QString& option : setup.target) {
        const bool isOfMicrosoft =
            setup.family == CompilerName::Family::ClangCl && !option.startsWith("--"_L1) && !option.startsWith("-m"_L1);
        if (option.startsWith("-arch "_L1) || option.startsWith("-gcc-toolchain "_L1)) {
            words += {option.section(u' ', 0, 0), option.section(u' ', 1)};
        } else if (!isOfMicrosoft) {
            words += option;
        }
    }
    words += u"-"_s;
    return words;
}

void CompilerRun::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s);
    // What the user's shell adds to every search is no part of the build.
    for (const auto& name : {u"CPATH"_s, u"C_INCLUDE_PATH"_s, u"CPLUS_INCLUDE_PATH"_s, u"OBJC_INCLUDE_PATH"_s,
                             u"DEPENDENCIES_OUTPUT"_s, u"SUNPRO_DEPENDENCIES"_s}) {
        environment.remove(name);
    }
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setWorkingDirectory(QDir::rootPath());
    timer.start(longestAnswer);
    process.start(program, questionWords());
}

void CompilerRun::collect()
{
    macros += process.readAllStandardOutput();
    notes += process.readAllStandardError();
    if (macros.size() + notes.size() > mostBytes) {
        end(u"its answer is too long"_s);
    }
}

void CompilerRun::end(const QString& why)
{
    if (isOver) {
        return;
    }
    isOver = true;
    timer.stop();
    reason = why;
    if (process.state() != QProcess::NotRunning) {
        process.kill();
    }
    // Whoever waits may not have begun to.
    QTimer::singleShot(0, this, &CompilerRun::finished);
}

void CompilerRun::tell(CompilerPersonality& answer) const
{
    answer.reason = reason;
    if (reason.isEmpty()) {
        answer.program = program;
        answer.macros = definesOf(macros);
        answer.folders = foldersOf(notes);
        answer.reason = answer.macros.isEmpty() ? u"its answer holds no macros"_s : QString();
    }
}
