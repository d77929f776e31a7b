// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QTextBrowser>

/// Shows html that came from a tool. A link to the web, or to a page on which the window would stall, opens in the
/// browser; a link to another file shows it as it is, "#L12" at its twelfth line.
class HtmlView : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    QVariant loadResource(int type, const QUrl& name) override;

private:
    /// Files that are shown as html, and as they are.
    QSet<QString> pages;
    QSet<QString> texts;
    /// The line that the last link led to; 0 for none.
    int line = 0;
};
