// SPDX-License-Identifier: MIT
#include "process/OutputLog.h"

void OutputLog::start(const QString& fileName)
{
    finish();
    cut = false;
    file.setFileName(fileName);
    if (fileName.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        file.setFileName(QString());
    }
}

void OutputLog::append(const QString& text)
{
    if (!file.isOpen()) {
        return;
    }
    const QByteArray bytes = text.toLocal8Bit();
    cut = cut || file.pos() >= largestSize || file.write(bytes) != bytes.size();
}

void OutputLog::finish()
{
    file.close();
}
