// SPDX-License-Identifier: MIT
#include "SourceLists.h"
#include "Failure.h"
#include "PathFilter.h"
#include "Paths.h"
#include "SourceCollector.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool hasEnding(const QString& suffix, const QStringList& extensions)
{
    return std::ranges::any_of(extensions, [&](const QString& wanted) {
        const bool tellsLanguage = wanted == "c"_L1 || wanted == "C"_L1;
        return suffix.compare(wanted, tellsLanguage ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
    });
}

// Lists that were written by older programs are not UTF-8.
QString textOf(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLocal8Bit(bytes) : text;
}

} // namespace

QStringList usualCppEndings()
{
    return u"cpp cc cxx c++ cp C c cppm ixx mpp mxx cxxm c++m ccm"_s.split(u' ');
}

void openText(QFile& file, const QString& kind)
{
    const QFileInfo info(file);
    // A pipe or a folder would open, too.
    if (info.isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return;
    }
    const QString reason = !info.exists()   ? u"it does not exist"_s
                           : !info.isFile() ? u"it is not a file"_s
                                            : file.errorString();
    throw Failure{u"%1: can not be read (%2). Name an existing %3."_s.arg(file.fileName(), reason, kind)};
}

void scanFolder(const QString& folder, const QStringList& extensions, const PathFilter& leaveOut,
                SourceCollector& collector)
{
    const QFileInfo root(folder);
    if (!root.isDir()) {
        throw Failure{u"%1: is not a folder. Name an existing source folder."_s.arg(folder)};
    }
    if (!root.isReadable() || !root.isExecutable()) {
        throw Failure{u"%1: can not be searched. Ask for the permission to read the folder."_s.arg(folder)};
    }
    const QString base = QDir::cleanPath(root.absoluteFilePath());
    QStringList files;
    QStringList pending{base};
    while (!pending.isEmpty()) {
        const QDir current(pending.takeLast());
        if (!QFileInfo(current.path()).isReadable()) {
            collector.complain(u"folders may not be read and are left out"_s, current.path());
            continue;
        }
        const QFileInfoList entries = current.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QFileInfo& entry : entries) {
            if (leaveOut.matches(entry.absoluteFilePath(), base)) {
                continue;
            }
            if (entry.isDir()) {
                // Links to folders may lead round in a circle.
                if (!entry.isSymLink()) {
                    pending += entry.absoluteFilePath();
                }
            } else if (hasEnding(entry.suffix(), extensions)) {
                files += entry.absoluteFilePath();
            }
        }
    }
    std::ranges::sort(files);
    for (const QString& file : std::as_const(files)) {
        collector.addFile(file);
    }
}

QStringList listedLines(const QString& fileName)
{
    QFile file(fileName);
    openText(file, u"text file"_s);
    QStringList lines;
    while (!file.atEnd()) {
        QByteArray bytes = file.readLine();
        if (lines.isEmpty() && bytes.startsWith("\xEF\xBB\xBF")) {
            bytes = bytes.sliced(3);
        }
        const QString line = textOf(bytes).trimmed();
        if (!line.isEmpty() && !line.startsWith(u'#')) {
            lines += line;
        }
    }
    return lines;
}

void readFileList(const QString& fileName, SourceCollector& collector)
{
    const QString folder = QFileInfo(fileName).absolutePath();
    for (const QString& line : listedLines(fileName)) {
        const bool windows = Paths::isWindows(line) || Paths::isWindows(folder);
        collector.addFile(Paths::absolute(folder, line, windows));
    }
}
