// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// Keeps texts that come from files or programs from being taken for markup or shortcuts.
namespace PlainText {

/// A tool tip that shows exactly this text.
QString toolTip(const QString& text);

/// A label's, button's or title's text in which an ampersand stands for itself.
QString withoutMnemonic(QString text);

/// The text with line breaks added so that no line is longer. A view lays out a line as a whole; a very long one would
/// stall it.
QString withShortLines(QStringView text, qsizetype longest);
/// The same for a part of a text; lineLength is that of the line which the part goes on with, and ends with.
QString withShortLines(QStringView text, qsizetype longest, qsizetype& lineLength);

} // namespace PlainText
