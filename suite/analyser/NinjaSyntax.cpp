// SPDX-License-Identifier: MIT
#include "NinjaSyntax.h"

using namespace Qt::StringLiterals;

QString NinjaSyntax::shellQuoted(const QString& word)
{
#ifdef Q_OS_UNIX
    return u'\'' + QString(word).replace(u'\'', u"'\\''"_s) + u'\'';
#else
    return u'"' + word + u'"';
#endif
}

QString NinjaSyntax::value(QString text)
{
    return text.replace(u'$', u"$$"_s);
}

QString NinjaSyntax::path(const QString& path)
{
    return value(path).replace(u' ', u"$ "_s).replace(u':', u"$:"_s);
}

QString NinjaSyntax::launcher([[maybe_unused]] const QString& given)
{
#ifdef Q_OS_UNIX
    return u"$$"_s + QLatin1StringView(launcherVariable) + u' ';
#else
    return value(given) + u' ';
#endif
}
