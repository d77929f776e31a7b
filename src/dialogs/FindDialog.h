// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class RowFilter;

/// Searches a folder for files that match the field's filter and lets the user pick one. Paths have forward slashes.
class FindDialog : public QDialog
{
    Q_OBJECT

public:
    /// Searches below searchStart until another folder is named.
    explicit FindDialog(const QString& searchStart, QWidget* parent = nullptr);

    /// Sets the title and the patterns, which white space separates.
    void Setup(const QString& caption, const QString& filter);
    /// Proposes the folder of an existing path, unless the last search folder is an ancestor of it.
    void SetSearchStart(const QString& path);
    /// The file the user chose; empty after Cancel.
    const QString& SelectedFile() const { return selectedFile; }

public Q_SLOTS:
    void textChanged(const QString& text);
    void itemSelectionChanged();
    void itemDoubleClicked(QListWidgetItem* item);
    void browseButtonClicked();
    void findButtonClicked();
    void okButtonClicked();
    void cancelButtonClicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    QLayout* createFilter();
    void labelFiles(const QString& patterns);
    void search(const QString& folder);
    void showCount(int shown);

    QStringList nameFilters{QStringLiteral("*.*")};
    QString selectedFile;
    QString searchLocation;
    QLabel* filesLabel;
    QListWidget* resultList;
    /// How many files were found, and whether the search came to its end.
    QLabel* resultLabel;
    /// Words that the files shown must hold.
    QLineEdit* filterEdit;
    RowFilter* rowFilter;
    bool wasStopped = false;
    QLineEdit* locationEdit;
    QPushButton* searchButton;
    QPushButton* okButton;
};
