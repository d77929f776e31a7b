// SPDX-License-Identifier: MIT
#include "wizard/ApplicationWindow.h"
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "definitions/ConfigurationKind.h"
#include "definitions/InputValues.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/MessageBox.h"
#include "personality/FileScans.h"
#include "project/Project.h"
#include "wizard/ActionPage.h"
#include "wizard/ConfPage.h"
#include "wizard/DisplayOptionsPage.h"
#include "wizard/PageSequence.h"
#include "wizard/SetProductPage.h"
#include "wizard/StartPage.h"
#include "wizard/XmlPage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The paths among the wizard's own settings besides the configuration files; kept and read in native form.
constexpr std::array folderKeys = {
    std::pair{"defaultPersonalityLocation"_L1, &WizardState::defaultPersonalityLocation},
    std::pair{"fileDir"_L1, &WizardState::fileDir},
};

constexpr std::array textKeys = {
    std::pair{"conversion"_L1, &WizardState::conversion},
    std::pair{"fileName"_L1, &WizardState::fileName},
};

QString settingsGroup()
{
    return u"Settings"_s;
}

} // namespace

ApplicationWindow::ApplicationWindow(const QString& title, const QString& helpPage, const QStringList& arguments)
    : OrvWizardWindow(title, helpPage)
{
    presetFromLastProject();
    savePersistedValues = false;
    connect(appRegistry, &AppRegistry::WriteRegistryValues, this, &ApplicationWindow::DoRegistrySetValues);
    connect(appRegistry, &AppRegistry::ReadRegistryValues, this, &ApplicationWindow::DoRegistryValues);
    appRegistry->ReadRegistry();
    cAvailable = QFile::exists(appRegistry->cInstallDir);
    cppAvailable = QFile::exists(appRegistry->cppInstallDir);
    CommandLine::preset(arguments, *this);
    setOption(QWizard::IndependentPages, false);
    setOption(QWizard::NoBackButtonOnLastPage, false);
    setOption(QWizard::HaveCustomButton1, false);
    setOption(QWizard::HaveHelpButton, false);
    createPages();
}

QString ApplicationWindow::AnalyserName(bool isC)
{
    return isC ? tr("Orv C") : tr("Orv C++");
}

const QString& ApplicationWindow::configurationOrPreset(ConfigurationKind kind)
{
    QString& file = configuration(kind);
    if (projectCreator && (file.isEmpty() || FileScans::isForOtherAnalyser(file, isORVC))) {
        file = presetOf(*projectCreator, factsOf(kind), isORVC);
    }
    return file;
}

const QString& ApplicationWindow::GetCompilerPersonality()
{
    return configurationOrPreset(ConfigurationKind::Compiler);
}

const QString& ApplicationWindow::GetAnalyserPersonality()
{
    return configurationOrPreset(ConfigurationKind::Analyser);
}

const QString& ApplicationWindow::GetMessagePersonality()
{
    return configurationOrPreset(ConfigurationKind::Message);
}

int ApplicationWindow::NextPage(int pageId) const
{
    return nextPage(pageId, *this);
}

Result<void> ApplicationWindow::openTools(const QString& projectFile)
{
    if (projectFile.isEmpty()) {
        return {tr("-tools: the name of a project file must follow.")};
    }
    const QFileInfo file(projectFile);
    const QString path = QDir::toNativeSeparators(file.absoluteFilePath());
    if (!file.isFile()) {
        return {file.exists() ? tr("%1 is not a file. Choose a project file (.prj).").arg(path)
                              : tr("The project file %1 does not exist. Check its name and folder.").arg(path)};
    }
    if (QFile probe(path); !probe.open(QIODevice::ReadOnly)) {
        return {tr("The project file %1 can not be read: %2").arg(path, probe.errorString())};
    }
    Project project;
    if (!project.load(path, appRegistry->projectFacts())) {
        return {tr("%1 holds no project. Create the project anew, or choose another file.").arg(path)};
    }
    if (appRegistry->definitions.applicationPages.empty()) {
        return {tr("The definitions file %1 declares no tools, so there is nothing to open %2 with.")
                    .arg(appRegistry->DefinitionsFileName(), path)};
    }
    SetAnalyser(project.isCAnalyser());
    toolsFile = path;
    setStartId(DisplayOptionsPageId);
    return {};
}

