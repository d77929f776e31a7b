// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Every backslash becomes a slash.
QString ToForwardSlashes(QString text);

/// b below a, cleaned; b alone when a is empty.
QString JoinPath(const QString& a, const QString& b);

/// The absolute, cleaned path of name below directory; an absolute name stands.
QString AbsoluteJoin(const QString& directory, const QString& name);

/// The native path between double quotes, as option files want it.
QString QuotedNativePath(const QString& path);

/// The path if it exists, else the same file name in xmlArea, the home folder or the current folder, else the path.
QString LocateFile(const QString& path, const QString& xmlArea);
