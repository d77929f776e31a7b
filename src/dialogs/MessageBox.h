// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// The program's questions and errors. Texts hold file names, so they are always shown as plain text.
namespace MessageBox {

/// A warning with Yes (the default) and No; true for Yes. What the question is about may stand below it.
bool ask(QWidget* parent, const QString& title, const QString& text, const QString& addition = {});

/// A warning with an Ok button. Below the text may stand on what it failed, the system's reason and what to do.
void warn(QWidget* parent, const QString& title, const QString& text, const QString& addition = {});

/// The same, but while such a box is open, further ones join it as lines of a list. Details stay behind a button until
/// the user asks for them.
void warnTogether(QWidget* parent, const QString& title, const QString& text, const QString& addition,
                  const QString& details = {});

} // namespace MessageBox
