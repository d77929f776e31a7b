// SPDX-License-Identifier: MIT
#include "wizard/OrvWizardWindow.h"
#include "app/AppRegistry.h"
#include "dialogs/HelpManager.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "process/StrayProcesses.h"
#include "wizard/OrvBasicWizardPage.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QIcon>
#include <QPixmap>

#include <algorithm>

using namespace Qt::StringLiterals;

OrvWizardWindow::OrvWizardWindow(const QString& title, const QString& helpPage, QWidget* parent)
    : QWizard(parent)
{
    setWindowTitle(title);
    MainWindow::set(this);
    HelpManager::currentHelpPage = helpPage;
    setWizardStyle(QWizard::ModernStyle);
    setWindowIcon(QIcon(u":/AKOVRAIcon.xpm"_s));
    setPixmap(QWizard::LogoPixmap, QPixmap(u":/logo_shadow.jpg"_s));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint);
    setOptions(QWizard::HaveCustomButton1 | QWizard::NoBackButtonOnLastPage | QWizard::NoBackButtonOnStartPage);
    if (HelpManager::HelpAvailable()) {
        setOption(QWizard::HaveHelpButton);
        help = new HelpManager(this);
    }
    printButton = button(QWizard::CustomButton1);
    printButton->setText(tr("&Print"));
    printButton->hide();
    connect(this, &QWizard::customButtonClicked, this, &OrvWizardWindow::CustomButtonClicked);
    connect(this, &QWizard::helpRequested, this, &OrvWizardWindow::ShowHelp);
    connect(this, &QDialog::finished, this, &OrvWizardWindow::Finished);
    connect(this, &QWizard::currentIdChanged, this, &OrvWizardWindow::focusPage);
    resize(appRegistry->windowSize);
    move(appRegistry->windowPos);
}

bool OrvWizardWindow::validateCurrentPage()
{
    const bool isLastPage = nextId() == -1;
    const bool valid = QWizard::validateCurrentPage();
    // On the last page only what still runs may refuse Finish.
    return isLastPage ? CanClose() : valid;
}

void OrvWizardWindow::reject()
{
    if (confirmInterruption() && confirmStop(&PageData::ProgramsRunning)) {
        QWizard::reject();
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
        help = new HelpManager(this);
    }
    help->slt_showHelp(HelpManager::currentHelpPage);
}

void OrvWizardWindow::Finished(int result)
{
    if (result == QDialog::Rejected) {
        stopChildren();
    } else if (!keepSettingsCheck || keepSettingsCheck->isChecked()) {
        saveState();
    }
}

void OrvWizardWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(confirmInterruption() && CanClose());
}

bool OrvWizardWindow::confirmStop(bool (PageData::*isBusy)() const)
{
    const auto& pages = appRegistry->definitions.applicationPages;
    const bool running = std::ranges::any_of(pages, [&](const auto& page) { return (page.get()->*isBusy)(); });
    const bool anyStray = !pages.empty() && StrayProcesses::any();
    return (!running && !anyStray) ||
           MessageBox::ask(this, tr("Child Applications Still Running"),
                           tr("Closing this application will kill child applications.\nDo you wish to "
                              "close this application?"));
}

bool OrvWizardWindow::CanClose()
{
    if (!confirmStop(&PageData::ApplicationsRunning)) {
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

// A page that hides fields may have the focus in one of them.
void OrvWizardWindow::focusPage()
{
    QWidget* page = currentPage();
    const QWidget* focused = focusWidget();
    if (!page || (focused && page->isAncestorOf(focused) && focused->isVisible())) {
        return;
    }
    for (QWidget* widget = page->nextInFocusChain(); widget != page; widget = widget->nextInFocusChain()) {
        if (page->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0) {
            widget->setFocus();
            return;
        }
    }
}

void OrvWizardWindow::saveState()
{
    FinishHook();
    if (saveGeometry) {
        appRegistry->windowPos = pos();
        appRegistry->windowSize = geometry().size();
        appRegistry->WriteRegistry();
    }
    if (savePersistedValues) {
        appRegistry->values.Write();
    }
}
