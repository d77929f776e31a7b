// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class ChildProcess;

/// Starts a program of the suite with the analyser environment and waits until it has started. A program that can not
/// be found is started as named.
bool StartProcess(ChildProcess& process, const QString& program, const QStringList& arguments, bool runInProgramFolder,
                  bool analyserVariables);
