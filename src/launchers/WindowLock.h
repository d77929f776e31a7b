// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class QDialog;

/// Locks the main window while a tool works that the user waits for: wait cursor, no input, and after a moment a window
/// that names the tool and offers to stop it.
class WindowLock : public QObject
{
    Q_OBJECT

public:
    explicit WindowLock(QObject* parent = nullptr);

    /// Locks for the tool of this name. Locking twice is locking once.
    void lock(const QString& tool);
    void unlock();

Q_SIGNALS:
    void stopRequested();

private:
    void showBusyDialog();

    bool locked = false;
    QString toolName;
    QTimer busyTimer;
    QPointer<QDialog> busyDialog;
};
