// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// What no data file of the suite needs, and what would cost time or memory without bound.
namespace XmlBounds {

constexpr qsizetype largestDocument = 256LL * 1024 * 1024;
/// A tag with so many costs the reader the square of their number.
constexpr int mostAttributes = 1000;

/// Why the document is not to be read, and the line of it, counted from 1. No reason: it may be.
struct Refusal
{
    qint64 line = 0;
    QString reason = {};
};
Refusal check(const QByteArray& document);

} // namespace XmlBounds
