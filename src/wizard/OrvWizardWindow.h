// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWizard>

class HelpManager;
class PageData;
class QAbstractButton;

/// The wizard frame of the suite: look, custom button, closing and what is kept when the wizard finishes.
class OrvWizardWindow : public QWizard
{
    Q_OBJECT

public:
    OrvWizardWindow(const QString& title, const QString& helpPage, QWidget* parent = nullptr);

    bool validateCurrentPage() override;
    /// Asks before a running conversion or tool is given up.
    void reject() override;

    bool offersHelp() const { return help; }
    /// Shows a page of the suite's help, or the general one where there is none of that name.
    void showHelpPage(const QString& page);

public Q_SLOTS:
    virtual void CustomButtonClicked(int which);
    void ShowHelp();
    void Finished(int result);

protected:
    /// Has a page build itself before it is entered for the first time.
    void initializePage(int id) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// True when the window may go; what still runs has been stopped then.
    virtual bool CanClose();
    enum class Consent { NotNeeded, Given, Refused };
    /// Asks whether what the current page is doing may be given up, if it does something.
    virtual Consent confirmInterruption() { return Consent::NotNeeded; }
    /// What is lost when the wizard is left now without Finish, where a user would not expect it; empty otherwise.
    virtual QString forgottenText() const { return {}; }
    /// What runs besides the current page, and what windows are open, for the user.
    QStringList runningNames() const;
    /// The line that tells it below a question; empty when there is nothing to tell.
    static QString runningText(const QStringList& names);
    virtual void FinishHook() {}

    QAbstractButton* printButton = nullptr;
    bool saveGeometry = true;
    bool savePersistedValues = true;
    /// When there is one, the state is kept only while it is checked.
    QAbstractButton* keepSettingsCheck = nullptr;

private:
    void saveState();
    /// Asks, when a launcher page is busy, whether what runs may be stopped.
    Consent confirmStop(bool (PageData::*isBusy)() const, const QString& addition = {});
    void stopChildren();
    void enterPage();
    /// Gives the focus to what the current page is waiting for.
    void leadToMistake();
    /// Grows for what the page would have to scroll, as far as the screen has room.
    void fitPage();

    HelpManager* help = nullptr;
};
