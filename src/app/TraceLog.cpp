// SPDX-License-Identifier: MIT
#include "app/TraceLog.h"

#include <QDebug>

void TraceLog::openFile(const QString& name)
{
    // Tried with a file of its own: what is written now stays where it is if this one can not be.
    QFile wanted(name);
    if (!wanted.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return;
    }
    wanted.close();
    close();
    file.setFileName(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return;
    }
    stream.setDevice(&file);
    on = true;
}

void TraceLog::write(const QString& label, const QString& value)
{
    if (!on) {
        return;
    }
    if (stream.device()) {
        stream << label << value << '\n';
    } else {
        qDebug() << label << value;
    }
}

void TraceLog::write(const QString& label, bool flag)
{
    if (on && !stream.device()) {
        qDebug() << qPrintable(label) << flag;
        return;
    }
    write(label, QString::number(int(flag)));
}

void TraceLog::writeVariable(const QString& label, const QString& name, const QString& value)
{
    if (on && !stream.device()) {
        qDebug() << label << name << value;
        return;
    }
    write(label, name + value);
}

void TraceLog::close()
{
    stream.flush();
    stream.setDevice(nullptr);
    file.close();
}
