// SPDX-License-Identifier: MIT
#pragma once

#include "process/OutputDecoder.h"

#include <QIODevice>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class QPlainTextEdit;

/// Brings a long text into a view in portions, so that the window stays alive. What no view shows with comfort is left
/// out, and said so.
class TextPortions : public QObject
{
    Q_OBJECT

public:
    /// The view must live longer.
    explicit TextPortions(QPlainTextEdit& view, QObject* parent = nullptr);

    /// Shows the beginning at once, in place of what the view holds.
    void show(const QString& text);
    /// The same for what an open device holds, as a program printed it.
    void show(std::unique_ptr<QIODevice> device);
    /// Adds all that is still missing.
    void finish();
    bool isDone() const { return position >= pending.size() && !source; }

Q_SIGNALS:
    /// The view holds all that it will.
    void completed();

private:
    void restart();
    void appendSome();
    void appendPortion();
    void refill();
    void append(const QString& text);

    QPlainTextEdit& view;
    QTimer timer;
    /// What is not in the view yet begins at position, and goes on in the source.
    QString pending;
    qsizetype position = 0;
    std::unique_ptr<QIODevice> source;
    OutputDecoder decoder;
    qint64 characters = 0;
    qint64 lines = 0;
    qsizetype lineLength = 0;
};
