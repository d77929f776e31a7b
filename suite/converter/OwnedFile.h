// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// A file of which the upper part is ours and what stands below a mark the user's.
namespace OwnedFile {

/// Our part with the head that says whose it is, then the mark and what the user has below it in the file of this name.
/// Throws Failure when that file was not written by this program.
QByteArray contents(const QString& path, const QString& ownText);

/// What the user has put into a file of ours, or nothing.
QByteArray userPart(const QString& path);

/// Whether this program has written the file.
bool isOurs(const QString& path);

} // namespace OwnedFile
