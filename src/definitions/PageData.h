// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

/// One page of launcher buttons, as the definitions file lays it out. Sizes and spacings are in pixels.
class PageData : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QString titleAttribute;
    QString title;
    QString subtitle;
    QString helpPage;
    int columns = 3;
    int buttonWidth = 180;
    int buttonHeight = 50;
    int horizontalSpacing = 2;
    int verticalSpacing = 2;
    /// The project the page's tools act on, and whether the C analyser's programs are meant.
    QString projectFile;
    bool isORVC = false;
};
