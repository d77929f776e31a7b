// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextDocument>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;

/// A line below a text view that finds words in it; at the end it goes on at the beginning. While the text is still
/// being read, a search waits for the words instead.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// Selects the next place of the words in the view, and tells whether there is one.
    using Finder = std::function<bool(const QString& words, QTextDocument::FindFlags flags)>;
    /// Puts the view's cursor to the beginning, or to the end.
    using Mover = std::function<void(bool toEnd)>;

    FindBar(Finder finder, Mover mover, QWidget* parent = nullptr);

    /// Appears with the words selected.
    void open();
    void find(bool backward);
    /// Whether the view has the whole text by now; a search that waits for words goes on.
    void setComplete(bool complete);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void clearResult();

    Finder findWords;
    Mover moveCursor;
    QLineEdit* edit;
    QLabel* result;
    bool isComplete = true;
    bool isWaiting = false;
};
