// SPDX-License-Identifier: MIT
#include "IncludeScan.h"
#include "ResultFile.h"
#include "ToolText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Include
{
    QString name;
    bool isQuoted;
};

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

void skipBlanks(const QByteArray& text, qsizetype& at)
{
    while (at < text.size() && isBlank(text[at])) {
        ++at;
    }
}

/// The include directive whose "#" stands at this place, with an empty name when it is another one.
Include directiveAt(const QByteArray& text, qsizetype at)
{
    ++at;
    skipBlanks(text, at);
    constexpr QByteArrayView word("include");
    if (QByteArrayView(text).sliced(at).first(std::min(word.size(), text.size() - at)) != word) {
        return {};
    }
    at += word.size();
    skipBlanks(text, at);
    if (at >= text.size() || (text[at] != '"' && text[at] != '<')) {
        return {};
    }
    const bool isQuoted = text[at] == '"';
    const qsizetype end = text.indexOf(isQuoted ? '"' : '>', at + 1);
    const qsizetype line = text.indexOf('\n', at);
    if (end < 0 || (line >= 0 && line < end)) {
        return {};
    }
    return {QString::fromUtf8(text.sliced(at + 1, end - at - 1)), isQuoted};
}

bool beginsLine(const QByteArray& text, qsizetype at)
{
    while (at > 0 && isBlank(text[at - 1])) {
        --at;
    }
    return at == 0 || text[at - 1] == '\n';
}

QList<Include> includesOf(const QString& path)
{
    QList<Include> result;
    const QByteArray text = ResultFile::read(path);
    for (qsizetype at = text.indexOf('#'); at >= 0; at = text.indexOf('#', at + 1)) {
        if (beginsLine(text, at)) {
            const Include include = directiveAt(text, at);
            if (!include.name.isEmpty()) {
                result += include;
            }
        }
    }
    return result;
}

QString beside(const QString& includer, const QString& name)
{
    return QDir::cleanPath(includer.left(includer.lastIndexOf(u'/') + 1) + name);
}

} // namespace

IncludeScan::IncludeScan(QStringList searchedFolders)
    : folders(std::move(searchedFolders))
{
}

QStringList IncludeScan::filesOf(const QStringList& files)
{
    QStringList found = files;
    QSet<QString> seen(found.cbegin(), found.cend());
    for (qsizetype i = 0; i < found.size(); ++i) {
        const QList<Include> includes = includesOf(found[i]);
        for (const Include& include : includes) {
            const QString path = find(include.name, include.isQuoted, found[i]);
            if (path.isEmpty()) {
                noteMissing(include.name, include.isQuoted, found[i]);
            } else if (!seen.contains(path)) {
                seen += path;
                found += path;
            }
        }
    }
    return found;
}

void IncludeScan::noteMissing(const QString& name, bool isQuoted, const QString& includer)
{
    missingFiles += name;
    if (isQuoted) {
        quotedNames += name;
    }
    if (isQuoted && !QDir::isAbsolutePath(name)) {
        missingFiles += beside(includer, name);
    }
}

bool IncludeScan::wouldFind(const QStringList& missing)
{
    return std::ranges::any_of(missing, [this](const QString& name) { return !find(name, false, {}).isEmpty(); });
}

QString IncludeScan::find(const QString& name, bool isQuoted, const QString& includer)
{
    if (QDir::isAbsolutePath(name)) {
        return isFile(name) ? name : QString();
    }
    if (isQuoted) {
        const QString path = beside(includer, name);
        if (isFile(path)) {
            return path;
        }
    }
    for (const QString& folder : std::as_const(folders)) {
        const QString path = QDir::cleanPath(folder + u'/' + name);
        if (isFile(path)) {
            return path;
        }
    }
    return {};
}

bool IncludeScan::isFile(const QString& path)
{
    const auto known = knownFiles.constFind(path);
    return known != knownFiles.cend() ? *known : *knownFiles.insert(path, QFileInfo(path).isFile());
}

QByteArray dependencyRule(const QString& target, const QStringList& files)
{
    QByteArray rule = ToolText::forNinja(target) + ':';
    for (const QString& file : files) {
        QByteArray name = ToolText::forNinja(file);
        // Ninja can not read a name with one of these out of a rule; no header in use has one.
        if (name.contains('*') || name.contains(';') || name.contains('<') || name.contains('>') ||
            name.contains('|') || name.contains('^') || name.contains('`')) {
            continue;
        }
        rule += " \\\n " + name.replace("$", "$$").replace(" ", "\\ ").replace("#", "\\#");
    }
    return rule + '\n';
}
