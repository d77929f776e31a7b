// SPDX-License-Identifier: MIT
#include "dialogs/FileSearch.h"

#include <QFile>
#include <QStringBuilder>

#include <dirent.h>
#include <memory>
#include <sys/stat.h>

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
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    QSet<QString> told;
    for (int seen = 1; const dirent* entry = ::readdir(stream.get()); ++seen) {
        if (seen % entriesPerSign == 0 && !listener.keepAlive()) {
            return false;
        }
        if (entry->d_name[0] == '.') {
            continue;
        }
        const unsigned char kind = kindOf(*entry, name);
        if (kind != DT_DIR && kind != DT_REG) {
            continue;
        }
        const QString entryName = QFile::decodeName(entry->d_name);
        if ((kind == DT_REG && !matches(entryName)) || !isNew(entryName, told)) {
            continue;
        }
        if (kind == DT_DIR) {
            subFolders.push_back(prefix + entryName);
        } else if (listener.goOn()) {
            // In as much memory as it needs: there may be millions.
            listener.fileFound(prefix % entryName);
        } else {
            return false;
        }
    }
    return true;
}
