// SPDX-License-Identifier: MIT
#include "MacroExpander.h"
#include "../Failure.h"
#include "Properties.h"
#include "PropertyFunctions.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 20;
constexpr qsizetype longest = 1 << 20;

// Just after the parenthesis that closes the one before start; -1 when there is none.
qsizetype endOfParentheses(const QString& text, qsizetype start)
{
    int open = 1;
    QChar quote;
    for (qsizetype i = start; i < text.size(); ++i) {
        const QChar character = text[i];
        if (!quote.isNull()) {
            if (character == quote) {
                quote = QChar();
            }
        } else if (character == u'\'' || character == u'"' || character == u'`') {
            quote = character;
        } else if (character == u'(') {
            ++open;
        } else if (character == u')' && --open == 0) {
            return i + 1;
        }
    }
    return -1;
}

QStringList splitArguments(const QString& text)
{
    QStringList parts;
    qsizetype start = 0;
    int open = 0;
    QChar quote;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (!quote.isNull()) {
            quote = character == quote ? QChar() : quote;
        } else if (character == u'\'' || character == u'"' || character == u'`') {
            quote = character;
        } else if (character == u'(' || character == u')') {
            open += character == u'(' ? 1 : -1;
        } else if (character == u',' && open == 0) {
            parts += text.sliced(start, i - start);
            start = i + 1;
        }
    }
    parts += text.sliced(start);
    return parts;
}

QString unquoted(const QString& text)
{
    const QString part = text.trimmed();
    const bool isQuoted = part.size() >= 2 && part.front() == part.back() &&
                          (part.front() == u'\'' || part.front() == u'"' || part.front() == u'`');
    return isQuoted ? part.sliced(1).chopped(1) : part;
}

QString windowsFolder(const QString& path)
{
    return QFileInfo(path).absolutePath() + u'/';
}

} // namespace

QString MacroExpander::expand(const QString& text, int depth) const
{
    QString result;
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype start = text.indexOf("$("_L1, position);
        const qsizetype end = start < 0 ? -1 : endOfParentheses(text, start + 2);
        if (end < 0) {
            break;
        }
        result += QStringView(text).sliced(position, start - position);
        const QString body = text.sliced(start + 2, end - start - 3).trimmed();
        result += depth < deepest ? evaluate(body, depth) : UnknownMacros::mark(body);
        position = end;
        if (result.size() > longest) {
            throw Failure{u"%1: a macro grows without end (%2…). Mend the file."_s.arg(file, result.first(40))};
        }
    }
    return result + text.sliced(position);
}

QString MacroExpander::evaluate(const QString& body, int depth) const
{
    static const QRegularExpression name(u"^([A-Za-z_][A-Za-z0-9_-]*)"_s);
    if (body.startsWith(u'[')) {
        return evaluateStatic(body, depth);
    }
    const QRegularExpressionMatch match = name.match(body);
    const QString rest = body.sliced(match.capturedLength());
    if (rest.isEmpty()) {
        return macro(body);
    }
    if (!match.hasMatch() || !rest.startsWith(u'.')) {
        return UnknownMacros::mark(body);
    }
    return applyMembers(UnknownMacros::removed(macro(match.captured())), rest, body, depth);
}

QString MacroExpander::evaluateStatic(const QString& body, int depth) const
{
    static const QRegularExpression call(u"^\\[([\\w.]+)\\]::(\\w+)\\("_s);
    const QRegularExpressionMatch match = call.match(body);
    const qsizetype end = match.hasMatch() ? endOfParentheses(body, match.capturedLength()) : -1;
    if (end < 0) {
        return UnknownMacros::mark(body);
    }
    const QString inner = body.sliced(match.capturedLength(), end - match.capturedLength() - 1);
    const auto value = PropertyFunctions::callStatic(match.captured(1), match.captured(2), arguments(inner, depth),
                                                     QFileInfo(properties.text(u"MSBuildProjectFullPath"_s)).path());
    return value ? applyMembers(*value, body.sliced(end), body, depth) : UnknownMacros::mark(body);
}

QString MacroExpander::applyMembers(QString value, const QString& calls, const QString& body, int depth) const
{
    static const QRegularExpression member(u"^\\.(\\w+)(\\(?)"_s);
    QString rest = calls.trimmed();
    while (!rest.isEmpty()) {
        const QRegularExpressionMatch match = member.match(rest);
        if (!match.hasMatch()) {
            return UnknownMacros::mark(body);
        }
        qsizetype end = match.capturedLength();
        QStringList given;
        if (match.capturedLength(2) > 0) {
            end = endOfParentheses(rest, match.capturedLength());
            if (end < 0) {
                return UnknownMacros::mark(body);
            }
            given = arguments(rest.sliced(match.capturedLength(), end - match.capturedLength() - 1), depth);
        }
        const auto result = PropertyFunctions::callMember(value, match.captured(1), given);
        if (!result) {
            return UnknownMacros::mark(body);
        }
        value = *result;
        rest = rest.sliced(end).trimmed();
    }
    return value;
}

QStringList MacroExpander::arguments(const QString& text, int depth) const
{
    QStringList result;
    if (text.trimmed().isEmpty()) {
        return result;
    }
    const QStringList parts = splitArguments(text);
    for (const QString& part : parts) {
        result += UnknownMacros::removed(expand(unquoted(part), depth + 1));
    }
    return result;
}

QString MacroExpander::macro(const QString& name) const
{
    if (name.startsWith("MSBuildThisFile"_L1, Qt::CaseInsensitive)) {
        const QFileInfo info(file);
        const QString part = name.sliced(15).toLower();
        if (part.isEmpty()) {
            return info.fileName();
        }
        if (part == "directory"_L1) {
            return windowsFolder(file);
        }
        if (part == "directorynoroot"_L1) {
            return windowsFolder(file).sliced(1);
        }
        if (part == "fullpath"_L1) {
            return file;
        }
        if (part == "name"_L1) {
            return info.completeBaseName();
        }
        if (part == "extension"_L1) {
            return u'.' + info.suffix();
        }
    }
    if (const std::optional<QString> value = properties.value(name)) {
        return *value;
    }
    // A file may ask whether it is set, and set it itself.
    const bool isSolutionFolder = name.compare("SolutionDir"_L1, Qt::CaseInsensitive) == 0;
    return isSolutionFolder && purpose == Purpose::Value ? properties.text(u"ProjectDir"_s) : UnknownMacros::mark(name);
}
