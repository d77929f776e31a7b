// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// The program's questions and errors. Texts hold file names, so they are always shown as plain text.
namespace MessageBox {

/// A warning with Yes (the default) and No; true for Yes.
bool ask(QWidget* parent, const QString& title, const QString& text);

/// A warning with an Ok button.
void warn(QWidget* parent, const QString& title, const QString& text);

} // namespace MessageBox
