// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWizardPage>

class QLineEdit;

/// The suite's wizard page: knows its id, offers slots that browse for a file or a folder, and an action for the
/// wizard's custom button.
class OrvBasicWizardPage : public QWizardPage
{
    Q_OBJECT

public:
    OrvBasicWizardPage(QWidget* parent, int pageId);

    /// Called for custom button 1 while this page is shown.
    virtual void CustomButtonAction() {}

public Q_SLOTS:
    /// Browses for a file, or a folder, and puts its native path into fileEdit, or dirEdit.
    void GetAFile();
    void GetADir();

protected:
    int pageId;
    QLineEdit* fileEdit = nullptr;
    QString fileFilter;
    QString fileCaption;
    QLineEdit* dirEdit = nullptr;
    QString dirCaption;
};
