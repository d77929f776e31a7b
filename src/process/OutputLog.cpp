// SPDX-License-Identifier: MIT
#include "process/OutputLog.h"

void OutputLog::start(const QString& fileName)
{
    finish();
    file.setFileName(fileName);
    if (fileName.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        file.setFileName(QString());
    }
}

void OutputLog::append(const QString& text)
{
    if (file.isOpen() && file.pos() < largestSize) {
        file.write(text.toLocal8Bit());
    }
}

void OutputLog::finish()
{
    file.close();
}
