// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Files that this system writes: whole or not at all.
namespace ResultFile {

/// The contents; empty when the file can not be read.
QByteArray read(const QString& path);

/// Replaces the file, making its folders. Throws a Failure that names it and says why it can not be written.
void write(const QString& path, const QByteArray& contents);

/// The same for a file that nobody reads but the process that writes it; it may be half there after a kill.
void writeScratch(const QString& path, const QByteArray& contents);

/// Leaves a file alone that holds these contents already, so that its time tells when they changed.
void writeChanged(const QString& path, const QByteArray& contents);

} // namespace ResultFile
