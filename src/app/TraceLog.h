// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QTextStream>

/// What is read and set in this run, for somebody who asked: in a file, or on the debug channel.
class TraceLog
{
public:
    bool isOn() const { return on; }
    /// Writes to the debug channel, unless there is a file.
    void turnOn() { on = true; }
    /// Starts a trace file; one that can not be written changes nothing.
    void openFile(const QString& name);
    /// A label and its value, one line.
    void write(const QString& label, const QString& value = {});
    /// The same for a flag, which the debug channel spells out.
    void write(const QString& label, bool flag);
    /// The same for a variable, whose name and value the debug channel shows apart.
    void writeVariable(const QString& label, const QString& name, const QString& value);
    void close();

private:
    bool on = false;
    QFile file;
    QTextStream stream;
};
