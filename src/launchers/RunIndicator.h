// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QProgressBar;
class QPushButton;
struct Progress;

/// What stands on a launcher's button while its tool runs: a small Stop button and, once the tool tells how far it is,
/// a thin bar. It lies over the button, not in it, because a grey button's children are grey as well.
class RunIndicator : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the button.
    explicit RunIndicator(QPushButton* launcherButton);

    /// Appears, for the tool of this name.
    void show(const QString& tool);
    void showProgress(const Progress& progress);
    /// Stop has been pressed, the tool has not ended yet.
    void showStopping();
    void hide();

Q_SIGNALS:
    void stopRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void create(QWidget* parent);
    void place();

    QPushButton* button;
    QPointer<QPushButton> stop;
    QPointer<QProgressBar> bar;
};
