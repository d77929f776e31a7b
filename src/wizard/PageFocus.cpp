// SPDX-License-Identifier: MIT
#include "wizard/PageFocus.h"
#include "wizard/OrvBasicWizardPage.h"
#include "wizard/ReadingOrder.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>

#include <algorithm>

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

} // namespace

void PageFocus::order(const OrvBasicWizardPage& page, const QList<QWidget*>& buttons)
{
    const QList<QWidget*> stops = ReadingOrder::of(page) + buttons;
    for (qsizetype i = 1; i < stops.size(); ++i) {
        QWidget::setTabOrder(stops[i - 1], stops[i]);
    }
}

void PageFocus::enter(const OrvBasicWizardPage& page)
{
    const QList<QWidget*> stops = ReadingOrder::of(page);
    const auto first = std::ranges::find_if(
        stops, [&page](const QWidget* stop) { return stop->isVisibleTo(&page) && stop->isEnabled(); });
    QWidget* target = page.firstField();
    if (!target && first != stops.end()) {
        target = *first;
    }
    if (target) {
        target->setFocus();
        focusChecked(*target);
    }
}

void PageFocus::lead(QWidget& field)
{
    field.setFocus();
    if (auto* edit = qobject_cast<QLineEdit*>(&field)) {
        edit->selectAll();
    }
    // It may have had the focus, and yet have been scrolled away.
    for (QWidget* above = field.parentWidget(); above; above = above->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(above)) {
            area->ensureWidgetVisible(&field);
        }
    }
}
