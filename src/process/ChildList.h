// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class ChildProcess;

/// The child processes of this run, so that they can be stopped together. Each enters at its construction and leaves
/// at its destruction.
class ChildList : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void enter(ChildProcess* child) { children += child; }
    void leave(ChildProcess* child) { children.removeAll(child); }
    const QList<ChildProcess*>& all() const { return children; }
    bool contains(ChildProcess* child) const { return children.contains(child); }
    bool isEmpty() const { return children.isEmpty(); }

    /// Stops every child, waiting for each at most killMs after it was killed, and what they detached.
    void stopAll(int killMs);
    /// True while stopAll is at it: what ends then was ended by us.
    bool isClosing() const { return closing; }

private:
    QList<ChildProcess*> children;
    bool closing = false;
};
