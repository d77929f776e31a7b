// SPDX-License-Identifier: MIT
#include "dialogs/FindDialog.h"
#include "dialogs/FileSearch.h"
#include "dialogs/MainWindow.h"
#include "dialogs/MessageBox.h"
#include "dialogs/RowFilter.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 updateIntervalMs = 40;
// With each portion the list is laid out anew, all of it: of a long list that must not become most of the work.
constexpr qint64 searchPerLayout = 10;

/// Brings what a search finds into the list, a portion at a time, and keeps the window alive meanwhile.
class Progress : public FileSearch::Listener
{
public:
    Progress(QProgressDialog& progressDialog, QLabel& progressLabel, QListWidget& resultList)
        : dialog(progressDialog)
        , label(progressLabel)
        , list(resultList)
    {
        sinceUpdate.start();
        sinceListing.start();
    }

    void listRest() { list.addItems(std::exchange(found, {})); }

    void folderEntered(const QString& absolutePath) override { folder = absolutePath; }

    bool goOn() override
    {
        ++count;
        return keepAlive();
    }

    bool keepAlive() override
    {
        if (sinceUpdate.elapsed() >= updateIntervalMs) {
            update();
        }
        return !dialog.wasCanceled();
    }

    void fileFound(const QString& absolutePath) override { found += absolutePath; }

private:
    void update()
    {
        if (sinceListing.elapsed() < layoutMs * searchPerLayout) {
            show();
        } else {
            listRest();
            sinceListing.start();
            show();
            layoutMs = sinceListing.elapsed();
        }
        sinceUpdate.restart();
    }

    void show()
    {
        label.setText(FindDialog::tr("searching:") + folder);
        // Lets the window paint and the user press Stop; a value that stays the same does not.
        if (dialog.value() == count) {
            QCoreApplication::processEvents();
        }
        dialog.setValue(count);
    }

    QProgressDialog& dialog;
    QLabel& label;
    QListWidget& list;
    QElapsedTimer sinceUpdate;
    QElapsedTimer sinceListing;
    /// What laying the list out took after the last portion.
    qint64 layoutMs = 0;
    QString folder;
    QStringList found;
    int count = 0;
};

} // namespace

FindDialog::FindDialog(const QString& searchStart, QWidget* parent)
    : QDialog(parent)
    , searchLocation(searchStart)
    , filesLabel(new QLabel)
    , resultList(new QListWidget)
    , resultLabel(new QLabel)
    , filterEdit(nullptr)
    , rowFilter(new RowFilter(*resultList, this))
    , locationEdit(new QLineEdit(searchLocation))
    , searchButton(new QPushButton(tr("&Search")))
    , okButton(new QPushButton(tr("&Ok")))
{
    setWindowTitle(tr("Search for file"));
    setWindowFlags(MainWindow::frame());
    setWindowIcon(MainWindow::icon());
    setMinimumWidth(500);
    labelFiles(nameFilters.join(u' '));
    filesLabel->setTextFormat(Qt::PlainText);
    filesLabel->setBuddy(resultList);
    resultList->setUniformItemSizes(true);
    resultList->setAccessibleName(tr("Files Located"));
    locationEdit->setMinimumWidth(200);
    okButton->setEnabled(false);
    searchButton->setEnabled(!searchLocation.isEmpty());
    layOut();
    connect(locationEdit, &QLineEdit::textChanged, this, &FindDialog::textChanged);
    connect(searchButton, &QPushButton::clicked, this, &FindDialog::findButtonClicked);
    connect(resultList, &QListWidget::itemSelectionChanged, this, &FindDialog::itemSelectionChanged);
    connect(resultList, &QListWidget::itemDoubleClicked, this, &FindDialog::itemDoubleClicked);
    connect(okButton, &QPushButton::clicked, this, &FindDialog::okButtonClicked);
}

void FindDialog::layOut()
{
    auto* locationLabel = new QLabel(tr("Search location:"));
    locationLabel->setBuddy(locationEdit);
    auto* browseButton = new QPushButton(tr("B&rowse"));
    connect(browseButton, &QPushButton::clicked, this, &FindDialog::browseButtonClicked);
    auto* cancelButton = new QPushButton(tr("&Cancel"));
    connect(cancelButton, &QPushButton::clicked, this, &FindDialog::cancelButtonClicked);
    auto* buttons = new QGroupBox;
    buttons->setFlat(true);
    auto* row = new QHBoxLayout(buttons);
    row->addWidget(okButton);
    row->addWidget(cancelButton);

    auto* grid = new QGridLayout(this);
    grid->addWidget(locationLabel, 0, 0, 1, 2);
    grid->addWidget(locationEdit, 1, 0);
    grid->addWidget(browseButton, 1, 1);
    grid->addWidget(filesLabel, 2, 0, 1, 2);
    grid->addWidget(resultList, 3, 0, 1, 2);
    grid->addWidget(searchButton, 4, 0, 1, 2);
    grid->addLayout(createFilter(), 5, 0, 1, 2);
    grid->addWidget(buttons, 6, 0, 1, 2);
    searchButton->setDefault(true);
}

