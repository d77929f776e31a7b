// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/ApplicationRecord.h"
#include "launchers/LauncherOutput.h"
#include "launchers/WindowLock.h"
#include "process/ChildProcess.h"

#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QStringList>

class ExecutableLookup;
class PageData;
class QAction;
class RunIndicator;

/// A launcher: a button that runs a tool of the suite on the new project.
class RunAppData : public QObject, public ApplicationRecord
{
    Q_OBJECT

public:
    explicit RunAppData(PageData* owner);
    ~RunAppData() override;

    /// The program for the page's analyser.
    const QString& CurrentExe() const;
    /// Looks the program and its dependencies up; what is missing is told in disabledReason.
    bool ExecutablesFound(ExecutableLookup& lookup);
    bool isRunning() const { return process.state() != QProcess::NotRunning; }
    /// The same, or something runs that an earlier run left behind.
    bool isAlive() { return isRunning() || process.hasLeftovers(); }
    /// Stops the run and closes all output windows.
    void Terminate();
    /// Marks the button while the tool runs, and offers Stop on it and in its context menu.
    void attachButton(QPushButton* pushButton);
    void enableButton(bool enabled);

public Q_SLOTS:
    void Activate();
    void ActivateComplete();

public:
    /// Stops this run only; what it still prints is not shown.
    void Stop();

    QString colour;
    QString image;
    QString aboveImage;
    QString belowImage;
    QString leftImage;
    QString rightImage;
    int type = 0;
    int buttonwidth = 0;
    int columnspan = 1;
    int rowspan = 1;
    int displayMode = NoDisplay;
    /// Show the wait cursor and lock the wizard while the program runs.
    bool busyCursor = false;
    QString description;
    QPointer<QPushButton> button;
    bool startsDisabled = false;
    QString disabledReason;
    ChildProcess process;
    bool terminated = false;
    PageData* page;

private:
    void readOutput();
    void readErrors();
    void showProgress();
    bool showOutput();
    void showFailure(const QString& text);
    void markRunning(bool isRunning);
    void updateText();
    void updateToolTip();

    bool awaitingEnd = false;
    LauncherOutput output;
    WindowLock windowLock;
    QPointer<QAction> stopAction;
    QPointer<RunIndicator> indicator;
};
