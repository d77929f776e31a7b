// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

class QColor;

/// Shows a program's output as plain text and keeps a bounded number of lines.
class OutputView : public QTextBrowser
{
    Q_OBJECT

public:
    static constexpr int keptLines = 5000;

    explicit OutputView(QWidget* parent = nullptr);

    /// Adds paragraphs at the end; follows them unless the user scrolled away.
    void appendLines(const QStringList& lines);
    /// Adds one paragraph in a colour; black means the view's own text colour.
    void appendMessage(const QString& text, const QColor& colour);

private:
    void insertAtEnd(const QString& text, const QTextCharFormat& format);
};
