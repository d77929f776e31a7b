// SPDX-License-Identifier: MIT
#include "ResponseFiles.h"
#include "Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// What one command may bring along; a build that needs more than this does not exist.
constexpr qsizetype bytesOfOneCommand = 64LL * 1024 * 1024;
constexpr qsizetype deepest = 50;

} // namespace

ResponseFiles::ResponseFiles(QString folder, CommandWords::Rules fileRules, bool windowsPaths)
    : directory(std::move(folder))
    , rules(fileRules)
    , windows(windowsPaths)
    , bytesLeft(bytesOfOneCommand)
{
}

QStringList ResponseFiles::expand(const QStringList& words)
{
    QStringList result;
    for (const QString& word : words) {
        take(word, result);
    }
    return result;
}

void ResponseFiles::take(const QString& word, QStringList& result)
{
    if (word.size() > 1 && word.startsWith(u'@')) {
        takeFile(word.sliced(1), result);
    } else {
        result += word;
    }
}

void ResponseFiles::takeFile(const QString& name, QStringList& result)
{
    const QString path = Paths::absolute(directory, name, windows);
    if (open.contains(path) || open.size() >= deepest) {
        complaints += u"@%1: the file leads back to itself"_s.arg(name);
        return;
    }
    const QByteArray text = contents(path);
    if (text.isEmpty()) {
        return;
    }
    CommandWords words;
    if (!words.split(text, rules)) {
        complaints += u"@%1: a quote is not closed"_s.arg(name);
    }
    open += path;
    for (const QString& word : words.texts()) {
        take(word, result);
    }
    open.removeLast();
}

QByteArray ResponseFiles::contents(const QString& path)
{
    QFile file(path);
    const QFileInfo info(file);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        complaints += u"@%1: %2"_s.arg(path, !info.exists()   ? u"the file does not exist"_s
                                             : !info.isFile() ? u"it is not a file"_s
                                                              : file.errorString());
        return {};
    }
    if (file.size() > bytesLeft) {
        complaints += u"@%1: too large"_s.arg(path);
        return {};
    }
    QByteArray text = file.read(bytesLeft);
    bytesLeft -= text.size();
    // Build tools of Windows write UTF-16.
    if (const auto encoding = QStringConverter::encodingForData(text)) {
        QStringDecoder decoder(*encoding);
        return QString(decoder(text)).toUtf8();
    }
    return text;
}
