// SPDX-License-Identifier: MIT
#include "InlineSuppressions.h"
#include "Finding.h"
#include "ResultFile.h"

#include <QByteArrayList>

namespace {

bool isCommentLine(const QByteArray& line)
{
    return line.startsWith("//") || (line.startsWith("/*") && line.endsWith("*/"));
}

/// The ids after the word: one, or several in brackets.
bool names(const QByteArray& line, const QByteArray& id)
{
    constexpr QByteArrayView word("cppcheck-suppress");
    const qsizetype at = line.indexOf(word);
    if (at < 0) {
        return false;
    }
    QByteArray rest = line.sliced(at + word.size()).trimmed();
    if (rest.startsWith('[')) {
        const QByteArrayList ids = rest.sliced(1, std::max<qsizetype>(0, rest.indexOf(']') - 1)).split(',');
        for (const QByteArray& each : ids) {
            if (each.trimmed().split(' ').first() == id) {
                return true;
            }
        }
        return false;
    }
    return rest.split(' ').first() == id;
}

} // namespace

bool isSuppressedInline(const Finding& finding)
{
    const QByteArrayList lines = ResultFile::read(finding.file).split('\n');
    const QByteArray id = finding.id.toUtf8();
    qsizetype line = finding.line - 1;
    if (line < 0 || line >= lines.size()) {
        return false;
    }
    if (names(lines[line], id)) {
        return true;
    }
    while (--line >= 0 && isCommentLine(lines[line].trimmed())) {
        if (names(lines[line], id)) {
            return true;
        }
    }
    return false;
}
