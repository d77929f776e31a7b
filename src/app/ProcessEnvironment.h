// SPDX-License-Identifier: MIT
#pragma once

class QProcess;

/// Gives the analyser environment to the process, or to this program itself when there is none.
void SetProcessEnvironment(QProcess* process, bool analyserVariables);
