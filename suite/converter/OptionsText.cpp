// SPDX-License-Identifier: MIT
#include "OptionsText.h"
#include "Failure.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QString& oneLine(const QString& option)
{
    if (option.contains(u'\n') || option.contains(u'\r')) {
        throw Failure{
            u"%1: this include folder or define holds a line break, which an option file can not. Change it."_s.arg(
                QString(option).replace(u'\n', u' '))};
    }
    return option;
}

QString quoted(const QString& path)
{
    return u'"' + QDir::toNativeSeparators(oneLine(path)) + u'"';
}

QString folder(const QString& kind, const QString& path)
{
    return (kind.isEmpty() ? QString() : u"*orv folder="_s + kind + u'\n') + u"-i "_s + quoted(path) + u'\n';
}

QString line(const Option& option, bool forC)
{
    switch (option.kind) {
    case OptionKind::Standard:
        return u"*orv standard="_s + oneLine(option.text) + u'\n';
    case OptionKind::Language:
        return u"*orv language="_s + option.text + u'\n';
    case OptionKind::Target:
        return u"*orv target="_s + oneLine(option.text) + u'\n';
    case OptionKind::Define:
        return OptionsText::define(option.text);
    case OptionKind::Undefine:
        return (forC ? u"-u "_s : u"*orv undefine="_s) + oneLine(option.text) + u'\n';
    case OptionKind::QuoteFolder:
        return folder(u"quote"_s, option.text);
    case OptionKind::Folder:
        return folder({}, option.text);
    case OptionKind::SystemFolder:
        return folder(u"system"_s, option.text);
    case OptionKind::AfterFolder:
        return folder(u"after"_s, option.text);
    case OptionKind::MacroFile:
        return u"*orv macros="_s + quoted(option.text) + u'\n';
    case OptionKind::ForcedInclude:
        return u"-fi "_s + quoted(option.text) + u'\n';
    }
    return {};
}

} // namespace

QString OptionsText::via(const QString& file)
{
    return file.isEmpty() ? QString() : u"-via "_s + quoted(file) + u'\n';
}

QString OptionsText::lines(const OptionPool& pool, const OptionPool::Set& set, bool forC)
{
    QString text;
    for (const quint32 option : set) {
        text += line(pool.option(option), forC);
    }
    return text;
}

QString OptionsText::define(const QString& text)
{
    return u"-d "_s + oneLine(text) + u'\n';
}
