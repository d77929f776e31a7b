// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QLabel;

/// Keeps an arrow in its label: in the colour of the palette's texts, and pointing the way that the window reads.
class ArrowImage : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the label. The resource is drawn in black on white.
    ArrowImage(QLabel* arrowLabel, const QString& imageResource);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void draw();

    QLabel* label;
    QString resource;
};
