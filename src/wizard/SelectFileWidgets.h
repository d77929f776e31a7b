// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/FolderMemory.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class FindDialog;
class PathEdit;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// A field for the name of a file or folder with its Edit, Browse and Find buttons, all in one frame that a page lays
/// out. The text turns red while it names nothing on disk. The buttons' shortcuts belong to the field that has the
/// focus, so that several fields and the wizard's own buttons get along on one page.
class SelectFileWidgets : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        bool withFind = false;
        bool inGroupBox = false;
        /// Browse for files; otherwise for folders.
        bool selectFiles = true;
        bool withHistory = false;
        /// Where Browse starts while the field is empty.
        QString startFolder = {};
        bool withEdit = false;
        /// Edit emits EditFile() instead of showing the file.
        bool emitEditSignal = false;
    };

    SelectFileWidgets(const QString& caption, const QString& filter, const Options& options);
    ~SelectFileWidgets() override;

    /// Sets the native form of the text and puts it first in the history; an empty text brings back the last value.
    void SetValue(const QString& text);
    /// A read-only field has no buttons, but can be looked into.
    void SetReadOnly(bool readOnly);
    void SetStartFolder(const QString& folder) { startFolder = folder; }

    QWidget* frame() const { return frameWidget; }
    QLineEdit* lineEdit() const;
    /// The trimmed text names something on disk; true as long as nothing was entered.
    bool isValid() const { return valid; }
    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    void ValueChanged(QString val);
    void EditFile(QString fileName); // clazy:exclude=overloaded-signal

public Q_SLOTS:
    void ValChanged(const QString& text);
    void EditFile();
    void GetAFile();
    void FindAFile();

private:
    void createButtons();
    void layOut(const Options& options);
    void watchEdit(const QEvent& event);
    void updateLook();
    void updateReason();
    void takeChosen(const QString& path);
    QPushButton* buttonFor(int key) const;
    QString browseStart() const;

    bool emitEditSignal;
    bool folderMode;
    QPushButton* editButton;
    QPushButton* browseButton;
    QPushButton* findButton;
    /// Made when it is first asked for.
    std::unique_ptr<FindDialog> findDialog;
    QPointer<QWidget> frameWidget;
    QComboBox* historyCombo;
    PathEdit* edit;
    QString caption;
    QString filter;
    QString startFolder;
    FolderMemory folders;
    QLabel* reasonLabel = nullptr;
    QAction* viewAction = nullptr;
    QColor normalColour;
    bool updating = false;
    bool valid = true;
};
