// SPDX-License-Identifier: MIT
#include "dialogs/HtmlView.h"
#include "dialogs/HtmlShape.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// More than any page that is laid out here.
constexpr qint64 largestPage = 1024LL * 1024;

bool isForTheBrowser(const QUrl& url)
{
    if (url.scheme() == "http"_L1 || url.scheme() == "https"_L1) {
        return true;
    }
    const QString name = url.path();
    QFile page(url.toLocalFile());
    // Nothing else is handed to whatever program the system has for it.
    if (!url.isLocalFile() || !(name.endsWith(".html"_L1) || name.endsWith(".htm"_L1)) ||
        !page.open(QIODevice::ReadOnly)) {
        return false;
    }
    return page.size() > largestPage || !HtmlShape::of(QString::fromUtf8(page.readAll())).isQuick();
}

} // namespace

void HtmlView::doSetSource(const QUrl& url, QTextDocument::ResourceType type)
{
    if (!isForTheBrowser(url)) {
        QTextBrowser::doSetSource(url, type);
    } else if (!QDesktopServices::openUrl(url)) {
        qWarning("No browser could be started for %s", qUtf8Printable(url.toDisplayString()));
    }
}
