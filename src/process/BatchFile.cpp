// SPDX-License-Identifier: MIT
#include "process/BatchFile.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchFile)
};

// Within quotes only two signs mean something: the quote, which stands for itself when doubled, and "%", which begins
// the name of a variable. An empty piece of a variable that is always there divides it from what follows.
QString quoted(const QString& argument)
{
    QString text = argument;
    text.replace(u'%', u"%%cd:~,%"_s).replace(u'"', u"\"\""_s);
    qsizetype backslashes = 0;
    while (text.endsWith(QString(backslashes + 1, u'\\'))) {
        ++backslashes;
    }
    return u'"' + text + QString(backslashes, u'\\') + u'"';
}

} // namespace

bool BatchFile::isOne(const QString& program)
{
    return program.endsWith(u".bat"_s, Qt::CaseInsensitive) || program.endsWith(u".cmd"_s, Qt::CaseInsensitive);
}

Result<QString> BatchFile::interpreterArguments(const QString& program, const QStringList& arguments)
{
    // Extensions are on for the piece of a variable, "!" means nothing, no program of the registry's runs before.
    QString line = u"/e:ON /v:OFF /d /c \""_s + quoted(QDir::toNativeSeparators(program));
    for (const QString& argument : arguments) {
        const auto* bad = std::ranges::find_if(
            argument, [](QChar character) { return character == u'\n' || character == u'\r' || character.isNull(); });
        if (bad != argument.end()) {
            return {{}, Text::tr("A batch file can not be given an argument with a line break: %1").arg(argument)};
        }
        line += u' ' + quoted(argument);
    }
    return {line + u'"'};
}
