// SPDX-License-Identifier: MIT
#include "process/StopSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array stopSignals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};
std::array<struct sigaction, stopSignals.size()> previousActions;
int pipeEnds[2] = {-1, -1};

// Only what a signal handler may do: the event loop does the rest.
void handle(int)
{
    const int error = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(pipeEnds[0], &byte, sizeof byte);
    errno = error;
}

} // namespace

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipeEnds) != 0) {
        return;
    }
    notifier = std::make_unique<QSocketNotifier>(pipeEnds[1], QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        [[maybe_unused]] const auto got = ::read(pipeEnds[1], &byte, sizeof byte);
        Q_EMIT received();
    });
    struct sigaction action = {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < stopSignals.size(); ++i) {
        ::sigaction(stopSignals[i], nullptr, &previousActions[i]);
        // Whoever starts a program with nohup or in the background wants the signal to be ignored.
        if (previousActions[i].sa_handler != SIG_IGN) {
            ::sigaction(stopSignals[i], &action, nullptr);
        }
    }
}

StopSignals::~StopSignals()
{
    if (!notifier) {
        return;
    }
    for (std::size_t i = 0; i < stopSignals.size(); ++i) {
        ::sigaction(stopSignals[i], &previousActions[i], nullptr);
    }
    notifier.reset();
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}
