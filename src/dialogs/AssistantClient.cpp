// SPDX-License-Identifier: MIT
#include "dialogs/AssistantClient.h"

#include <QLibraryInfo>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype keptOutput = 2048;

} // namespace

AssistantClient::AssistantClient(const QString& path, QObject* parent)
    : QObject(parent)
    , viewerPath(path)
{
    connect(&viewer, &QProcess::errorOccurred, this, &AssistantClient::viewerFailed);
    viewer.setProcessChannelMode(QProcess::MergedChannels);
    connect(&viewer, &QProcess::readyRead, this, &AssistantClient::readOutput);
    connect(&viewer, &QProcess::finished, this, &AssistantClient::viewerEnded);
}

AssistantClient::~AssistantClient()
{
    closing = true;
    if (viewer.state() == QProcess::NotRunning) {
        return;
    }
    viewer.terminate();
    if (!viewer.waitForFinished(1000)) {
        viewer.kill();
        viewer.waitForFinished(1000);
    }
}

QString AssistantClient::program()
{
    const QString own =
        QStandardPaths::findExecutable(u"assistant"_s, {QLibraryInfo::path(QLibraryInfo::BinariesPath)});
    return own.isEmpty() ? QStandardPaths::findExecutable(u"assistant"_s) : own;
}

void AssistantClient::showPage(const QUrl& page)
{
    if (viewer.state() == QProcess::NotRunning) {
        output.clear();
        viewer.start(viewerPath.isEmpty() ? program() : viewerPath, QStringList{u"-enableRemoteControl"_s} + arguments);
    }
    viewer.write("setSource " + page.toEncoded() + '\n');
}

void AssistantClient::readOutput()
{
    output += viewer.readAll();
    output = output.last(std::min(keptOutput, output.size()));
}

// A viewer that does not accept its profile starts well and leaves with a complaint.
void AssistantClient::viewerEnded(int exitCode, QProcess::ExitStatus status)
{
    if (closing || status != QProcess::NormalExit || exitCode == 0) {
        return;
    }
    readOutput();
    Q_EMIT error(tr("The help viewer %1 has ended with an error: %2")
                     .arg(viewer.program(), QString::fromLocal8Bit(output).trimmed()));
}

void AssistantClient::viewerFailed(QProcess::ProcessError reason)
{
    if (closing) {
        return;
    }
    if (reason == QProcess::FailedToStart) {
        Q_EMIT error(tr("The help viewer %1 could not be started: %2").arg(viewer.program(), viewer.errorString()));
    } else if (reason == QProcess::Crashed) {
        Q_EMIT error(
            tr("The help viewer %1 has ended unexpectedly. Ask for help again to restart it.").arg(viewer.program()));
    }
}
