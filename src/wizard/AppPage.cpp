// SPDX-License-Identifier: MIT
#include "wizard/AppPage.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

using namespace Qt::StringLiterals;

AppPage::AppPage(ApplicationWindow* owner, int id)
    : OrvBasicWizardPage(owner, id)
    , window(owner)
{
    setSubTitle(u" "_s);
}

int AppPage::nextId() const
{
    return window->NextPage(pageId);
}

QString AppPage::helpPage() const
{
    switch (pageId) {
    case StartPageId:
        return u"startPage.htm"_s;
    case SetProductPageId:
        return u"analyserSelection.htm"_s;
    case XmlPageId:
        return u"conversionInformation.htm"_s;
    case ConfPageId:
        return u"configuration.htm"_s;
    case ActionPageId:
        return u"conversionRun.htm"_s;
    default:
        return u"followUpTools.htm"_s;
    }
}

void AppPage::addHint()
{
    hint = new QLabel;
    hint->setTextFormat(Qt::PlainText);
    hint->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0,
                             style()->pixelMetric(QStyle::PM_LayoutRightMargin), 0);
    // The page keeps its shape when the text comes and goes.
    hint->setMinimumHeight(hint->fontMetrics().lineSpacing());
    layout()->addWidget(hint);
}

void AppPage::showHint(const QString& text)
{
    hint->setText(text);
    wrapWide(*hint, 0.5);
}

void AppPage::wrapWide(QLabel& label, double share) const
{
    const bool isWide = label.fontMetrics().horizontalAdvance(label.text()) > screen()->availableSize().width() * share;
    // Setting it again would measure the text again.
    if (label.wordWrap() != isWide) {
        label.setWordWrap(isWide);
    }
}

void AppPage::completeControls()
{
    if (helpLink || !window->offersHelp()) {
        return;
    }
    helpLink = new QPushButton(tr("Help on this page"));
    helpLink->setFlat(true);
    helpLink->setAutoDefault(false);
    helpLink->setCursor(Qt::PointingHandCursor);
    QFont font = helpLink->font();
    font.setUnderline(true);
    helpLink->setFont(font);
    connect(helpLink, &QPushButton::clicked, this, [this] { window->showHelpPage(helpPage()); });
    if (auto* column = qobject_cast<QBoxLayout*>(layout())) {
        column->addWidget(helpLink, 0, Qt::AlignLeft);
    } else if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        grid->addWidget(helpLink, grid->rowCount(), 0, 1, grid->columnCount(), Qt::AlignLeft);
    }
}
