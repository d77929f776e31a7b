// SPDX-License-Identifier: MIT
#include "PropertyFunctions.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString slashed(QString path)
{
    return path.replace(u'\\', u'/');
}

QString absolute(const QString& folder, const QString& path)
{
    return QDir::cleanPath(QDir(folder).absoluteFilePath(slashed(path)));
}

QString withSlash(const QString& path)
{
    return path.isEmpty() || path.endsWith(u'/') || path.endsWith(u'\\') ? path : path + u'/';
}

QString joined(const QStringList& parts)
{
    QString path;
    for (const QString& part : parts) {
        path = QDir::isAbsolutePath(slashed(part)) ? slashed(part) : withSlash(path) + slashed(part);
    }
    return path;
}

// The nearest folder, from start upwards, that holds the file; empty when none does.
QString folderAbove(const QString& start, const QString& fileName)
{
    QDir folder(start);
    while (!QFileInfo::exists(folder.filePath(fileName))) {
        if (folder.isRoot() || !folder.cdUp()) {
            return {};
        }
    }
    return folder.path();
}

QString trimmedBy(QString value, const QString& characters, bool atStart)
{
    while (!value.isEmpty() && atStart && characters.contains(value.front())) {
        value.remove(0, 1);
    }
    while (!value.isEmpty() && !atStart && characters.contains(value.back())) {
        value.chop(1);
    }
    return value;
}

QString boolean(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

} // namespace

std::optional<QString> PropertyFunctions::callStatic(const QString& type, const QString& name,
                                                     const QStringList& arguments, const QString& folder)
{
    const QString function = (type + u':' + name).toLower();
    const QString first = arguments.value(0);
    if (function == "msbuild:getdirectorynameoffileabove"_L1) {
        return folderAbove(absolute(folder, first), arguments.value(1));
    }
    if (function == "msbuild:getpathoffileabove"_L1) {
        const QString found = folderAbove(absolute(folder, arguments.value(1)), first);
        return found.isEmpty() ? found : found + u'/' + first;
    }
    if (function == "msbuild:ensuretrailingslash"_L1) {
        return withSlash(first);
    }
    if (function == "msbuild:normalizepath"_L1 || function == "system.io.path:getfullpath"_L1) {
        return absolute(folder, joined(arguments));
    }
    if (function == "msbuild:normalizedirectory"_L1) {
        return withSlash(absolute(folder, joined(arguments)));
    }
    if (function == "system.io.path:combine"_L1) {
        return joined(arguments);
    }
    if (function == "system.io.path:getdirectoryname"_L1) {
        return slashed(first).section(u'/', 0, -2);
    }
    if (function == "system.io.path:getfilename"_L1) {
        return slashed(first).section(u'/', -1);
    }
    if (function == "system.environment:getenvironmentvariable"_L1) {
        return qEnvironmentVariable(first.toUtf8().constData());
    }
    return {};
}

std::optional<QString> PropertyFunctions::callMember(const QString& value, const QString& name,
                                                     const QStringList& arguments)
{
    const QString function = name.toLower();
    const QString first = arguments.value(0);
    if (function == "contains"_L1) {
        return boolean(value.contains(first));
    }
    if (function == "startswith"_L1) {
        return boolean(value.startsWith(first));
    }
    if (function == "endswith"_L1) {
        return boolean(value.endsWith(first));
    }
    if (function == "replace"_L1 && !first.isEmpty()) {
        return QString(value).replace(first, arguments.value(1));
    }
    if (function == "tolower"_L1 || function == "tolowerinvariant"_L1) {
        return value.toLower();
    }
    if (function == "toupper"_L1 || function == "toupperinvariant"_L1) {
        return value.toUpper();
    }
    if (function == "trim"_L1 && arguments.isEmpty()) {
        return value.trimmed();
    }
    if (function == "trimend"_L1 || function == "trimstart"_L1) {
        return trimmedBy(value, first.isEmpty() ? u" \t\r\n"_s : first, function == "trimstart"_L1);
    }
    if (function == "length"_L1) {
        return QString::number(value.size());
    }
    return {};
}
