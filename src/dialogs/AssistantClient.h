// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

/// Shows help pages in Qt Assistant, which it starts on first use and drives through its remote control: commands are
/// lines on its standard input.
class AssistantClient : public QObject
{
    Q_OBJECT

public:
    /// Drives the viewer at this path; an empty path is looked up.
    explicit AssistantClient(const QString& path = {}, QObject* parent = nullptr);
    ~AssistantClient() override;

    /// Where Assistant is installed; empty where it is not.
    static QString program();
    /// Arguments of the viewer, such as the profile's switch and file.
    void setArguments(const QStringList& viewerArguments) { arguments = viewerArguments; }
    /// Shows the page. What goes wrong, also later, is told through error().
    void showPage(const QUrl& page);

Q_SIGNALS:
    void error(const QString& message);

private:
    void viewerFailed(QProcess::ProcessError reason);
    void viewerEnded(int exitCode, QProcess::ExitStatus status);
    void readOutput();

    QString viewerPath;
    QProcess viewer;
    /// The end of what the viewer said.
    QByteArray output;
    QStringList arguments;
    bool closing = false;
};
