// SPDX-License-Identifier: MIT
#include "CompilerQuery.h"
#include "BuiltinMacros.h"
#include "CompilerRun.h"
#include "HeaderMacros.h"
#include "Paths.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// A build has a handful; a description that names thousands is not worth an hour.
constexpr qsizetype mostQuestions = 200;

// The user has chosen what lies there, even when the sources are all over the system.
bool isInSearchPath(const QString& program)
{
    const QStringList folders = qEnvironmentVariable("PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    return std::ranges::any_of(folders, [&](const QString& folder) {
        return QDir::isAbsolutePath(folder) && QFileInfo(program).absolutePath() == QDir::cleanPath(folder);
    });
}

using Runs = std::vector<std::unique_ptr<CompilerRun>>;

// As many at a time as the machine has processors.
void runAll(const Runs& runs)
{
    QEventLoop loop;
    size_t started = 0;
    size_t finished = 0;
    const auto startNext = [&] {
        if (started < runs.size()) {
            runs[started++]->start();
        }
    };
    for (const auto& run : runs) {
        QObject::connect(run.get(), &CompilerRun::finished, &loop, [&] {
            startNext();
            if (++finished == runs.size()) {
                loop.quit();
            }
        });
    }
    for (int i = 0; i < std::max(2, QThread::idealThreadCount()); ++i) {
        startNext();
    }
    if (!runs.empty()) {
        loop.exec();
    }
}

} // namespace

CompilerQuery::CompilerQuery(QStringList distrustedFolders)
    : distrusted(std::move(distrustedFolders))
{
}

QString CompilerQuery::runnable(const CompilerSetup& setup, QString& reason) const
{
    using CompilerName::Family;
    if (setup.family == Family::Other || setup.family == Family::Cl) {
        reason = u"it has no option that tells its macros"_s;
        return {};
    }
    const bool isNameOnly = Paths::nameOf(setup.program).size() == setup.program.size();
    if (!isNameOnly && !QFileInfo(setup.program).isAbsolute()) {
        reason = u"it is named by a relative path"_s;
        return {};
    }
    QString found = QStandardPaths::findExecutable(setup.program);
#ifdef Q_OS_WIN
    // With a folder in front the suffix is not looked for, though a command may leave it out.
    if (found.isEmpty()) {
        found = QStandardPaths::findExecutable(setup.program + u".exe"_s);
    }
#endif
    if (found.isEmpty()) {
        reason = u"it is not on this system"_s;
        return {};
    }
    if (isInSearchPath(found)) {
        return found;
    }
    for (const QString& path : {found, QFileInfo(found).canonicalFilePath()}) {
        for (const QString& folder : distrusted) {
            if (Paths::isBelow(path, folder)) {
                reason = u"it lies among the sources"_s;
                return {};
            }
        }
    }
    return found;
}

QList<CompilerPersonality> CompilerQuery::ask(const QList<CompilerSetup>& setups) const
{
    QList<CompilerPersonality> answers;
    Runs runs;
    QList<qsizetype> asked;
    for (const CompilerSetup& setup : setups) {
        answers += CompilerPersonality{.setup = setup, .program = {}, .reason = {}, .macros = {}, .folders = {}};
        CompilerPersonality& answer = answers.last();
        const QString program = runnable(setup, answer.reason);
        if (!program.isEmpty() && asked.size() >= mostQuestions) {
            answer.reason = u"too many compilers to ask"_s;
        } else if (!program.isEmpty()) {
            asked += answers.size() - 1;
            runs.push_back(std::make_unique<CompilerRun>(program, setup));
        }
    }
    runAll(runs);
    for (qsizetype i = 0; i < asked.size(); ++i) {
        runs[size_t(i)]->tell(answers[asked[i]]);
    }
    for (CompilerPersonality& answer : answers) {
        if (answer.macros.isEmpty()) {
            answer.macros = builtinMacros(answer.setup);
            answer.program.clear();
        }
        answer.macros = headerMacros(answer.macros) + answer.macros;
    }
    return answers;
}
