// SPDX-License-Identifier: MIT
#include "project/ArgumentExpander.h"
#include "project/OptionSources.h"
#include "project/ProjectData.h"

using namespace Qt::StringLiterals;

ArgumentExpander::ArgumentExpander(const ArgumentValues& standFor, const OptionSources& files)
    : values(standFor)
    , sources(files)
{
}

Result<QStringList> ArgumentExpander::expand(const QStringList& arguments)
{
    Result<QStringList> result;
    for (const QString& item : arguments) {
        result.value += expand(item);
    }
    result.problem = problem;
    return result;
}

QStringList ArgumentExpander::expand(const QString& item)
{
    if (item == "%Q"_L1) {
        return {values.analyser};
    }
    if (item == "%PF"_L1) {
        return {values.projectFile};
    }
    if (item == "%P+"_L1) {
        QStringList result{u"-via"_s, values.optionFile};
        if (!values.extraOptionFile.isEmpty()) {
            result += {u"-via"_s, values.extraOptionFile};
        }
        return result;
    }
    if (item == "%P"_L1) {
        return {values.optionFile};
    }
    if (item == "%L+"_L1) {
        return {u"-list"_s, values.listFile};
    }
    if (item == "%L"_L1) {
        return {values.listFile};
    }
    if (item == "%R+"_L1) {
        return {u"-file"_s, newFile()};
    }
    return {item == "%R"_L1 ? newFile() : item};
}

QString ArgumentExpander::newFile()
{
    QString name = sources.temporaryFile(u".txt"_s);
    if (name.isEmpty()) {
        problem = ProjectData::cannotMakeFile();
    }
    return name;
}
