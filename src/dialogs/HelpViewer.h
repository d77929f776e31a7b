// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class HelpCollection;
class QTextBrowser;
class QUrl;

/// Shows help pages where Qt Assistant is not installed.
class HelpViewer : public QDialog
{
    Q_OBJECT

public:
    explicit HelpViewer(const HelpCollection& collection, QWidget* parent = nullptr);

    void showPage(const QUrl& page);

private:
    QTextBrowser* browser;
};
