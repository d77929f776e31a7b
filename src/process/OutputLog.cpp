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

void OutputLog::append(const QByteArray& bytes)
{
    if (!file.isOpen()) {
        return;
    }
    cut = cut || file.pos() >= largestSize || file.write(bytes) != bytes.size();
}

void OutputLog::finish()
{
    file.close();
}
