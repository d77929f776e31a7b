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

    /// Called before the page is entered for the first time, unless it has a layout. Controls that are made here cost a
    /// start nothing.
    virtual void build() {}
    /// Called for custom button 1 while this page is shown.
    virtual void CustomButtonAction() {}
    /// Called whenever the page is entered, before it is seen.
    virtual void completeControls() {}
    /// The field that Next is waiting for, or on whose account the page was refused; null when there is none.
    virtual QWidget* fieldToMend() const { return nullptr; }
    /// The control that the focus begins in where it is not the first one.
    virtual QWidget* firstField() const { return nullptr; }

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
