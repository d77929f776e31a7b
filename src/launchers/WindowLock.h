// SPDX-License-Identifier: MIT
#pragma once

#include "process/ProgressLine.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

class BusyDialog;

/// Locks the main window while a tool works that the user waits for: wait cursor, no input, and after a moment a window
/// that names the tool, tells how far it is and offers to stop it.
class WindowLock : public QObject
{
    Q_OBJECT

public:
    explicit WindowLock(QObject* parent = nullptr);
    ~WindowLock() override;

    /// Locks for the tool of this name. Locking twice is locking once.
    void lock(const QString& tool);
    void unlock();
    void showProgress(const Progress& progress);

Q_SIGNALS:
    void stopRequested();

private:
    void showBusyDialog();

    bool locked = false;
    QString toolName;
    Progress latest;
    QTimer busyTimer;
    QPointer<QWidget> focused;
    QPointer<BusyDialog> busyDialog;
};
