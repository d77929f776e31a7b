// SPDX-License-Identifier: MIT
#include "process/ChildProcess.h"

void ChildProcess::launch(const QString& program, const QStringList& arguments)
{
    start(program, arguments, QIODevice::ReadWrite);
}

void ChildProcess::leadGroup()
{
    setChildProcessModifier(&ProcessGroup::becomeLeader);
}
