// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppRegistry.h"
#include "Controls.h"
#include "Installation.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>

/// The real wizard, driven as a user would: by what its controls are called.
class WizardDriver
{
public:
    explicit WizardDriver(const QStringList& arguments = {});

    ApplicationWindow window;

    /// The visible control of the current page with this accessible name or text; fails the test's process when absent.
    QLineEdit& edit(const QString& name) const { return controlCalled<QLineEdit>(page(), name); }
    QComboBox& combo(const QString& name) const { return controlCalled<QComboBox>(page(), name); }
    QAbstractButton& button(const QString& name) const { return controlCalled<QAbstractButton>(page(), name); }
    bool has(const QString& name) const { return findControl(page(), name); }
    /// The texts of the page's visible labels.
    QStringList labels() const;
    QString output() const { return page().findChild<QTextBrowser*>()->toPlainText(); }
    bool canGoOn() const { return window.button(QWizard::NextButton)->isEnabled(); }
    void press(QWizard::WizardButton which) const;
    /// The accessible names of the page's visible buttons that are checked.
    QStringList checked() const;
    /// Fills the start page and presses Next.
    void passStartPage(const QString& name, const QString& folder, const QString& type) const;

private:
    const QWidget& page() const { return *window.currentPage(); }
};

/// Starts a suite whose only conversion type "T" runs this script, or with none a missing program, with the project
/// file and the input "E".
AppRegistry& startSuite(Installation& suite, const QByteArray& script, const QByteArray& more = {});
/// Leads the wizard to the conversion of "p.prj" in the folder "work".
void convert(const WizardDriver& wizard, const Installation& suite);
