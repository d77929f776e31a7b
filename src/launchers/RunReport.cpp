// SPDX-License-Identifier: MIT
#include "launchers/RunReport.h"
#include "dialogs/PlainText.h"
#include "launchers/LauncherOutput.h"
#include "process/OutputDecoder.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(RunAppData)
};

// The box wraps its details; a longer line would stall it.
constexpr qsizetype longestLine = 500;

QString channel(const QString& heading, const QByteArray& bytes)
{
    const QString text = OutputDecoder::text(bytes).trimmed();
    return text.isEmpty() ? QString() : u"\n\n"_s + heading + u'\n' + PlainText::withShortLines(text, longestLine);
}

} // namespace

QString RunReport::failure(const QProcess& process)
{
    switch (process.error()) {
    case QProcess::FailedToStart:
        return Text::tr("Failed to Start");
    case QProcess::Crashed:
        return Text::tr("Process Crashed");
    default:
        return Text::tr("Process Failed") + u" ["_s + QString::number(process.exitCode()) + u']';
    }
}

QString RunReport::reason(const QProcess& process)
{
    const QString program = QDir::toNativeSeparators(process.program());
    if (process.error() == QProcess::FailedToStart) {
        return Text::tr("%1: %2\nInstall the suite again, or correct its definitions file.")
            .arg(program, process.errorString());
    }
    if (process.error() == QProcess::Crashed) {
        return Text::tr("%1 ended unexpectedly. What it said is in the details.").arg(program);
    }
    return process.exitCode() == 0 ? QString()
                                   : Text::tr("%1 ended with exit code %2. What it said is in the details.")
                                         .arg(program)
                                         .arg(process.exitCode());
}

QString RunReport::details(const QProcess& process, const LauncherOutput& output)
{
    const QString command = QDir::toNativeSeparators(process.program()) + u' ' + process.arguments().join(u' ');
    const QString end = process.error() == QProcess::UnknownError ? Text::tr("Exit code: %1").arg(process.exitCode())
                                                                  : process.errorString();
    return Text::tr("Command: %1").arg(PlainText::withShortLines(command, longestLine)) + u'\n' + end +
           channel(Text::tr("The end of its output:"), output.outputEnd()) +
           channel(Text::tr("The end of its error output:"), output.errorOutput());
}
