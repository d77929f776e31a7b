// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QProcess;

/// Starts a program of the suite with the analyser environment and waits until it has started. A program that can not
/// be found is started as named.
bool StartProcess(QProcess& process, const QString& program, const QStringList& arguments, bool runInProgramFolder,
                  bool analyserVariables);
