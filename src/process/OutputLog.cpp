// SPDX-License-Identifier: MIT
#include "process/OutputLog.h"

void OutputLog::start(const QString& fileName)
{
    finish();
    cut = false;
    file.setFileName(fileName);
    lastByte = '\n';
    if (fileName.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        file.setFileName(QString());
    }
}

void OutputLog::append(const QByteArray& bytes)
{
    if (!file.isOpen()) {
        return;
    }
    lastByte = bytes.isEmpty() ? lastByte : bytes.back();
    cut = cut || file.pos() >= largestSize || file.write(bytes) != bytes.size();
}

void OutputLog::endWith(const QString& line)
{
    if (file.isOpen() && !line.isEmpty()) {
        const QByteArray bytes = (lastByte == '\n' ? "" : "\n") + line.toLocal8Bit() + '\n';
        cut = file.write(bytes) != bytes.size() || cut;
    }
    finish();
}

void OutputLog::finish()
{
    // A full disk may be told of only now.
    cut = cut || (file.isOpen() && !file.flush());
    file.close();
    if (cut && file.size() == 0) {
        file.setFileName(QString());
    }
}
