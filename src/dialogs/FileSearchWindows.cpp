// SPDX-License-Identifier: MIT
#include "dialogs/FileSearch.h"

#include <QDir>

#include <memory>
#include <string>
#include <type_traits>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

struct CloseSearch
{
    void operator()(HANDLE search) const { ::FindClose(search); }
};

// In the form that is not bound to 260 characters.
std::wstring pattern(const QString& folder)
{
    const QString native = QDir::toNativeSeparators(folder.endsWith(u'/') ? folder + u'*' : folder + u"/*"_s);
    if (native.startsWith(u"\\\\?\\"_s)) {
        return native.toStdWString();
    }
    return (native.startsWith(u"\\\\"_s) ? u"\\\\?\\UNC"_s + native.sliced(1) : u"\\\\?\\"_s + native).toStdWString();
}

// A link to a folder, of either kind, may lead back up. Folders that a cloud holds are reparse points too, and no
// links.
bool isLink(const WIN32_FIND_DATAW& entry)
{
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (entry.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT || entry.dwReserved0 == IO_REPARSE_TAG_SYMLINK);
}

} // namespace

bool FileSearch::list(const QString& folder, Listener& listener, std::vector<QString>& subFolders) const
{
    WIN32_FIND_DATAW entry = {};
    const HANDLE first = ::FindFirstFileExW(pattern(folder).c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch,
                                            nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (first == INVALID_HANDLE_VALUE) {
        return true;
    }
    const std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseSearch> search(first);
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    QSet<QString> told;
    int seen = 0;
    do {
        if (++seen % entriesPerSign == 0 && !listener.keepAlive()) {
            return false;
        }
        if (entry.cFileName[0] == L'.' || (entry.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0 || isLink(entry)) {
            continue;
        }
        const QString name = QString::fromWCharArray(entry.cFileName);
        const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if ((!isFolder && !matches(name)) || !isNew(name, told)) {
            continue;
        }
        if (isFolder) {
            subFolders.push_back(prefix + name);
        } else if (listener.goOn()) {
            listener.fileFound(prefix + name);
        } else {
            return false;
        }
    } while (::FindNextFileW(first, &entry) != 0);
    return true;
}
