// SPDX-License-Identifier: MIT
#include "dialogs/FindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

FindBar::FindBar(Finder finder, Mover mover, QWidget* parent)
    : QWidget(parent)
    , findWords(std::move(finder))
    , moveCursor(std::move(mover))
    , edit(new QLineEdit)
    , result(new QLabel)
{
    auto* label = new QLabel(tr("F&ind:"));
    label->setBuddy(edit);
    edit->setAccessibleName(tr("Find in the text"));
    edit->setClearButtonEnabled(true);
    auto* next = new QPushButton(tr("&Next"));
    auto* previous = new QPushButton(tr("&Previous"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(label);
    row->addWidget(edit, 1);
    row->addWidget(next);
    row->addWidget(previous);
    row->addWidget(result);
    for (QPushButton* button : {next, previous}) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, backward = button == previous] { find(backward); });
    }
    connect(edit, &QLineEdit::textChanged, this, &FindBar::clearResult);
}

void FindBar::open()
{
    show();
    edit->setFocus();
    edit->selectAll();
}

void FindBar::find(bool backward)
{
    const QString words = edit->text();
    clearResult();
    if (words.isEmpty()) {
        return;
    }
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (findWords(words, flags)) {
        return;
    }
    if (!isComplete && !backward) {
        isWaiting = true;
        result->setText(tr("Not found yet. The text is still being read."));
        return;
    }
    moveCursor(backward);
    result->setText(findWords(words, flags) ? (backward ? tr("Went on at the end.") : tr("Went on at the beginning."))
                                            : tr("Not found."));
}

void FindBar::setComplete(bool complete)
{
    isComplete = complete;
    if (isWaiting && isComplete) {
        find(false);
    }
}

void FindBar::clearResult()
{
    isWaiting = false;
    result->clear();
}

// Enter finds, with Shift backwards; Escape closes the bar, not the window.
void FindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        find(event->modifiers().testFlag(Qt::ShiftModifier));
    } else {
        QWidget::keyPressEvent(event);
    }
}
