// SPDX-License-Identifier: MIT
#include "dialogs/XpmImage.h"

#include <QFile>
#include <QPixmap>

#include <vector>

QPixmap XpmImage::load(const QString& resource)
{
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray source = file.readAll();
    // An array of C strings without escapes: each is ended where its quote closes.
    std::vector<const char*> strings;
    qsizetype end = -1;
    for (qsizetype begin = source.indexOf('"'); begin >= 0; begin = source.indexOf('"', end + 1)) {
        end = source.indexOf('"', begin + 1);
        if (end < 0) {
            return {};
        }
        source[end] = '\0';
        strings.push_back(source.constData() + begin + 1);
    }
    return strings.empty() ? QPixmap() : QPixmap(strings.data());
}
