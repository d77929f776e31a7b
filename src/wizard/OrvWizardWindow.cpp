// SPDX-License-Identifier: MIT
#include "wizard/OrvWizardWindow.h"
#include "app/AppRegistry.h"
#include "dialogs/HelpManager.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "launchers/PageData.h"
#include "process/StrayProcesses.h"
#include "wizard/Logo.h"
#include "wizard/OrvBasicWizardPage.h"
#include "wizard/PageFocus.h"
#include "wizard/PageScrollArea.h"
#include "wizard/ScreenFit.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QPixmap>
#include <QShowEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Enter, or the letter of Next: while Next waits for something, they ask what for.
bool asksForNext(const QKeyEvent& event, const QAbstractButton& next)
{
    const QKeySequence mnemonic = QKeySequence::mnemonic(next.text());
    const bool isMnemonic =
        event.modifiers() == Qt::AltModifier && !mnemonic.isEmpty() && int(mnemonic[0].key()) == event.key();
    return isMnemonic || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

OrvWizardWindow::OrvWizardWindow(const QString& title, const QString& helpPage, QWidget* parent)
    : QWizard(parent)
{
    setWindowTitle(title);
    MainWindow::set(this);
    HelpManager::currentHelpPage = helpPage;
    setWizardStyle(QWizard::ModernStyle);
    setWindowIcon(MainWindow::icon());
    setPixmap(QWizard::LogoPixmap, Logo::on(palette().color(QPalette::Base)));
    setWindowFlags(MainWindow::frame());
    setOptions(QWizard::HaveCustomButton1 | QWizard::NoBackButtonOnLastPage | QWizard::NoBackButtonOnStartPage);
    if (HelpManager::HelpAvailable(*appRegistry)) {
        setOption(QWizard::HaveHelpButton);
        help = new HelpManager(*appRegistry, this);
    }
    printButton = button(QWizard::CustomButton1);
    printButton->setText(tr("&Print"));
    printButton->hide();
    connect(this, &QWizard::customButtonClicked, this, &OrvWizardWindow::CustomButtonClicked);
    connect(this, &QWizard::helpRequested, this, &OrvWizardWindow::ShowHelp);
    connect(this, &QDialog::finished, this, &OrvWizardWindow::Finished);
    connect(this, &QWizard::currentIdChanged, this, &OrvWizardWindow::enterPage);
    // Queued: by then the page has its size.
    connect(this, &QWizard::currentIdChanged, this, &OrvWizardWindow::fitPage, Qt::QueuedConnection);
    resize(appRegistry->windowSize);
    move(appRegistry->windowPos);
}

void OrvWizardWindow::fitPage()
{
    const auto* area = currentPage() ? currentPage()->findChild<PageScrollArea*>() : nullptr;
    if (area && !isMaximized()) {
        resize(width(), height() + area->missingHeight());
    }
    ScreenFit::apply(*this);
}

bool OrvWizardWindow::validateCurrentPage()
{
    const bool isLastPage = nextId() == -1;
    const bool valid = QWizard::validateCurrentPage();
    if (!valid) {
        leadToMistake();
    }
    // On the last page only what still runs may refuse Finish.
    return isLastPage ? CanClose() : valid;
}

void OrvWizardWindow::leadToMistake()
{
    const auto* page = qobject_cast<OrvBasicWizardPage*>(currentPage());
    if (QWidget* field = page ? page->fieldToMend() : nullptr) {
        PageFocus::lead(*field);
    }
}

void OrvWizardWindow::reject()
{
    // Who has agreed to one question is not asked another.
    const QString lost = forgottenText();
    Consent consent = confirmInterruption();
    if (consent == Consent::NotNeeded) {
        consent = confirmStop(&PageData::ProgramsRunning, lost);
    }
    if (consent == Consent::NotNeeded && !lost.isEmpty()) {
        const QString question = lost + u'\n' + tr("Do you wish to close the wizard?");
        consent = MessageBox::ask(this, windowTitle(), question) ? Consent::Given : Consent::Refused;
    }
    if (consent != Consent::Refused) {
        QWizard::reject();
    }
}

void OrvWizardWindow::keyPressEvent(QKeyEvent* event)
{
    const QAbstractButton& next = *button(QWizard::NextButton);
    if (next.isVisible() && !next.isEnabled() && asksForNext(*event, next)) {
        leadToMistake();
        return;
    }
    QWizard::keyPressEvent(event);
}

void OrvWizardWindow::changeEvent(QEvent* event)
{
    QWizard::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setPixmap(QWizard::LogoPixmap, Logo::on(palette().color(QPalette::Base)));
    }
}

