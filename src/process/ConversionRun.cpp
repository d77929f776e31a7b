// SPDX-License-Identifier: MIT
#include "process/ConversionRun.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int startWaitMs = 30000;
constexpr int killWaitMs = 30000;

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
    decoder = QStringDecoder(QStringConverter::System);
    running = true;
    stopping = false;
    if (!putOldFileAside()) {
        return false;
    }
    process.start(program, arguments, QIODevice::ReadWrite);
    Q_EMIT commandStarted(program + u' ' + arguments.join(u' '));
    if (process.waitForStarted(startWaitMs)) {
        forgetOldFile();
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

// It must not be taken for the result, but it is the user's until the conversion really runs.
bool ConversionRun::putOldFileAside()
{
    QFile old(projectFileName);
    if (!old.exists()) {
        return true;
    }
    const QString aside =
        QFileInfo(projectFileName).absolutePath() + u"/.old-project-%1.prj"_s.arg(QCoreApplication::applicationPid());
    QFile::remove(aside);
    const bool isFile = QFileInfo(projectFileName).isFile();
    if (!isFile || !old.rename(aside)) {
        const QString reason = isFile ? old.errorString() : tr("it is not a file");
        finish(Outcome::NotStarted,
               tr("The old project file can not be removed: %1. Close programs that use it.").arg(reason));
        return false;
    }
    oldFile = aside;
    return true;
}

void ConversionRun::forgetOldFile()
{
    if (!oldFile.isEmpty()) {
        QFile::remove(std::exchange(oldFile, {}));
    }
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

void ConversionRun::processFinished()
{
    if (!running) {
        return;
    }
    // A converter that ends politely when the program closes has not done its work either.
    if (stopping || process.isClosingDown()) {
        finish(Outcome::Stopped, tr("The conversion was stopped."));
    } else if (process.exitStatus() != QProcess::NormalExit || process.error() != QProcess::UnknownError) {
        finish(Outcome::Failed, process.errorString());
    } else {
        const QString detail = process.exitCode() == 0
                                   ? QString()
                                   : tr("The conversion program ended with exit code %1.").arg(process.exitCode());
        finish(QFile::exists(projectFileName) ? Outcome::Created : Outcome::NotCreated, detail);
    }
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
    detailText = detail;
    if (outcome == Outcome::Failed || outcome == Outcome::Stopped) {
        QFile::remove(projectFileName);
    }
    if (!oldFile.isEmpty()) {
        QFile::rename(std::exchange(oldFile, {}), projectFileName);
    }
    Q_EMIT ended(outcome);
}
