// SPDX-License-Identifier: MIT
#include "console/Console.h"

#include <sys/ioctl.h>
#include <unistd.h>

void Console::open() {}

void Console::hearKeys() {}

QStringList Console::arguments(int argc, char** argv)
{
    QStringList texts;
    for (int i = 0; i < argc; ++i) {
        texts += QString::fromLocal8Bit(argv[i]);
    }
    return texts;
}

int Console::columns()
{
    constexpr int usual = 80;
    const QByteArray kind = qgetenv("TERM");
    if (::isatty(STDOUT_FILENO) == 0 || kind.isEmpty() || kind == "dumb") {
        return 0;
    }
    winsize size = {};
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

bool Console::hasErrorTerminal()
{
    return ::isatty(STDERR_FILENO) != 0;
}