void OrvWizardWindow::CustomButtonClicked(int which)
{
    auto* page = qobject_cast<OrvBasicWizardPage*>(currentPage());
    if (which == QWizard::CustomButton1 && page) {
        page->CustomButtonAction();
    }
}

void OrvWizardWindow::ShowHelp()
{
    // One manager for all requests: each would answer F1 once more.
    if (!help) {
        help = new HelpManager(*appRegistry, this);
    }
    help->slt_showHelp(HelpManager::currentHelpPage);
}

void OrvWizardWindow::showHelpPage(const QString& page)
{
    help->showPageOf(page);
}

void OrvWizardWindow::Finished(int result)
{
    if (result == QDialog::Rejected) {
        stopChildren();
    } else if (!keepSettingsCheck || keepSettingsCheck->isChecked()) {
        saveState();
    }
}

void OrvWizardWindow::initializePage(int id)
{
    auto* entered = qobject_cast<OrvBasicWizardPage*>(page(id));
    if (entered && !entered->layout()) {
        entered->build();
    }
    QWizard::initializePage(id);
}

// By now the window is as large as its first page wants it.
void OrvWizardWindow::showEvent(QShowEvent* event)
{
    QWizard::showEvent(event);
    if (!event->spontaneous()) {
        ScreenFit::apply(*this);
    }
}

void OrvWizardWindow::closeEvent(QCloseEvent* event)
{
    const Consent consent = confirmInterruption();
    if (consent == Consent::Given) {
        stopChildren();
        event->accept();
        return;
    }
    event->setAccepted(consent == Consent::NotNeeded && CanClose());
}

OrvWizardWindow::Consent OrvWizardWindow::confirmStop(bool (PageData::*isBusy)() const, const QString& addition)
{
    const auto& pages = appRegistry->definitions.applicationPages;
    const bool running = std::ranges::any_of(pages, [&](const auto& page) { return (page.get()->*isBusy)(); });
    const bool anyStray = !pages.empty() && StrayProcesses::any();
    if (!running && !anyStray) {
        return Consent::NotNeeded;
    }
    QStringList additions{runningText(runningNames()), addition};
    additions.removeAll(QString());
    const bool agreed = MessageBox::ask(this, tr("Child Applications Still Running"),
                                        tr("Closing this application will kill child applications.\nDo you wish to "
                                           "close this application?"),
                                        additions.join(u'\n'));
    return agreed ? Consent::Given : Consent::Refused;
}

QStringList OrvWizardWindow::runningNames() const
{
    QStringList names;
    for (const auto& page : appRegistry->definitions.applicationPages) {
        names += page->runningNames();
    }
    if (names.isEmpty() && StrayProcesses::any()) {
        names += tr("a program that a tool has left running");
    }
    for (const QDialog* dialog : std::as_const(appRegistry->openDialogs)) {
        names += tr("window \"%1\"").arg(dialog->windowTitle());
    }
    return names;
}

QString OrvWizardWindow::runningText(const QStringList& names)
{
    return names.isEmpty() ? QString() : tr("Still open: %1").arg(names.join(u", "_s));
}

bool OrvWizardWindow::CanClose()
{
    if (confirmStop(&PageData::ApplicationsRunning) == Consent::Refused) {
        return false;
    }
    stopChildren();
    return true;
}

void OrvWizardWindow::stopChildren()
{
    for (const auto& page : appRegistry->definitions.applicationPages) {
        page->StopApplications();
    }
    appRegistry->ShutDown();
}

void OrvWizardWindow::enterPage()
{
    auto* page = qobject_cast<OrvBasicWizardPage*>(currentPage());
    if (!page) {
        return;
    }
    page->completeControls();
    QList<QWidget*> buttons;
    for (const auto which : {CustomButton1, BackButton, NextButton, FinishButton, CancelButton}) {
        buttons += button(which);
    }
    PageFocus::order(*page, buttons);
    PageFocus::enter(*page);
}

void OrvWizardWindow::saveState()
{
    FinishHook();
    if (saveGeometry) {
        appRegistry->windowPos = pos();
        appRegistry->windowSize = geometry().size();
        if (!appRegistry->WriteRegistry()) {
            qWarning("The wizard's values could not be stored.");
        }
    }
    if (savePersistedValues) {
        appRegistry->values.Write();
    }
}
