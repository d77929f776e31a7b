// SPDX-License-Identifier: MIT
#include "personality/FileScans.h"
#include "personality/OptionTables.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// Personalities and metrics are small; of anything larger the beginning decides.
constexpr qint64 largestText = 8LL * 1024 * 1024;

constexpr std::array cMetricNames = {"<S>STAV1", "<S>STAV2", "<S>STAV3", "<S>STBAK", "<S>STBME",
                                     "<S>STBMO", "<S>STBMS", "<S>STBUG", "<S>STCAL"};
constexpr std::array cppMetricNames = {"<S>STDIT", "<S>STNOP", "<S>STMTH", "<S>STNOC",
                                       "<S>STRFC", "<S>STWMC", "<S>STLCM", "<S>STCBO"};

QByteArray readText(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    // A read takes the memory for all that it may read.
    return file.read(std::min(largestText, file.size()));
}

bool isSetting(QStringView text, qsizetype at)
{
    return at < text.size() && (text[at] == u'+' || text[at] == u'-' || text[at] == u' ');
}

// One pass over the text, stopping at its hyphens: a search for each of the options would read it 92 times.
bool mentionsAny(QStringView text, const QStringList& options, bool onlySettings)
{
    std::array<std::vector<QStringView>, 128> byLetter;
    for (const QString& option : options) {
        byLetter[option[1].unicode()].push_back(option);
    }
    for (qsizetype at = text.indexOf(u'-'); at >= 0 && at + 1 < text.size(); at = text.indexOf(u'-', at + 1)) {
        const char16_t letter = text[at + 1].toCaseFolded().unicode();
        if (letter >= byLetter.size()) {
            continue;
        }
        for (const QStringView option : byLetter[letter]) {
            if (text.sliced(at).startsWith(option, Qt::CaseInsensitive) &&
                (!onlySettings || isSetting(text, at + option.size()))) {
                return true;
            }
        }
    }
    return false;
}

QString decoded(const QString& path)
{
    return QString::fromLocal8Bit(readText(path));
}

template <size_t count>
bool containsAny(const QByteArray& text, const std::array<const char*, count>& names)
{
    return std::ranges::any_of(names, [&](const char* name) { return text.contains(name); });
}

} // namespace

bool FileScans::mentionsCOnlyOption(const QString& path)
{
    return mentionsAny(decoded(path), OptionTables::cOnlyOptions(), true);
}

bool FileScans::mentionsCppOnlyOption(const QString& path)
{
    return mentionsAny(decoded(path), OptionTables::cppOnlyOptions(), false);
}

bool FileScans::hasCMetrics(const QString& path)
{
    return containsAny(readText(path), cMetricNames);
}

bool FileScans::hasCppMetrics(const QString& path)
{
    return containsAny(readText(path), cppMetricNames);
}

bool FileScans::isForOtherAnalyser(const QString& path, bool isC)
{
    return isC ? mentionsCppOnlyOption(path) : mentionsCOnlyOption(path);
}
