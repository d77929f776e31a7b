// SPDX-License-Identifier: MIT
#include "CompilerQuery.h"
#include "BuiltinMacros.h"
#include "CompilerRun.h"
#include "Paths.h"

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
    const QString found = QStandardPaths::findExecutable(setup.program);
    if (found.isEmpty()) {
        reason = u"it is not on this system"_s;
        return {};
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
    std::vector<std::pair<qsizetype, std::unique_ptr<CompilerRun>>> waiting;
    for (const CompilerSetup& setup : setups) {
        answers += CompilerPersonality{.setup = setup, .program = {}, .reason = {}, .macros = {}, .folders = {}};
        CompilerPersonality& answer = answers.last();
        const QString program = runnable(setup, answer.reason);
        if (program.isEmpty()) {
            continue;
        }
        if (qsizetype(waiting.size()) >= mostQuestions) {
            answer.reason = u"too many compilers to ask"_s;
            continue;
        }
        waiting.emplace_back(answers.size() - 1, std::make_unique<CompilerRun>(program, setup));
    }

    QEventLoop loop;
    size_t started = 0;
    size_t finished = 0;
    const auto startNext = [&] {
        if (started < waiting.size()) {
            waiting[started++].second->start();
        }
    };
    for (const auto& [number, run] : waiting) {
        QObject::connect(run.get(), &CompilerRun::finished, &loop, [&] {
            startNext();
            if (++finished == waiting.size()) {
                loop.quit();
            }
        });
    }
    for (int i = 0; i < std::max(2, QThread::idealThreadCount()); ++i) {
        startNext();
    }
    if (!waiting.empty()) {
        loop.exec();
    }
    for (const auto& [number, run] : waiting) {
        run->tell(answers[number]);
    }
    for (CompilerPersonality& answer : answers) {
        if (answer.macros.isEmpty()) {
            answer.macros = builtinMacros(answer.setup);
            answer.program.clear();
        }
    }
    return answers;
}