QString ApplicationWindow::noConversionText()
{
    return tr("This project type declares nothing to convert: Finish closes the wizard, and no project is created.");
}

void ApplicationWindow::showConversionOutput()
{
    const QString log = actionPage->logFileName();
    if (!log.isEmpty() && QFileInfo(log).size() == 0) {
        MessageBox::warn(this, tr("Output of the conversion"), tr("The conversion program printed nothing."));
    } else if (log.isEmpty() || !DisplayDialog::showFile(*appRegistry, tr("Output of the conversion"), log).ok()) {
        MessageBox::warn(this, tr("Output of the conversion"),
                         tr("The output could not be kept: the temporary folder %1 is full or can not be written. "
                            "Make room there and convert again.")
                             .arg(QDir::toNativeSeparators(QDir::tempPath())));
    }
}

void ApplicationWindow::CustomButtonClicked(int which)
{
    if (which != QWizard::CustomButton1) {
        return;
    }
    setOption(QWizard::HaveCustomButton1, false);
    setOption(QWizard::NoCancelButton, false);
    setOption(QWizard::NoBackButtonOnLastPage, false);
    toolsFile.clear();
    setStartId(StartPageId);
    restart();
}

void ApplicationWindow::DoRegistrySetValues(QSettings* settings)
{
    settings->beginGroup(settingsGroup());
    for (const ConfigurationFacts& kind : configurationKinds()) {
        settings->setValue(kind.name, QDir::toNativeSeparators(configuration(kind.kind)));
    }
    for (const auto& [key, member] : folderKeys) {
        settings->setValue(key, QDir::toNativeSeparators(this->*member));
    }
    for (const auto& [key, member] : textKeys) {
        settings->setValue(key, this->*member);
    }
    settings->setValue("isORVC"_L1, isORVC);
    InputValues::write(*settings, appRegistry->definitions.projectCreators);
    settings->endGroup();
}

void ApplicationWindow::DoRegistryValues(QSettings* settings)
{
    settings->beginGroup(settingsGroup());
    for (const ConfigurationFacts& kind : configurationKinds()) {
        configuration(kind.kind) = QDir::toNativeSeparators(settings->value(kind.name).toString());
    }
    for (const auto& [key, member] : folderKeys) {
        this->*member = QDir::toNativeSeparators(settings->value(key).toString());
    }
    for (const auto& [key, member] : textKeys) {
        this->*member = settings->value(key).toString();
    }
    isORVC = settings->value("isORVC"_L1).toBool();
    InputValues::read(*settings, appRegistry->definitions.projectCreators);
    settings->endGroup();
}

OrvWizardWindow::Consent ApplicationWindow::confirmInterruption()
{
    if (!actionPage->isConverting()) {
        return Consent::NotNeeded;
    }
    const QStringList running = QStringList{conversion.isEmpty() ? tr("the conversion") : conversion} + runningNames();
    const bool agreed = MessageBox::ask(this, tr("Conversion in progress"),
                                        tr("The conversion is still running. Closing the wizard stops it, and the new "
                                           "project file will not be created.\nDo you wish to close the wizard?"),
                                        runningText(running));
    // A conversion that ended behind the question has a result, which the user shall see.
    return agreed && actionPage->isConverting() ? Consent::Given : Consent::Refused;
}

QString ApplicationWindow::forgottenText() const
{
    // A project that was opened came without anything that could be remembered.
    return currentId() != DisplayOptionsPageId || !toolsFile.isEmpty()
               ? QString()
               : tr("The project is there, but what you have entered on the pages before will be forgotten. Finish "
                    "keeps it for the next time.");
}

void ApplicationWindow::presetFromLastProject()
{
    const QString lastProject = appRegistry->values.project.projectFile;
    if (QFile::exists(lastProject)) {
        const QFileInfo file(lastProject);
        fileName = file.baseName();
        fileDir = file.absolutePath();
    } else {
        fileDir = QDir::currentPath();
    }
}

void ApplicationWindow::createPages()
{
    setPage(StartPageId, new StartPage(this));
    setPage(SetProductPageId, new SetProductPage(this));
    setPage(XmlPageId, new XmlPage(this));
    setPage(ConfPageId, new ConfPage(this));
    actionPage = new ActionPage(this);
    setPage(ActionPageId, actionPage);
    setPage(DisplayOptionsPageId, new DisplayOptionsPage(this));
    setStartId(StartPageId);
}
