// SPDX-License-Identifier: MIT
// Looking for every C++-only option in a personality of 1 MB, against the same searches in a text that is in memory.
#include "personality/FileScans.h"
#include "personality/OptionTables.h"
#include "Ratio.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

int main()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"large.p_a"_s);
    const QByteArray text = QByteArray("-d SOME_DEFINE=1\n-via \"/a/path/to/another/file\"\n").repeated(20000);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        return 1;
    }
    file.close();
    const QString inMemory = QString::fromLatin1(text).toCaseFolded();
    bool found = false;
    const auto ours = [&] { found |= FileScans::mentionsCppOnlyOption(name); };
    const auto bare = [&] {
        for (const QString& option : OptionTables::cppOnlyOptions()) {
            found |= inMemory.contains(option);
        }
    };
    const int result = Ratio::report("scanning a 1 MB personality for 92 options", 1.5, ours, bare);
    return found ? 1 : result;
}
