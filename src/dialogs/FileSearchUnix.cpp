// SPDX-License-Identifier: MIT
#include "dialogs/FileSearch.h"

#include <QFile>

#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace {

QString below(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

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
    return true;
}
