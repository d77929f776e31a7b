// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/ApplicationWindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTextBrowser>

/// The real wizard, driven as a user would: by what its controls are called.
class WizardDriver
{
public:
    explicit WizardDriver(const QStringList& arguments = {});

    ApplicationWindow window;

    /// The visible control of the current page with this accessible name or text; fails the test's process when absent.
    QLineEdit& edit(const QString& name) const { return find<QLineEdit>(name); }
    QComboBox& combo(const QString& name) const { return find<QComboBox>(name); }
    QAbstractButton& button(const QString& name) const { return find<QAbstractButton>(name); }
    bool has(const QString& name) const;
    /// The texts of the page's visible labels.
    QStringList labels() const;
    QString output() const { return window.currentPage()->findChild<QTextBrowser*>()->toPlainText(); }
    bool canGoOn() const { return window.button(QWizard::NextButton)->isEnabled(); }
    void press(QWizard::WizardButton which) const;
    /// Fills the start page and presses Next.
    void passStartPage(const QString& name, const QString& folder, const QString& type) const;

private:
    template <typename Control>
    Control& find(const QString& name) const
    {
        const auto controls = window.currentPage()->findChildren<Control*>();
        for (Control* control : controls) {
            if (control->isVisible() && isCalled(*control, name)) {
                return *control;
            }
        }
        qFatal("no visible control is called %s", qPrintable(name));
    }
    static bool isCalled(const QWidget& control, const QString& name);
};
