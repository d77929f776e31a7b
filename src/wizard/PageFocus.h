// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class OrvBasicWizardPage;
class QWidget;

/// Where the focus goes on a page.
namespace PageFocus {

/// Tab goes through the page in the order in which it is read, then through these buttons.
void order(const OrvBasicWizardPage& page, const QList<QWidget*>& buttons);
/// Into the page's first control that can have it: a button that was just pressed and went has left it anywhere.
void enter(const OrvBasicWizardPage& page);
/// To a field that is wrong, with its text selected, and the page scrolled to it.
void lead(QWidget& field);

} // namespace PageFocus
