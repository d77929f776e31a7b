// SPDX-License-Identifier: MIT
#include "wizard/StartPage.h"
#include "app/AppRegistry.h"
#include "app/StartupWarnings.h"
#include "dialogs/AlarmLabel.h"
#include "dialogs/MessageBox.h"
#include "project/ProjectTarget.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/FieldEdit.h"
#include "wizard/PageScrollArea.h"
#include "wizard/PageSequence.h"
#include "wizard/QuietCombo.h"

#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

StartPage::StartPage(ApplicationWindow* owner)
    : AppPage(owner, StartPageId)
    , location(tr("Select Directory"), tr("*"), {.selectFiles = false, .startFolder = QDir::currentPath()})
    , nameEdit(new FieldEdit)
    , typeCombo(new QuietCombo)
    , errorLabel(new AlarmLabel(appRegistry->definitions.hasConversionTypes() ? QString() : errorText()))
    , warnings(new QLabel)
{
    setTitle(tr("Project Information"));
    setSubTitle(tr("Specify new project name and conversion project type"));

    layOut();
    showWarnings();

    errorLabel->hide();
    fillTypes();

    connect(nameEdit, &QLineEdit::textChanged, this, &StartPage::completeChanged);
    connect(this, &StartPage::completeChanged, this, &StartPage::updateHint);
    connect(location.lineEdit(), &QLineEdit::textChanged, this, &StartPage::completeChanged);
    connect(typeCombo, &QComboBox::currentIndexChanged, this, [this] {
        // Undecided until Next is pressed.
        window->projectCreator = nullptr;
        window->analyserFixed = false;
        updateButtons();
    });
}

void StartPage::layOut()
{
    auto* nameLabel = new QLabel(tr("Name of project to be created:"));
    nameLabel->setBuddy(nameEdit);
    auto* locationLabel = new QLabel(tr("Location for new project file:"));
    locationLabel->setBuddy(location.lineEdit());
    auto* typeLabel = new QLabel(tr("Original project type:"));
    typeLabel->setBuddy(typeCombo);
    for (QLabel* label : {nameLabel, locationLabel, typeLabel}) {
        // The fields beside them need room.
        wrapWide(*label, 1 / 3.0);
    }
    nameEdit->setAccessibleName(nameLabel->text());
    location.lineEdit()->setAccessibleName(locationLabel->text());
    typeCombo->setAccessibleName(typeLabel->text());

    auto* grid = new QGridLayout(PageScrollArea::fill(*this));
    grid->addWidget(nameLabel, 0, 0, 1, 1);
    grid->addWidget(nameEdit, 0, 1, 1, 5);
    grid->addWidget(locationLabel, 1, 0, 1, 1);
    grid->addWidget(location.frame(), 1, 1, 1, 5);
    grid->addWidget(typeLabel, 2, 0, 1, 1);
    grid->addWidget(typeCombo, 2, 1, 1, 5);
    grid->addWidget(errorLabel, 3, 0, 1, 6);
    grid->addWidget(warnings, 4, 0, 1, 6);
    grid->setRowStretch(5, 1);
    addHint();
}

QString StartPage::errorText()
{
    const QString message =
        tr("<P>An error has occured:<P>For this application to operate successfully it requires an xml data file:"
           "<P><b><i>%1</i></b>.<P>This file is not of the correct format or could not be located.")
            .arg(appRegistry->DefinitionsFileName().toHtmlEscaped());
    return u"<font color='%1'>%2</font>"_s.arg(u"red"_s, message);
}

void StartPage::showWarnings()
{
    const QStringList texts = StartupWarnings::all(*appRegistry);
    warnings->setVisible(!texts.isEmpty());
    if (!texts.isEmpty()) {
        warnings->setTextFormat(Qt::PlainText);
        warnings->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        warnings->setWordWrap(true);
        warnings->setText(texts.join(u'\n'));
    }
}

