// SPDX-License-Identifier: MIT
#include "dialogs/FileSearch.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#ifdef Q_OS_UNIX
#include <dirent.h>
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// How many entries may pass before the listener hears of it.
constexpr int entriesPerSign = 256;

bool isPlainSuffix(QStringView pattern)
{
    const auto isSpecial = [](QChar character) {
        return character == u'*' || character == u'?' || character == u'[' || character == u'\\';
    };
    return pattern.size() > 1 && pattern.startsWith(u'*') && std::ranges::none_of(pattern.sliced(1), isSpecial);
}

QString below(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

} // namespace

FileSearch::FileSearch(const QStringList& wildcards)
{
    for (const QString& wildcard : wildcards) {
        if (isPlainSuffix(wildcard)) {
            patterns.push_back({wildcard.sliced(1), {}});
        } else {
            patterns.push_back({{},
                                QRegularExpression(QRegularExpression::wildcardToRegularExpression(wildcard),
                                                   QRegularExpression::CaseInsensitiveOption)});
        }
    }
}

bool FileSearch::matches(const QString& name) const
{
    return std::ranges::any_of(patterns, [&name](const Pattern& pattern) {
        return pattern.suffix.isEmpty() ? pattern.expression.match(name).hasMatch()
                                        : name.endsWith(pattern.suffix, Qt::CaseInsensitive);
    });
}

void FileSearch::run(const QString& folder, Listener& listener) const
{
    std::vector<QString> pending{QDir(folder).absolutePath()};
    while (!pending.empty()) {
        const QString current = std::move(pending.back());
        pending.pop_back();
        listener.folderEntered(current);
        std::vector<QString> subFolders;
        if (!list(current, listener, subFolders)) {
            return;
        }
        std::move(subFolders.rbegin(), subFolders.rend(), std::back_inserter(pending));
    }
}

#ifdef Q_OS_UNIX

namespace {

// Most file systems tell the kind with the name, which spares a question per entry.
unsigned char kindOf(const dirent& entry, const QByteArray& folder)
{
    if (entry.d_type != DT_UNKNOWN) {
        return entry.d_type;
    }
    struct stat facts = {};
    if (::lstat((folder + '/' + entry.d_name).constData(), &facts) != 0) {
        return DT_UNKNOWN;
    }
    return S_ISREG(facts.st_mode) ? DT_REG : S_ISDIR(facts.st_mode) ? DT_DIR : DT_UNKNOWN;
}

} // namespace

bool FileSearch::list(const QString& folder, Listener& listener, std::vector<QString>& subFolders) const
{
    const QByteArray name = QFile::encodeName(folder);
    const auto close = [](DIR* stream) { ::closedir(stream); };
    const std::unique_ptr<DIR, decltype(close)> stream(::opendir(name.constData()), close);
    if (!stream) {
        return true;
    }
    for (int seen = 1; const dirent* entry = ::readdir(stream.get()); ++seen) {
        if (seen % entriesPerSign == 0 && !listener.keepAlive()) {
            return false;
        }
        if (entry->d_name[0] == '.') {
            continue;
        }
        const unsigned char kind = kindOf(*entry, name);
        if (kind == DT_DIR) {
            subFolders.push_back(below(folder, QFile::decodeName(entry->d_name)));
        } else if (kind == DT_REG) {
            const QString fileName = QFile::decodeName(entry->d_name);
            if (matches(fileName)) {
                if (!listener.goOn()) {
                    return false;
                }
                listener.fileFound(below(folder, fileName));
            }
        }
    }
    return std::ranges::all_of(subFolders, [&listener](const QString&) { return listener.goOn(); });
}

#else

bool FileSearch::list(const QString& folder, Listener& listener, std::vector<QString>& subFolders) const
{
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::NoSort);
    int seen = 0;
    for (const QFileInfo& entry : entries) {
        if (++seen % entriesPerSign == 0 && !listener.keepAlive()) {
            return false;
        }
        if (entry.isDir()) {
            subFolders.push_back(entry.absoluteFilePath());
        } else if (matches(entry.fileName())) {
            if (!listener.goOn()) {
                return false;
            }
            listener.fileFound(entry.absoluteFilePath());
        }
    }
    return std::ranges::all_of(subFolders, [&listener](const QString&) { return listener.goOn(); });
}

#endif
