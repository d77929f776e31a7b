// SPDX-License-Identifier: MIT
#include "definitions/EnvironmentValue.h"

#include <QDir>
#include <QFile>

#include <algorithm>

QString EnvironmentValue(const QString& name, bool orCurrentFolder, const QStringList& environment)
{
    const QString prefix = (name.startsWith(u'$') ? name.sliced(1) : name) + u'=';
    const auto entry = std::ranges::find_if(
        environment, [&](const QString& text) { return text.startsWith(prefix, Qt::CaseInsensitive); });
    QString value = entry == environment.end() ? QString() : entry->section(u'=', 1, 1);
    if (orCurrentFolder && !QFile::exists(value)) {
        value = QDir::currentPath();
    }
    return value;
}
