// SPDX-License-Identifier: MIT
#include "dialogs/AssistantClient.h"

#include <QLibraryInfo>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

AssistantClient::AssistantClient(QObject* parent)
    : QObject(parent)
{
    connect(&viewer, &QProcess::errorOccurred, this, &AssistantClient::viewerFailed);
    viewer.setProcessChannelMode(QProcess::MergedChannels);
    // Nobody reads it, and a full pipe would stop the viewer.
    connect(&viewer, &QProcess::readyRead, this, [this] { viewer.readAll(); });
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
        viewer.start(program(), QStringList{u"-enableRemoteControl"_s} + arguments);
    }
    viewer.write("setSource " + page.toEncoded() + '\n');
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
