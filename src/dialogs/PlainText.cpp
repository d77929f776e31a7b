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
