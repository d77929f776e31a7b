// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// What a program prints, as text: each line as UTF-8, or where it is none in the system's own encoding, on Windows
/// that of its consoles.
class OutputDecoder
{
public:
    /// The next bytes; a character that they cut in two comes with the next call.
    QString decode(const QByteArray& bytes);
    /// All of it at once.
    static QString text(QByteArrayView bytes);

private:
    QByteArray cut;
};
