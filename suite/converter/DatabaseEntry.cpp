// SPDX-License-Identifier: MIT
#include "DatabaseEntry.h"
#include "OptionSpellings.h"
#include "Paths.h"

#include <QHashFunctions>

#include <algorithm>

namespace {

bool isWindowsPath(QByteArrayView path)
{
    return Paths::isWindows(QString::fromUtf8(path.first(std::min<qsizetype>(path.size(), 3))));
}

// An option whose value names what the compiler writes.
bool namesOutput(QByteArrayView word)
{
    if (word.size() == 2) {
        return word[1] == 'o';
    }
    return word.size() == 3 && word[1] == 'M' && (word[2] == 'F' || word[2] == 'T' || word[2] == 'Q' || word[2] == 'J');
}

bool holdsOutput(QByteArrayView word)
{
    if (word.size() < 3 || (word[1] != 'F' && word[1] != 'W')) {
        return false;
    }
    return word.startsWith("/Fo") || word.startsWith("/Fd") || word.startsWith("-Wp,-MD,") ||
           word.startsWith("-Wp,-MMD,");
}

} // namespace

QByteArrayView DatabaseEntry::nameOf(QByteArrayView path)
{
    const auto isSeparator = [](char character) { return character == '/' || character == '\\'; };
    const auto found = std::find_if(path.rbegin(), path.rend(), isSeparator);
    return path.sliced(found.base() - path.begin());
}

void DatabaseEntry::clear()
{
    directory.resize(0);
    file.resize(0);
    output.resize(0);
    command.resize(0);
    arguments.clear();
    hasArguments = false;
}

bool DatabaseEntry::isWindows() const
{
    if (directory.startsWith('/') && !directory.startsWith("//")) {
        return false;
    }
    if (isWindowsPath(directory) || isWindowsPath(file)) {
        return true;
    }
    QByteArrayView compiler = hasArguments && arguments.size() > 0 ? arguments[0] : QByteArrayView(command);
    const bool quoted = compiler.startsWith('"');
    compiler = compiler.sliced(quoted ? 1 : 0);
    const qsizetype end = hasArguments ? compiler.size() : compiler.indexOf(quoted ? '"' : ' ');
    compiler = end < 0 ? compiler : compiler.first(end);
    return isWindowsPath(compiler) || compiler.toByteArray().toLower().endsWith(".exe");
}

// The source itself, and no option's value of the same name.
bool DatabaseEntry::isFile(qsizetype i) const
{
    return nameOf(arguments[i]) == nameOf(file) && !OptionSpellings::takesNextWord(QString::fromUtf8(arguments[i - 1]));
}

size_t DatabaseEntry::key() const
{
    size_t hash = qHashBits(directory.constData(), size_t(directory.size()), QHashSeed::globalSeed());
    qsizetype first = 0;
    const auto hashUpTo = [&](qsizetype last) {
        const QByteArrayView piece = arguments.piece(first, last);
        hash = qHashBits(piece.data(), size_t(piece.size()), hash);
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QByteArrayView word = arguments[i];
        if (word.isEmpty()) {
            continue;
        }
        const bool isOption = word[0] == '-';
        const bool takesNext = isOption && namesOutput(word);
        if (takesNext || holdsOutput(word) || (!isOption && i > 0 && isFile(i))) {
            hashUpTo(i);
            i += takesNext ? 1 : 0;
            first = i + 1;
        }
    }
    hashUpTo(arguments.size());
    return hash;
}

QByteArrayView DatabaseEntry::objectFile() const
{
    if (!output.isEmpty()) {
        return output;
    }
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QByteArrayView word = arguments[i];
        if (word == "-o" && i + 1 < arguments.size()) {
            return arguments[i + 1];
        }
        if (word.startsWith("/Fo") && word.size() > 3) {
            return word.sliced(3);
        }
    }
    return {};
}
