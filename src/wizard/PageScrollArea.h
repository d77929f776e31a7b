// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// Holds the controls of a page that may outgrow the screen. It asks for the room that they need, up to a share of the
/// screen that leaves the wizard's title and buttons theirs; what does not fit is scrolled, to the focus by itself.
class PageScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Fills the page with an area; gives the widget in it that holds the page's controls.
    static QWidget* fill(QWidget& page);

    ~PageScrollArea() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// How much higher the area would have to be to have what it asks for, in pixels.
    int missingHeight() const;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    explicit PageScrollArea(QWidget* parent);
    QSize bounded(const QSize& wanted) const;
    void showFocus(QWidget* focused);
};
