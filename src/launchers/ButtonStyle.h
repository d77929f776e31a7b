// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QPushButton;
class QString;

/// Gives a launcher button its look in a colour; an unknown colour gives grey.
void SetButtonStyle(QPushButton* button, const QString& colour);

/// Fills a label with an arrow image, its white made transparent. A missing image leaves it empty.
void SetArrowImage(QLabel* label, const QString& resource);
