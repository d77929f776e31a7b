// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Searches in personality and metrics files that tell which analyser they belong to. A path that names no readable
/// regular file holds nothing. Of a file larger than 8 MiB only the beginning is searched.
namespace FileScans {

/// An option that only the C analyser knows, followed by "+", "-" or a blank, in any letter case.
bool mentionsCOnlyOption(const QString& path);
/// An option that only the C++ analyser knows, anywhere, in any letter case.
bool mentionsCppOnlyOption(const QString& path);
/// A metric that only the C analyser, or only the C++ analyser, writes.
bool hasCMetrics(const QString& path);
bool hasCppMetrics(const QString& path);

/// A personality that the chosen analyser would not understand.
bool isForOtherAnalyser(const QString& path, bool isC);

} // namespace FileScans
