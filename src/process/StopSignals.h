// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Tells of SIGINT, SIGTERM, SIGHUP and SIGQUIT in the event loop while it lives, instead of their ending the program.
/// On Windows of Ctrl+C, Ctrl+Break and the console's end, of logging off and of shutting down. One at a time.
class StopSignals : public QObject
{
    Q_OBJECT

public:
    explicit StopSignals(QObject* parent = nullptr);
    ~StopSignals() override;

Q_SIGNALS:
    void received();

private:
    std::unique_ptr<QSocketNotifier> notifier;
};
