// SPDX-License-Identifier: MIT
#include "personality/FileScans.h"
#include "personality/OptionTables.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestText = 64LL * 1024 * 1024;

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
    return file.read(largestText);
}

// Folded once, so that every entry is a plain search in the same text.
QString readFolded(const QString& path)
{
    return QString::fromLocal8Bit(readText(path)).toCaseFolded();
}

bool isSetting(QStringView text, qsizetype at)
{
    return at < text.size() && (text[at] == u'+' || text[at] == u'-' || text[at] == u' ');
}

bool containsSetting(QStringView text, QStringView option)
{
    for (qsizetype at = text.indexOf(option); at >= 0; at = text.indexOf(option, at + 1)) {
        if (isSetting(text, at + option.size())) {
            return true;
        }
    }
    return false;
}

template <size_t count>
bool containsAny(const QByteArray& text, const std::array<const char*, count>& names)
{
    return std::ranges::any_of(names, [&](const char* name) { return text.contains(name); });
}

} // namespace

bool FileScans::mentionsCOnlyOption(const QString& path)
{
    const QString text = readFolded(path);
    return std::ranges::any_of(OptionTables::cOnlyOptions(),
                               [&](const QString& option) { return containsSetting(text, option); });
}

bool FileScans::mentionsCppOnlyOption(const QString& path)
{
    const QString text = readFolded(path);
    return std::ranges::any_of(OptionTables::cppOnlyOptions(),
                               [&](const QString& option) { return text.contains(option); });
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
