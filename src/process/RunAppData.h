// SPDX-License-Identifier: MIT
#pragma once

#include "process/ChildProcess.h"
#include "process/OutputLog.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTimer>

class PageData;
class QAction;
class QDialog;

/// A launcher: a button that runs a tool of the suite on the new project.
class RunAppData : public QObject
{
    Q_OBJECT

public:
    /// How the output is shown, with the numbers that the suite uses.
    enum DisplayMode { NoDisplay = 0, TextDisplay = 1, HtmlDisplay = 2, MessageDisplay = 3 };

    explicit RunAppData(PageData* page);
    ~RunAppData() override;

    /// The program for the page's analyser.
    const QString& CurrentExe() const;
    /// Looks the program and its dependencies up; what is missing is told in disabledReason.
    bool ExecutablesFound();
    bool isRunning() const { return process.state() != QProcess::NotRunning; }
    /// The same, or something runs that an earlier run left behind.
    bool isAlive() { return isRunning() || process.hasLeftovers(); }
    /// The name in one line.
    QString title() const;
    /// Stops the run and closes all output windows.
    void Terminate();
    /// Marks the button while the tool runs, and offers Stop in its context menu.
    void attachButton(QPushButton* pushButton);
    void enableButton(bool enabled);

public Q_SLOTS:
    void Activate();
    void ActivateComplete();

public:
    /// Stops this run only; what it still prints is not shown.
    void Stop();

    QString name;
    QString cExe;
    QString cppExe;
    QString colour;
    QString image;
    QString aboveImage;
    QString belowImage;
    QString leftImage;
    QString rightImage;
    QStringList exeargs;
    bool runFromExeDir = false;
    int type = 0;
    int buttonwidth = 0;
    int columnspan = 1;
    int rowspan = 1;
    int displayMode = NoDisplay;
    /// Show the wait cursor and lock the wizard while the program runs.
    bool busyCursor = false;
    QString description;
    QStringList dependency;
    QPointer<QPushButton> button;
    bool startsDisabled = false;
    QString disabledReason;
    ChildProcess process;
    bool terminated = false;
    PageData* page;

private:
    /// Both give an empty text on success, else what went wrong.
    QString prepareArguments(QStringList& arguments);
    QString prepareMessageFile(QString& fileName);
    void clearOutput();
    void readOutput();
    /// Keeps so much of the output for the window and all of it in a file.
    void cutOutput(qsizetype size);
    void readErrors();
    bool showOutput();
    void showFailure();
    void lockWindow(bool locked);
    void markRunning(bool isRunning);
    void updateToolTip();
    /// What follows the shown part of too long an output.
    QString cutNote() const;

    bool awaitingEnd = false;
    bool locked = false;
    QByteArray output;
    bool outputIsCut = false;
    OutputLog outputLog;
    QByteArray errors;
    QPointer<QAction> stopAction;
    QPointer<QDialog> busyDialog;
    QTimer busyTimer;
};

/// Starts a program of the suite with the analyser environment and waits until it has started. A program that can not
/// be found is started as named.
bool StartProcess(QProcess& process, const QString& program, const QStringList& arguments, bool runInProgramFolder,
                  bool analyserVariables);
