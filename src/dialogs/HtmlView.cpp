// SPDX-License-Identifier: MIT
#include "dialogs/HtmlView.h"
#include "dialogs/HtmlShape.h"
#include "dialogs/SourcePage.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// More than any page that is laid out here.
constexpr qint64 largestPage = 1024LL * 1024;

bool isHtml(const QUrl& url)
{
    const QString name = url.path();
    return name.endsWith(".html"_L1) || name.endsWith(".htm"_L1);
}

bool isForTheBrowser(const QUrl& url)
{
    if (url.scheme() == "http"_L1 || url.scheme() == "https"_L1) {
        return true;
    }
    QFile page(url.toLocalFile());
    // Nothing else is handed to whatever program the system has for it.
    if (!url.isLocalFile() || !isHtml(url) || !page.open(QIODevice::ReadOnly)) {
        return false;
    }
    return page.size() > largestPage || !HtmlShape::of(QString::fromUtf8(page.readAll())).isQuick();
}

} // namespace

void HtmlView::doSetSource(const QUrl& url, QTextDocument::ResourceType type)
{
    if (isForTheBrowser(url)) {
        if (!QDesktopServices::openUrl(url)) {
            qWarning("No browser could be started for %s", qUtf8Printable(url.toDisplayString()));
        }
        return;
    }
    // A page that is set here says what it is; a link does not, and neither does the way back to what it led to.
    const QString file = url.toLocalFile();
    if (type == QTextDocument::HtmlResource && !texts.contains(file)) {
        pages += file;
    } else if (url.isLocalFile() && !isHtml(url) && !pages.contains(file)) {
        texts += file;
    }
    line = SourcePage::lineOf(url.fragment());
    QTextBrowser::doSetSource(url, type);
}

QVariant HtmlView::loadResource(int type, const QUrl& name)
{
    const bool isText = type == QTextDocument::HtmlResource && texts.contains(name.toLocalFile());
    const QString page = isText ? SourcePage::html(name.toLocalFile(), line) : QString();
    return page.isEmpty() ? QTextBrowser::loadResource(type, name) : page;
}
