// SPDX-License-Identifier: MIT
#include "wizard/OrvWizardWindow.h"
#include "app/AppRegistry.h"
#include "dialogs/HelpManager.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "launchers/PageData.h"
#include "process/StrayProcesses.h"
#include "wizard/OrvBasicWizardPage.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QRadioButton>
#include <QScreen>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Of buttons that exclude each other the checked one gets the focus: the other would seem to be chosen.
void focusChecked(const QWidget& focused)
{
    const auto* radio = qobject_cast<const QRadioButton*>(&focused);
    if (!radio || radio->isChecked()) {
        return;
    }
    const auto siblings = radio->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    for (QRadioButton* sibling : siblings) {
        if (sibling->isChecked()) {
            sibling->setFocus();
        }
    }
}

// A position and a size may have been stored for a screen that is gone or was larger, and a page may want more room
// than there is. The frame is not known before the window is shown.
void fitOnScreen(QWidget& window)
{
    const QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
    const QRect available = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    const int title = std::max(frame.height(), window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize most = available.size() - QSize(frame.width(), title);
    // A maximised window is the window manager's to fit.
    if (!window.isMaximized() && window.size() != window.size().boundedTo(most)) {
        window.resize(window.size().boundedTo(most));
    }
    const QPoint last(available.right() + 1 - window.width() - frame.width(),
                      available.bottom() + 1 - window.height() - title);
    const QPoint place(std::clamp(window.x(), available.left(), std::max(available.left(), last.x())),
                       std::clamp(window.y(), available.top(), std::max(available.top(), last.y())));
    if (!window.isMaximized() && place != window.pos()) {
        window.move(place);
    }
}

} // namespace

OrvWizardWindow::OrvWizardWindow(const QString& title, const QString& helpPage, QWidget* parent)
    : QWizard(parent)
{
    setWindowTitle(title);
    MainWindow::set(this);
    HelpManager::currentHelpPage = helpPage;
    setWizardStyle(QWizard::ModernStyle);
    // With their formats named, Qt does not load every plugin to find out.
    setWindowIcon(QPixmap(u":/AKOVRAIcon.xpm"_s, "XPM"));
    setPixmap(QWizard::LogoPixmap, QPixmap(u":/logo_shadow.jpg"_s, "JPG"));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint);
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
    connect(this, &QWizard::currentIdChanged, this, &OrvWizardWindow::focusPage);
    // Queued: by then the page has its size.
    connect(
        this, &QWizard::currentIdChanged, this, [this] { fitOnScreen(*this); }, Qt::QueuedConnection);
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
    // Who has agreed to one question is not asked another.
    const Consent consent = confirmInterruption();
    if (consent == Consent::Given || (consent == Consent::NotNeeded && confirmStop(&PageData::ProgramsRunning))) {
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
        help = new HelpManager(*appRegistry, this);
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

// By now the window is as large as its first page wants it.
void OrvWizardWindow::showEvent(QShowEvent* event)
{
    QWizard::showEvent(event);
    if (!event->spontaneous()) {
        fitOnScreen(*this);
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

bool OrvWizardWindow::confirmStop(bool (PageData::*isBusy)() const)
{
    const auto& pages = appRegistry->definitions.applicationPages;
    const bool running = std::ranges::any_of(pages, [&](const auto& page) { return (page.get()->*isBusy)(); });
    const bool anyStray = !pages.empty() && StrayProcesses::any();
    return (!running && !anyStray) ||
           MessageBox::ask(this, tr("Child Applications Still Running"),
                           tr("Closing this application will kill child applications.\nDo you wish to "
                              "close this application?"),
                           runningText(runningNames()));
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
    if (!page) {
        return;
    }
    if (focused && page->isAncestorOf(focused) && focused->isVisible()) {
        focusChecked(*focused);
        return;
    }
    for (QWidget* widget = page->nextInFocusChain(); widget != page; widget = widget->nextInFocusChain()) {
        if (page->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0) {
            widget->setFocus();
            focusChecked(*widget);
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
        if (!appRegistry->WriteRegistry()) {
            qWarning("The wizard's values could not be stored.");
        }
    }
    if (savePersistedValues) {
        appRegistry->values.Write();
    }
}
