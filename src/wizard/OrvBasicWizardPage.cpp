// SPDX-License-Identifier: MIT
#include "wizard/OrvBasicWizardPage.h"
#include "app/AppRegistry.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

namespace {

QString browseStart(const QLineEdit& edit)
{
    return edit.text().isEmpty() ? appRegistry->values.installPath : edit.text();
}

void take(QLineEdit& edit, const QString& chosen)
{
    if (!chosen.isEmpty()) {
        edit.setText(QDir::toNativeSeparators(chosen));
    }
}

} // namespace

OrvBasicWizardPage::OrvBasicWizardPage(QWidget* parent, int id)
    : QWizardPage(parent)
    , pageId(id)
{
}

void OrvBasicWizardPage::GetAFile()
{
    if (fileEdit) {
        take(*fileEdit, QFileDialog::getOpenFileName(this, fileCaption, browseStart(*fileEdit), fileFilter));
    }
}

void OrvBasicWizardPage::GetADir()
{
    if (dirEdit) {
        take(*dirEdit, QFileDialog::getExistingDirectory(this, dirCaption, browseStart(*dirEdit)));
    }
}
