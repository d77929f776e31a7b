// SPDX-License-Identifier: MIT
#include "ToolText.h"

QByteArray ToolText::forNinja(const QString& text)
{
    return text.toUtf8();
}

QByteArray ToolText::forCppcheck(const QString& text)
{
    return text.toUtf8();
}

QString ToolText::fromFile(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes);
}

QString ToolText::fromChannel(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes);
}