QLayout* FindDialog::createFilter()
{
    filterEdit = new QLineEdit;
    filterEdit->setPlaceholderText(tr("Show only paths with these words"));
    filterEdit->setAccessibleName(filterEdit->placeholderText());
    filterEdit->setClearButtonEnabled(true);
    connect(filterEdit, &QLineEdit::textChanged, rowFilter, &RowFilter::setWords);
    connect(rowFilter, &RowFilter::done, this, &FindDialog::showCount);
    auto* row = new QHBoxLayout;
    row->addWidget(resultLabel, 1);
    row->addWidget(filterEdit, 1);
    return row;
}

void FindDialog::labelFiles(const QString& patterns)
{
    filesLabel->setText(tr("Files Located") + u" ("_s + patterns + u"):"_s);
}

void FindDialog::Setup(const QString& caption, const QString& filter)
{
    static const QRegularExpression whiteSpace(u"\\s+"_s, QRegularExpression::UseUnicodePropertiesOption);
    setWindowTitle(caption);
    nameFilters = filter.split(whiteSpace);
    if (nameFilters.isEmpty()) {
        nameFilters = {u"*.*"_s};
    }
    labelFiles(nameFilters.join(u", "_s));
}

void FindDialog::SetSearchStart(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        return;
    }
    if (!searchLocation.isEmpty() && path.contains(searchLocation)) {
        return;
    }
    locationEdit->setText(info.isDir() ? path : info.absolutePath());
}

void FindDialog::textChanged(const QString& text)
{
    searchButton->setEnabled(!text.isEmpty());
}

void FindDialog::itemSelectionChanged()
{
    okButton->setEnabled(!resultList->selectedItems().isEmpty());
}

void FindDialog::itemDoubleClicked(QListWidgetItem* item)
{
    if (item) {
        selectedFile = item->text();
        accept();
    }
}

void FindDialog::browseButtonClicked()
{
    searchLocation =
        QFileDialog::getExistingDirectory(this, tr("Starting Directory"), searchLocation, QFileDialog::ShowDirsOnly);
    locationEdit->setText(searchLocation);
    searchButton->setEnabled(!searchLocation.isEmpty());
}

void FindDialog::findButtonClicked()
{
    const QFileInfo location(locationEdit->text());
    const QString title = tr("Unable to search for files");
    const QString hint =
        tr("%1\nName a folder, or choose one with Browse.").arg(QDir::toNativeSeparators(location.absoluteFilePath()));
    if (!location.exists()) {
        MessageBox::warn(this, title, tr("The specified search location does not exist"), hint);
        return;
    }
    if (!location.isDir()) {
        MessageBox::warn(this, title, tr("The specified search location must be a directory"), hint);
        return;
    }
    resultList->clear();
    resultLabel->clear();
    filterEdit->clear();
    search(location.filePath());
}

void FindDialog::search(const QString& folder)
{
    QProgressDialog dialog(tr("Searching:"), tr("Stop Search"), 0, 0, this);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowTitle(tr("Find Files"));
    dialog.setFixedWidth(500);
    // The value is a running count, not a share of a known end.
    dialog.setAutoReset(false);
    dialog.setAutoClose(false);
    dialog.setMinimumDuration(200);
    auto* label = new QLabel(tr("Searching:"));
    label->setAlignment(Qt::AlignLeft);
    label->setTextFormat(Qt::PlainText);
    dialog.setLabel(label);
    Progress progress(dialog, *label, *resultList);
    FileSearch(nameFilters).run(folder, progress);
    progress.listRest();
    wasStopped = dialog.wasCanceled();
    showCount(resultList->count());
}

void FindDialog::showCount(int shown)
{
    const int count = resultList->count();
    QString result = count == 0 ? tr("Nothing found.") : tr("Files found: %1.").arg(count);
    if (shown != count) {
        result += u' ' + tr("Shown: %1.").arg(shown);
    }
    resultLabel->setText(wasStopped ? result + u' ' + tr("The search was stopped.") : result);
}

// Enter picks the file in the list; elsewhere it presses the button that has the focus, or Search.
void FindDialog::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && focusWidget() == resultList) {
        okButtonClicked();
        return;
    }
    if (!MainWindow::takesHelpKey(*event)) {
        QDialog::keyPressEvent(event);
    }
}

void FindDialog::okButtonClicked()
{
    itemDoubleClicked(resultList->currentItem());
}

void FindDialog::cancelButtonClicked()
{
    selectedFile.clear();
    reject();
}
