// SPDX-License-Identifier: MIT
#include "program/StandardChannels.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

void StandardChannels::reserve()
{
#ifdef Q_OS_UNIX
    for (int channel = STDIN_FILENO; channel <= STDERR_FILENO; ++channel) {
        // The lowest free number is taken; for reading only, so that nobody takes a lost text for one that was printed.
        if (::fcntl(channel, F_GETFD) < 0 && ::open("/dev/null", O_RDONLY) != channel) {
            return;
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
#endif
}
