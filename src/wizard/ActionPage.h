// SPDX-License-Identifier: MIT
#pragma once

#include "process/ConversionRun.h"
#include "process/OutputBuffer.h"
#include "process/OutputLog.h"
#include "process/ProgressLine.h"
#include "wizard/AppPage.h"

#include <QTimer>

class ElidedLabel;
class OutputView;
class ProgressBar;
class QLabel;
class QPushButton;

/// Runs the conversion and shows what it prints and how it ends.
class ActionPage : public AppPage
{
    Q_OBJECT

public:
    explicit ActionPage(ApplicationWindow* owner);
    ~ActionPage() override;

    void initializePage() override;
    void cleanupPage() override;
    bool validatePage() override { return true; }
    bool isComplete() const override { return finished; }
    /// Not Stop: a key pressed once too often must not stop the conversion.
    QWidget* firstField() const override;
    bool isConverting() const { return run.isRunning(); }
    /// The file with the output of the last run.
    QString logFileName() const { return log.fileName(); }

public Q_SLOTS:
    void ReadReady();
    void ProcessComplete();

private:
    void build() override;
    void showRunning();
    void showProgress();
    void flushOutput();
    /// Says where the whole output is, once the view does not hold all of it.
    void nameLog();
    void showEnd();
    void ConversionFinished(const QString& message, bool ok, const QString& colour);

    QLabel* statusLabel = nullptr;
    /// What the conversion program is at, as far as it tells.
    ElidedLabel* itemLabel = nullptr;
    ProgressBar* progressBar = nullptr;
    QPushButton* stopButton = nullptr;
    OutputView* outputView = nullptr;
    /// Names the file with the complete output.
    QLabel* logLabel = nullptr;
    ConversionRun run;
    OutputBuffer buffer;
    OutputLog log;
    ProgressLine progress;
    qint64 shownLines = 0;
    QTimer flushTimer;
    bool finished = false;
    /// The program has ended, some of its output is not shown yet.
    bool endPending = false;
};
