// SPDX-License-Identifier: MIT
#include "app/StopSignals.h"

#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array stopSignals = {SIGINT, SIGTERM, SIGHUP};
int pipeEnds[2] = {-1, -1};

// Only what a signal handler may do: the event loop does the rest.
void handle(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(pipeEnds[0], &byte, sizeof byte);
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
    for (const int number : stopSignals) {
        std::signal(number, handle);
    }
}

StopSignals::~StopSignals()
{
    for (const int number : stopSignals) {
        std::signal(number, SIG_DFL);
    }
    notifier.reset();
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

#else

StopSignals::StopSignals(QObject* parent)
    : QObject(parent)
{
}

StopSignals::~StopSignals() = default;

#endif
