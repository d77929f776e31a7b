// SPDX-License-Identifier: MIT
#include "process/ConversionRun.h"
#include "process/Guardian.h"
#include "process/StrayProcesses.h"

#include <QFileInfo>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace {

constexpr int startWaitMs = 30000;
constexpr int killWaitMs = 30000;
constexpr int strayGraceMs = 500;

} // namespace

ConversionRun::ConversionRun(ChildList* siblings, QObject* parent)
    : QObject(parent)
    , process(siblings)
{
    process.setProcessChannelMode(QProcess::MergedChannels);
    connect(&process, &QProcess::readyRead, this, &ConversionRun::outputReady);
    connect(&process, &QProcess::finished, this, &ConversionRun::processFinished);
    connect(&process, &QProcess::errorOccurred, this, &ConversionRun::processFailed);
}

ConversionRun::~ConversionRun()
{
    blockSignals(true);
    stop();
    process.disconnect(this);
}

bool ConversionRun::start(const QString& program, const QStringList& arguments, const QString& projectFile)
{
    stop();
    projectFileName = projectFile;
    decoder = {};
    running = true;
    stopping = false;
    code = -1;
    detailText.clear();
    keptText.clear();
    earlierStrays = StrayProcesses::present();
    if (const Result<void> cleared = place.clear(projectFile); !cleared.ok()) {
        finish(Outcome::NotStarted, cleared.problem);
        return false;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    Guardian::mark(environment);
    process.setProcessEnvironment(environment);
    process.launch(program, arguments);
    Q_EMIT commandStarted(program + u' ' + arguments.join(u' '));
    if (process.waitForStarted(startWaitMs)) {
        // Nobody answers a converter that asks: it shall see the end of its input instead of waiting for ever.
        process.closeWriteChannel();
        return true;
    }
    if (running) {
        process.killGroup();
        finish(Outcome::NotStarted, tr("%1: %2").arg(program, process.errorString()));
    }
    return false;
}

void ConversionRun::stop()
{
    if (!running) {
        return;
    }
    stopping = true;
    process.stop(killWaitMs);
    if (running) {
        finish(Outcome::Stopped, tr("The conversion program did not end."));
    }
}

QString ConversionRun::takeOutput()
{
    return decoder.decode(process.readAll());
}

QString ConversionRun::endText(Outcome outcome, const QString& projectFile)
{
    switch (outcome) {
    case Outcome::Created:
        return tr("New project file: ") + projectFile;
    case Outcome::NotCreated:
        return tr("Error: Project file [%1] not created").arg(projectFile);
    case Outcome::NotStarted:
        return tr("Error: Could not run conversion process");
    case Outcome::Failed:
    case Outcome::Stopped:
        break;
    }
    return tr("Error: Conversion Process Failed");
}

QString ConversionRun::warning() const
{
    if (result != Outcome::Created || code == 0) {
        return {};
    }
    const QString text = tr("The conversion program ended with exit code %1. The project may be incomplete.").arg(code);
    return keptText.isEmpty() ? text : text + u' ' + keptText;
}

void ConversionRun::processFinished()
{
    if (!running) {
        return;
    }
    // What goes on behind the end could still write, and would be taken for the next run's.
    StrayProcesses::stop(strayGraceMs, earlierStrays);
    // A converter that ends politely when the program closes has not done its work either.
    if (stopping || process.isClosingDown()) {
        finish(Outcome::Stopped, tr("The conversion was stopped."));
    } else if (process.exitStatus() != QProcess::NormalExit || process.error() != QProcess::UnknownError) {
        finish(Outcome::Failed, process.errorString());
    } else {
        judge();
    }
}

void ConversionRun::judge()
{
    code = process.exitCode();
    QString problem;
    bool isCreated = place.hasProject(problem);
    const bool isEmpty = isCreated && code != 0 && QFileInfo(projectFileName).size() == 0;
    if (isEmpty) {
        isCreated = emptyFile == EmptyFile::Counts;
        problem = tr("The project file that it left is empty.");
    }
    addDetail(code == 0 ? QString() : tr("The conversion program ended with exit code %1.").arg(code));
    if (isEmpty && isCreated) {
        keepOld();
    }
    finish(isCreated ? Outcome::Created : Outcome::NotCreated, problem);
}

// The empty file is the result, as given, but must not cost the user the last project that was whole.
void ConversionRun::keepOld()
{
    const QString name = place.acceptKeepingOld();
    keptText = name.isEmpty() ? QString() : tr("The project file that was there before is kept as %1.").arg(name);
    addDetail(keptText);
}

// Only a program that did not start ends without finished().
void ConversionRun::processFailed(QProcess::ProcessError error)
{
    if (running && error == QProcess::FailedToStart) {
        finish(Outcome::NotStarted, tr("%1: %2").arg(process.program(), process.errorString()));
    }
}

void ConversionRun::finish(Outcome outcome, const QString& detail)
{
    running = false;
    result = outcome;
    addDetail(detail);
    if (outcome == Outcome::Created) {
        place.accept();
    } else {
        const Result<bool> back = place.bringBack();
        addDetail(back.value ? tr("The project file that was there before is kept.") : back.problem);
    }
    Q_EMIT ended(outcome);
}

void ConversionRun::addDetail(const QString& sentence)
{
    if (!sentence.isEmpty()) {
        detailText += (detailText.isEmpty() ? QString() : u"\n"_s) + sentence;
    }
}
