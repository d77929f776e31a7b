// SPDX-License-Identifier: MIT
#include "dialogs/HelpViewer.h"
#include "dialogs/HelpCollection.h"
#include "dialogs/MainWindow.h"

#include <QDialogButtonBox>
#include <QIcon>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Finds pages and their images in a help collection.
class HelpBrowser : public QTextBrowser
{
public:
    explicit HelpBrowser(const HelpCollection& helpCollection)
        : collection(helpCollection)
    {
    }

    QVariant loadResource(int type, const QUrl& name) override
    {
        const QUrl url = source().resolved(name);
        return url.scheme() == "qthelp"_L1 ? QVariant(collection.contents(url))
                                           : QTextBrowser::loadResource(type, name);
    }

private:
    const HelpCollection& collection;
};

} // namespace

HelpViewer::HelpViewer(const HelpCollection& collection, QWidget* parent)
    : QDialog(parent)
    , browser(new HelpBrowser(collection))
{
    setWindowTitle(tr("Help"));
    setWindowIcon(MainWindow::icon());
    browser->setAccessibleName(windowTitle());
    resize(700, 550);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* back = buttons->addButton(tr("Back"), QDialogButtonBox::ActionRole);
    back->setEnabled(false);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(browser);
    layout->addWidget(buttons);
}

void HelpViewer::showPage(const QUrl& page)
{
    browser->setSource(page, QTextDocument::HtmlResource);
    show();
    raise();
    activateWindow();
}
