// SPDX-License-Identifier: MIT
#include "wizard/ConfPage.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QLabel>
#include <QVBoxLayout>

ConfPage::ConfPage(ApplicationWindow* owner)
    : AppPage(owner, ConfPageId)
    , files(new QLabel)
{
    files->setTextFormat(Qt::PlainText);
    files->setWordWrap(true);
    (new QVBoxLayout(this))->addWidget(files);
}

void ConfPage::initializePage()
{
    const QString analyser = ApplicationWindow::AnalyserName(window->isORVC);
    setTitle(tr("%1 Configuration Information").arg(analyser));
    setSubTitle(tr("Specify configuration information required by the new %1 project file").arg(analyser));
    files->setText(tr("Message Configuration File:") + u'\n' + window->GetMessagePersonality() + u'\n' +
                   tr("Project Configuration Template File:") + u'\n' + window->GetAnalyserPersonality() + u'\n' +
                   tr("Compiler Configuration File:") + u'\n' + window->GetCompilerPersonality());
}
