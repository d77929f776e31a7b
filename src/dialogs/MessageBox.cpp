// SPDX-License-Identifier: MIT
#include "dialogs/MessageBox.h"

#include <QMessageBox>

bool MessageBox::ask(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

void MessageBox::warn(QWidget* parent, const QString& title, const QString& text, const QString& details)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box.setDetailedText(details);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
