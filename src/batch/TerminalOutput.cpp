// SPDX-License-Identifier: MIT
#include "batch/TerminalOutput.h"
#include "batch/BatchOutput.h"
#include "console/Console.h"

using namespace Qt::StringLiterals;

namespace {

Progress progressIn(const QString& line)
{
    ProgressLine reader;
    reader.append(line.toLocal8Bit() + '\n');
    return reader.progress();
}

} // namespace

bool TerminalOutput::isPossible()
{
    return Console::columns() > 0;
}

QProcess::ProcessChannelMode TerminalOutput::channelMode()
{
    return Console::hasErrorTerminal() ? QProcess::MergedChannels : QProcess::ForwardedErrorChannel;
}

void TerminalOutput::add(const QString& output)
{
    rest += output;
    QString lines;
    qsizetype start = 0;
    for (qsizetype at = 0; at < rest.size(); ++at) {
        // Of a carriage return that came last nobody knows yet what follows.
        const bool isReturn = rest[at] == u'\r' && at + 1 < rest.size() && rest[at + 1] != u'\n';
        if (rest[at] == u'\n' || isReturn) {
            const QString line = rest.sliced(start, at - start);
            lines += taken(line.endsWith(u'\r') ? line.chopped(1) : line, !isReturn);
            start = at + 1;
        }
    }
    if (start == 0) {
        return;
    }
    rest.remove(0, start);
    BatchOutput::print(ProgressLine::terminalLine({}, 0) + lines +
                       (progress.isKnown() ? ProgressLine::terminalLine(progress, Console::columns()) : QString()));
}

void TerminalOutput::finish()
{
    if (progress.isKnown()) {
        BatchOutput::print(ProgressLine::terminalLine({}, 0));
    }
    progress = {};
    if (!rest.isEmpty()) {
        BatchOutput::print(taken(rest, true));
    }
    rest.clear();
}

QString TerminalOutput::taken(const QString& line, bool isKept)
{
    const Progress found = progressIn(line);
    if (found.isKnown()) {
        progress = found;
        return {};
    }
    return isKept ? line + u'\n' : QString();
}
