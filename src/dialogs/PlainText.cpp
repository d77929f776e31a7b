// SPDX-License-Identifier: MIT
#include "dialogs/PlainText.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

QString PlainText::toolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? u"<qt>"_s + text.toHtmlEscaped() + u"</qt>"_s : text;
}

QString PlainText::withoutMnemonic(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

QString PlainText::withShortLines(QStringView text, qsizetype longest)
{
    qsizetype lineLength = 0;
    return withShortLines(text, longest, lineLength);
}

QString PlainText::withShortLines(QStringView text, qsizetype longest, qsizetype& lineLength)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        lineLength = character == u'\n' ? 0 : lineLength + 1;
        result += character;
        if (lineLength >= longest && !character.isHighSurrogate()) {
            result += u'\n';
            lineLength = 0;
        }
    }
    return result;
}
