// SPDX-License-Identifier: MIT
#include "wizard/OutputView.h"
#include "dialogs/Contrast.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>

OutputView::OutputView(QWidget* parent)
    : QTextBrowser(parent)
{
    setReadOnly(true);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    // Wrapping long lines again at every change of size would stall the window.
    setLineWrapMode(QTextEdit::NoWrap);
    document()->setMaximumBlockCount(keptLines);
}

void OutputView::appendLines(const QStringList& lines)
{
    if (!lines.isEmpty()) {
        insertAtEnd(lines.join(u'\n'), {});
    }
}

void OutputView::appendMessage(const QString& text, const QColor& colour)
{
    QTextCharFormat format;
    if (colour == QColor(Qt::red)) {
        format.setForeground(Contrast::alarm(palette().color(QPalette::Base)));
    } else if (colour != QColor(Qt::black)) {
        format.setForeground(colour);
    }
    insertAtEnd(text, format);
}

void OutputView::insertAtEnd(const QString& text, const QTextCharFormat& format)
{
    QScrollBar* bar = verticalScrollBar();
    const bool follows = bar->value() >= bar->maximum();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty()) {
        cursor.insertBlock();
    }
    cursor.insertText(text, format);
    cursor.endEditBlock();
    if (follows) {
        bar->setValue(bar->maximum());
    }
}
