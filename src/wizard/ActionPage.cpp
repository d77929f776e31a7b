// SPDX-License-Identifier: MIT
#include "wizard/ActionPage.h"
#include "app/AppRegistry.h"
#include "dialogs/ElidedLabel.h"
#include "dialogs/ProgressBar.h"
#include "process/ArgumentSubstitution.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/OutputView.h"
#include "wizard/PageSequence.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <chrono>
#include <climits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto flushInterval = 30ms;
// What one flush may insert without the window's stalling being felt.
constexpr int linesPerFlush = 250;
constexpr int charactersPerFlush = 64 * 1024;

} // namespace

ActionPage::ActionPage(ApplicationWindow* owner)
    : AppPage(owner, ActionPageId)
    , run(&appRegistry->childProcesses)
    , buffer(OutputView::keptLines)
{
    setTitle(tr("Create the Project"));
    setSubTitle(tr("Conversion in progress..."));
    flushTimer.setInterval(flushInterval);
    connect(&flushTimer, &QTimer::timeout, this, &ActionPage::flushOutput);
    connect(&run, &ConversionRun::commandStarted, appRegistry,
            [](const QString& command) { appRegistry->Trace(command); });
    connect(&run, &ConversionRun::outputReady, this, &ActionPage::ReadReady);
    connect(&run, &ConversionRun::ended, this, &ActionPage::ProcessComplete);
}

ActionPage::~ActionPage()
{
    run.disconnect(this);
}

void ActionPage::build()
{
    statusLabel = new QLabel;
    itemLabel = new ElidedLabel;
    progressBar = new ProgressBar;
    stopButton = new QPushButton(tr("&Stop"));
    outputView = new OutputView;
    logLabel = new QLabel;
    stopButton->setToolTip(tr("Stop the conversion program and everything it started"));
    statusLabel->setBuddy(progressBar);
    progressBar->setAccessibleName(tr("Progress of the conversion"));
    outputView->setAccessibleName(tr("Output of the conversion"));
    logLabel->setTextFormat(Qt::PlainText);
    logLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    logLabel->setWordWrap(true);

    auto* grid = new QGridLayout(this);
    auto* status = new QHBoxLayout;
    status->addWidget(statusLabel);
    status->addWidget(itemLabel, 1);
    grid->addLayout(status, 0, 0, 1, 2);
    grid->addWidget(progressBar, 1, 0);
    grid->addWidget(stopButton, 1, 1);
    grid->addWidget(outputView, 2, 0, 1, 2);
    grid->addWidget(logLabel, 3, 0, 1, 2);
    // Nobody shall stop the conversion by pressing Enter once too often.
    stopButton->setAutoDefault(false);
    connect(stopButton, &QPushButton::clicked, &run, &ConversionRun::stop);
}

void ActionPage::initializePage()
{
    window->setOption(QWizard::NoCancelButton, false);
    showRunning();
    if (!window->projectCreator) {
        ConversionFinished(tr("Error: No project conversion available"), false, u"red"_s);
        return;
    }
    log.start(appRegistry->CreateTempFileName(u".log"_s));
    const QStringList doubtful = placeholdersInValues(*window);
    for (const QString& text : doubtful) {
        outputView->appendLines({text});
        log.append(text.toLocal8Bit() + '\n');
    }
    run.start(window->projectCreator->exe, conversionArguments(*window), window->ProjectFile());
}

void ActionPage::showRunning()
{
    finished = false;
    // Of an earlier run; the wizard must not offer the next page on its account.
    window->conversionDone = false;
    window->conversionWarning.clear();
    setSubTitle(tr("Conversion in progress..."));
    statusLabel->setText(tr("Converting Project Progress:"));
    progress.clear();
    showProgress();
    progressBar->show();
    stopButton->show();
    logLabel->hide();
    outputView->clear();
    buffer.clear();
    shownLines = 0;
    outputView->appendLines({tr("Conversion Started\n")});
}

void ActionPage::cleanupPage()
{
    run.disconnect(this);
    run.stop();
    connect(&run, &ConversionRun::outputReady, this, &ActionPage::ReadReady);
    connect(&run, &ConversionRun::ended, this, &ActionPage::ProcessComplete);
    flushTimer.stop();
    endPending = false;
    finished = false;
    if (window->testOption(QWizard::NoCancelButton)) {
        window->setOption(QWizard::NoCancelButton, false);
    }
}

QWidget* ActionPage::firstField() const
{
    return outputView;
}

void ActionPage::ReadReady()
{
    const QString text = run.takeOutput();
    const QByteArray bytes = text.toLocal8Bit();
    log.append(bytes);
    buffer.append(text);
    if (progress.append(bytes)) {
        showProgress();
    }
    if (!flushTimer.isActive()) {
        flushTimer.start();
    }
}

void ActionPage::showProgress()
{
    progressBar->showProgress(progress.progress());
    itemLabel->setLine(progress.progress().item);
}

void ActionPage::flushOutput()
{
    QStringList lines = buffer.take(linesPerFlush, charactersPerFlush);
    shownLines += lines.size();
    const qint64 dropped = buffer.takeDropped();
    if (dropped > 0) {
        lines.prepend(tr("[%n line(s) not shown]", nullptr, int(std::min<qint64>(dropped, INT_MAX))));
    }
    if (dropped > 0 || shownLines > OutputView::keptLines) {
        nameLog();
    }
    outputView->appendLines(lines);
    if (buffer.isEmpty()) {
        flushTimer.stop();
        if (endPending) {
            showEnd();
        }
    }
}

void ActionPage::nameLog()
{
    const QString text = log.isCut() ? tr("Output, without its end, until the wizard is closed: %1")
                                     : tr("Complete output, until the wizard is closed: %1");
    logLabel->setText(text.arg(QDir::toNativeSeparators(log.fileName())));
    logLabel->setVisible(!log.fileName().isEmpty());
}

void ActionPage::ProcessComplete()
{
    if (finished) {
        return;
    }
    ReadReady();
    log.endWith(run.detail());
    buffer.endLine();
    stopButton->hide();
    // The end is told after all that the program said; of much output the window takes a little at a time.
    endPending = true;
    flushOutput();
}

void ActionPage::showEnd()
{
    endPending = false;
    const ConversionRun::Outcome outcome = run.outcome();
    if (!run.detail().isEmpty()) {
        outputView->appendLines({run.detail()});
    }
    window->conversionWarning = run.warning();
    const bool created = outcome == ConversionRun::Outcome::Created;
    ConversionFinished(ConversionRun::endText(outcome, window->ProjectFile()), created,
                       created ? u"black"_s : u"red"_s);
}

void ActionPage::ConversionFinished(const QString& message, bool ok, const QString& colour)
{
    setSubTitle(tr("Conversion Operation Finished"));
    statusLabel->setText(tr("Converting Project Status:"));
    progressBar->hide();
    itemLabel->setLine({});
    stopButton->hide();
    finished = true;
    if (ok && QFile::exists(window->ProjectFile())) {
        outputView->appendLines({tr("Conversion Complete\n")});
        if (!appRegistry->definitions.applicationPages.empty()) {
            window->conversionDone = true;
            window->next();
            return;
        }
    }
    window->setOption(QWizard::NoCancelButton, true);
    window->conversionDone = false;
    outputView->appendMessage(message, QColor(colour));
    Q_EMIT completeChanged();
}
