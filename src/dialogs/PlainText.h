// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Keeps texts that come from files or programs from being taken for markup or shortcuts.
namespace PlainText {

/// A tool tip that shows exactly this text.
QString toolTip(const QString& text);

/// A label's, button's or title's text in which an ampersand stands for itself.
QString withoutMnemonic(QString text);

} // namespace PlainText
