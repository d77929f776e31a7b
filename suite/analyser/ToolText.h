// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// What files and channels lead to Ninja and cppcheck and back. Elsewhere than on Windows all of it is UTF-8; there the
/// two read files in the system's code page, except a Ninja that says that it does not. A letter without a place in
/// that page becomes a question mark.
namespace ToolText {

QByteArray forNinja(const QString& text);
QByteArray forCppcheck(const QString& text);
/// From a file that one of them has written.
QString fromFile(const QByteArray& bytes);
/// From cppcheck's channels, which are in the page of the consoles.
QString fromChannel(const QByteArray& bytes);

} // namespace ToolText
