// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>
#include <QWidget>

/// The visible control below a widget with this accessible name or text; null when there is none.
template <typename Control = QWidget>
Control* findControl(const QWidget& root, const QString& name)
{
    const auto controls = root.findChildren<Control*>();
    for (Control* control : controls) {
        if (control->isVisible() && (control->accessibleName() == name || control->property("text") == name)) {
            return control;
        }
    }
    return nullptr;
}

/// The same for one that must be there: fails the test's process when absent.
template <typename Control>
Control& controlCalled(const QWidget& root, const QString& name)
{
    Control* control = findControl<Control>(root, name);
    if (!control) {
        qFatal("no visible control is called %s", qPrintable(name));
    }
    return *control;
}
