// SPDX-License-Identifier: MIT
#include "IncludeFolders.h"
#include "Paths.h"

#include <utility>

using namespace Qt::StringLiterals;

IncludeFolders::IncludeFolders(QString workingDirectory, bool windowsPaths)
    : directory(std::move(workingDirectory))
    , windows(windowsPaths)
{
}

bool IncludeFolders::take(Meaning meaning, const QString& value)
{
    switch (meaning) {
    case Meaning::Folder:
        folders += {OptionKind::Folder, value};
        return true;
    case Meaning::QuoteFolder:
        folders += {OptionKind::QuoteFolder, value};
        return true;
    case Meaning::SystemFolder:
        folders += {OptionKind::SystemFolder, value};
        return true;
    case Meaning::SystemFolderOfC:
        folders += {OptionKind::SystemFolder, value, Only::C};
        return true;
    case Meaning::SystemFolderOfCpp:
        folders += {OptionKind::SystemFolder, value, Only::Cpp};
        return true;
    case Meaning::FolderBelowSysroot:
        folders += {OptionKind::SystemFolder, value.startsWith(u'/') ? u'=' + value : value};
        return true;
    case Meaning::AfterFolder:
        folders += {OptionKind::AfterFolder, value};
        return true;
    case Meaning::AfterPrefix:
        folders += {OptionKind::AfterFolder, prefix + value};
        return true;
    case Meaning::FolderAtPrefix:
        folders += {OptionKind::Folder, prefix + value};
        return true;
    default:
        return takeRoot(meaning, value);
    }
}

bool IncludeFolders::takeRoot(Meaning meaning, const QString& value)
{
    switch (meaning) {
    case Meaning::FoldersSoFarForQuotes:
        for (Folder& folder : folders) {
            if (folder.kind == OptionKind::Folder) {
                folder.kind = OptionKind::QuoteFolder;
            }
        }
        return true;
    case Meaning::Prefix:
        prefix = value;
        return true;
    case Meaning::Sysroot:
        root = absolute(value);
        return true;
    case Meaning::HeaderSysroot:
        headerSysroot = absolute(value);
        return true;
    case Meaning::WorkingDirectory:
        directory = absolute(value);
        return true;
    default:
        return false;
    }
}

QString IncludeFolders::absolute(const QString& path) const
{
    return Paths::absolute(directory, path, windows);
}

// A leading "=" or $SYSROOT stands for the system root.
QString IncludeFolders::finalPath(const QString& path) const
{
    for (const auto mark : {"="_L1, "$SYSROOT"_L1}) {
        if (path.startsWith(mark)) {
            return absolute(sysroot() + path.sliced(mark.size()));
        }
    }
    return absolute(path);
}

QList<Option> IncludeFolders::options(bool isC) const
{
    QList<Option> result;
    for (const Folder& folder : folders) {
        if (folder.only == Only::Any || (folder.only == Only::C) == isC) {
            result += {folder.kind, finalPath(folder.path)};
        }
    }
    return result;
}
