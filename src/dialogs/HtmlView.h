// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

/// Shows html that came from a tool. A link to the web, or to a page on which the window would stall, opens in the
/// browser.
class HtmlView : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
};
