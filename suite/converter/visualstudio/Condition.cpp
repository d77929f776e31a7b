// SPDX-License-Identifier: MIT
#include "Condition.h"
#include "Properties.h"

#include <QStringList>

#include <compare>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 100;

std::optional<bool> boolean(const QString& text)
{
    static const QStringList yes{u"true"_s, u"on"_s, u"yes"_s, u"!false"_s, u"!off"_s, u"!no"_s};
    static const QStringList no{u"false"_s, u"off"_s, u"no"_s, u"!true"_s, u"!on"_s, u"!yes"_s};
    if (yes.contains(text, Qt::CaseInsensitive)) {
        return true;
    }
    return no.contains(text, Qt::CaseInsensitive) ? std::optional(false) : std::nullopt;
}

std::optional<double> number(const QString& text)
{
    bool isNumber = false;
    const double value = text.startsWith("0x"_L1, Qt::CaseInsensitive) ? double(text.toLongLong(&isNumber, 16))
                                                                       : text.toDouble(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

bool equal(const QString& left, const QString& right)
{
    if (const auto a = number(left), b = number(right); a && b) {
        return std::is_eq(*a <=> *b);
    }
    if (const auto a = boolean(left), b = boolean(right); a && b) {
        return *a == *b;
    }
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

std::optional<bool> compare(const QString& left, QStringView sign, const QString& right)
{
    if (sign == "=="_L1) {
        return equal(left, right);
    }
    if (sign == "!="_L1) {
        return !equal(left, right);
    }
    const auto a = number(left);
    const auto b = number(right);
    if (!a || !b) {
        return {};
    }
    const bool holds = (sign.startsWith(u'<') && *a < *b) || (sign.startsWith(u'>') && *a > *b);
    return holds || (sign.endsWith(u'=') && std::is_eq(*a <=> *b));
}

class Parser
{
public:
    Parser(const QString& condition, const ConditionContext& asked)
        : text(condition)
        , context(asked)
    {
    }

    std::optional<bool> parse()
    {
        const std::optional<bool> result = alternatives();
        skipBlanks();
        return isWrong || position < text.size() ? std::nullopt : result;
    }

private:
    // As in three-valued logic: what is unknown counts only where it decides.
    std::optional<bool> alternatives()
    {
        std::optional<bool> result = conjunction();
        while (takeWord("or"_L1)) {
            const std::optional<bool> right = conjunction();
            result = result == true || right == true ? std::optional(true)
                     : result && right               ? std::optional(false)
                                                     : std::nullopt;
        }
        return result;
    }

    std::optional<bool> conjunction()
    {
        std::optional<bool> result = term();
        while (takeWord("and"_L1)) {
            const std::optional<bool> right = term();
            result = result == false || right == false ? std::optional(false)
                     : result && right                 ? std::optional(true)
                                                       : std::nullopt;
        }
        return result;
    }

    std::optional<bool> term()
    {
        skipBlanks();
        if (++depth > deepest) {
            isWrong = true;
            return {};
        }
        const std::optional<bool> result = nestedTerm();
        --depth;
        return result;
    }

    std::optional<bool> nestedTerm()
    {
        if (take(u'!')) {
            const std::optional<bool> result = term();
            return result ? std::optional(!*result) : std::nullopt;
        }
        if (take(u'(')) {
            const std::optional<bool> result = alternatives();
            skipBlanks();
            isWrong = isWrong || !take(u')');
            return result;
        }
        const QString left = operand();
        skipBlanks();
        if (isFunction && take(u'(')) {
            return call(left);
        }
        for (const auto& sign : {"=="_L1, "!="_L1, "<="_L1, ">="_L1, "<"_L1, ">"_L1}) {
            if (QStringView(text).sliced(position).startsWith(sign)) {
                position += sign.size();
                return compare(UnknownMacros::removed(left), QString(sign), UnknownMacros::removed(operand()));
            }
        }
        return boolean(left);
    }

    std::optional<bool> call(const QString& function)
    {
        const QString argument = operand();
        skipBlanks();
        isWrong = isWrong || !take(u')');
        if (function.compare("Exists"_L1, Qt::CaseInsensitive) == 0) {
            return !argument.isEmpty() && context.exists(argument);
        }
        if (function.compare("HasTrailingSlash"_L1, Qt::CaseInsensitive) == 0) {
            return argument.endsWith(u'/') || argument.endsWith(u'\\');
        }
        return {};
    }

    // A quoted text, a macro or a bare word; isFunction tells of the last.
    QString operand()
    {
        skipBlanks();
        isFunction = false;
        const qsizetype start = position;
        if (take(u'\'')) {
            const qsizetype end = endOfQuoted();
            const QString inner = text.sliced(start + 1, end - start - 1);
            position = std::min(end + 1, text.size());
            return context.expand(inner);
        }
        if (QStringView(text).sliced(position).startsWith("$("_L1)) {
            skipMacro();
            return context.expand(text.sliced(start, position - start));
        }
        while (position < text.size() && (text[position].isLetterOrNumber() || u"._-"_s.contains(text[position]))) {
            ++position;
        }
        isFunction = true;
        isWrong = isWrong || position == start;
        return text.sliced(start, position - start);
    }

    qsizetype endOfQuoted()
    {
        while (position < text.size() && text[position] != u'\'') {
            if (QStringView(text).sliced(position).startsWith("$("_L1)) {
                skipMacro();
            } else {
                ++position;
            }
        }
        isWrong = isWrong || position >= text.size();
        return position;
    }

    void skipMacro()
    {
        position += 2;
        for (int open = 1; open > 0; ++position) {
            if (position >= text.size()) {
                isWrong = true;
                return;
            }
            open += text[position] == u'(' ? 1 : text[position] == u')' ? -1 : 0;
        }
    }

    bool takeWord(QLatin1StringView word)
    {
        skipBlanks();
        const QStringView rest = QStringView(text).sliced(position);
        const bool isThere = rest.startsWith(word, Qt::CaseInsensitive) &&
                             (rest.size() == word.size() || !rest[word.size()].isLetterOrNumber());
        position += isThere ? word.size() : 0;
        return isThere;
    }

    bool take(QChar character)
    {
        const bool isThere = position < text.size() && text[position] == character;
        position += isThere ? 1 : 0;
        return isThere;
    }

    void skipBlanks()
    {
        while (position < text.size() && text[position].isSpace()) {
            ++position;
        }
    }

    const QString& text;
    const ConditionContext& context;
    qsizetype position = 0;
    int depth = 0;
    bool isFunction = false;
    bool isWrong = false;
};

} // namespace

std::optional<bool> evaluateCondition(const QString& text, const ConditionContext& context)
{
    return text.trimmed().isEmpty() ? std::optional(true) : Parser(text, context).parse();
}
