// SPDX-License-Identifier: MIT
#include "dialogs/MessageBox.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

namespace {

constexpr int leastWidth = 440;

// Wide enough for its title and for the details.
void widen(QMessageBox& box)
{
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(leastWidth, 0, QSizePolicy::Minimum), grid->rowCount(), 0, 1,
                      grid->columnCount());
    }
}

} // namespace

bool MessageBox::ask(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    widen(box);
    return box.exec() == QMessageBox::Yes;
}

void MessageBox::warn(QWidget* parent, const QString& title, const QString& text, const QString& details)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box.setDetailedText(details);
    box.setTextFormat(Qt::PlainText);
    widen(box);
    box.exec();
}