void StartPage::fillTypes()
{
    const auto& creators = appRegistry->definitions.projectCreators;
    for (const auto& creator : creators) {
        typeCombo->addItem(creator->name, QVariant::fromValue(creator.get()));
    }
    errorLabel->setVisible(!appRegistry->definitions.hasConversionTypes());
}

void StartPage::initializePage()
{
    nameEdit->setText(window->fileName);
    location.SetValue(window->fileDir.isEmpty() ? QDir::currentPath() : window->fileDir);
    const int index = typeCombo->findText(window->conversion, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0) {
        typeCombo->setCurrentIndex(index);
    }
    updateHint();
}

void StartPage::updateHint()
{
    const bool isNamed = !nameEdit->text().isEmpty() && !location.lineEdit()->text().isEmpty();
    if (!errorLabel->isHidden()) {
        showHint({});
    } else if (!isNamed) {
        showHint(tr("To continue, name the project and its folder."));
    } else {
        showHint(endsHere() ? window->noConversionText() : QString());
    }
}

bool StartPage::endsHere() const
{
    const auto* creator = typeCombo->currentData().value<ProjectCreatorData*>();
    return creator && creator->inputData.empty() &&
           window->onlyAnalyser(creator, appRegistry->cInstallDir, appRegistry->cppInstallDir).has_value();
}

QWidget* StartPage::fieldToMend() const
{
    if (nameEdit->text().isEmpty()) {
        return nameEdit;
    }
    return location.lineEdit()->text().isEmpty() ? location.lineEdit() : mistaken;
}

bool StartPage::isComplete() const
{
    return errorLabel->isHidden() && !nameEdit->text().isEmpty() && !location.lineEdit()->text().isEmpty() &&
           !typeCombo->currentText().isEmpty();
}

bool StartPage::validatePage()
{
    window->projectCreator = typeCombo->currentData().value<ProjectCreatorData*>();
    window->fileName = nameEdit->text();
    window->fileDir = location.lineEdit()->text();
    window->conversion = typeCombo->currentText();
    window->decideAnalyser(appRegistry->cInstallDir, appRegistry->cppInstallDir);
    updateButtons();
    return makeFolder() && checkProjectFile();
}

// Whether another page follows depends on the choices, and with it the button: Next or Finish. The wizard asks for that
// only when a page is entered or declared final.
void StartPage::updateButtons()
{
    setFinalPage(false);
    Q_EMIT completeChanged();
}

bool StartPage::makeFolder()
{
    if (QDir(window->fileDir).exists()) {
        return true;
    }
    mistaken = location.lineEdit();
    const QString title = u"Directory does not exist"_s;
    if (!MessageBox::ask(
            window, title,
            tr("The selected location for the new project file does not exist.\nDo you wish to create this "
               "directory?\n"))) {
        return false;
    }
    const Result<void> created = ProjectTarget::createFolder(window->fileDir);
    if (!created.ok()) {
        MessageBox::warn(window, title, tr("The selected location can not be created.\n"),
                         tr("%1: %2\nChoose another folder, or one in which you may create folders.")
                             .arg(QDir::toNativeSeparators(window->fileDir), created.problem));
    }
    return created.ok();
}

bool StartPage::checkProjectFile()
{
    mistaken = nameEdit;
    const QString file = window->ProjectFile();
    const bool existed = QFile::exists(file);
    if (existed && !MessageBox::ask(window, tr("Project file already exists"),
                                    tr("Do you want to overwrite this file?") + u'\n' + file)) {
        return false;
    }
    const Result<void> writable = ProjectTarget::checkWritable(file);
    if (!writable.ok()) {
        const QString text = existed ? tr("Can not overwrite file:") : tr("Can not create file:");
        MessageBox::warn(
            window, tr("Project File can not be created"), text + u'\n' + file,
            tr("%1\nChoose another name, or a folder in which you may create files.").arg(writable.problem));
    }
    return writable.ok();
}
