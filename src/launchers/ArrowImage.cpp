// SPDX-License-Identifier: MIT
#include "launchers/ArrowImage.h"
#include "dialogs/XpmImage.h"

#include <QBitmap>
#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPixmap>

ArrowImage::ArrowImage(QLabel* arrowLabel, const QString& imageResource)
    : QObject(arrowLabel)
    , label(arrowLabel)
    , resource(imageResource)
{
    label->setAlignment(Qt::AlignCenter);
    label->installEventFilter(this);
    draw();
}

bool ArrowImage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::LayoutDirectionChange) {
        draw();
    }
    return QObject::eventFilter(watched, event);
}

void ArrowImage::draw()
{
    QPixmap arrow = XpmImage::load(resource);
    if (arrow.isNull()) {
        return;
    }
    arrow.setMask(arrow.createMaskFromColor(Qt::white));
    QImage image = arrow.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), label->palette().color(QPalette::WindowText));
    painter.end();
    label->setPixmap(QPixmap::fromImage(image.mirrored(label->isRightToLeft(), false)));
}
