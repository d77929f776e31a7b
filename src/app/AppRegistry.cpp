// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/Installations.h"
#include "app/ProcessEnvironment.h"
#include "app/SettingsStore.h"
#include "app/Translations.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

AppRegistry* appRegistry = nullptr;

namespace {

constexpr int shutDownWaitMs = 30000;

// As many as the system follows.
constexpr int mostLinks = 40;

bool hasXmlArea(const QString& executable)
{
    return QFileInfo::exists(QFileInfo(QFileInfo(executable).absolutePath()).absolutePath() + u"/xml"_s);
}

// A bare name was found through PATH, so it says nothing about the folder.
QString executablePath(const QString& argument)
{
#ifdef Q_OS_WIN
    const bool isPath = argument.contains(u'\\') || argument.contains(u'/') || QFileInfo::exists(argument);
#else
    const bool isPath = argument.contains(u'/');
#endif
    QString path = isPath ? argument : QCoreApplication::applicationFilePath();
    // A link in a folder of commands leads to the installation.
    for (int links = 0; links < mostLinks && QFileInfo(path).isSymLink() && !hasXmlArea(path); ++links) {
        path = QFileInfo(path).symLinkTarget();
    }
    return path;
}

// A value that somebody spoilt is as good as none.
template <typename Value>
Value storedOr(const QVariant& stored, const Value& otherwise)
{
    return stored.metaType() == QMetaType::fromType<Value>() ? stored.value<Value>() : otherwise;
}

// The definitions file, or whatever else another option names, must not become a trace.
bool isPrecious(const QString& file, qsizetype option, const QStringList& arguments)
{
    const QString path = QFileInfo(file).canonicalFilePath();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (i != option && !path.isEmpty() && QFileInfo(arguments[i]).canonicalFilePath() == path) {
            return true;
        }
    }
    QFile present(file);
    return QFileInfo(file).isFile() && present.open(QIODevice::ReadOnly) && present.peek(1) == "<";
}

} // namespace

AppRegistry::AppRegistry(QObject* parent)
    : QObject(parent)
{
}

AppRegistry::~AppRegistry()
{
    // Not at the start: a folder of thousands of files would hold up the window.
    TemporaryFiles::removeStale();
    if (appRegistry == this) {
        appRegistry = nullptr;
    }
}

bool AppRegistry::Init(QCoreApplication* app, const QStringList& arguments, const QString& title, int width, int height,
                       QString usage)
{
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        const bool hasNext = i + 1 < arguments.size();
        if (argument == "-ver"_L1) {
            qWarning() << title << " (" << tr("Version") << " : "
                       << "1 (build 1)"
                       << ") ";
            return false;
        }
        if (argument == "-file"_L1) {
            if (hasNext) {
                definitionsFileName = arguments[i + 1];
                definitionsFileGiven = true;
                Trace(u"XML file set to: "_s, definitionsFileName);
            }
        } else if (argument == "-trace"_L1) {
            traceLog.turnOn();
        } else if (argument == "-tracefile"_L1) {
            if (hasNext && isPrecious(arguments[i + 1], i + 1, arguments)) {
                qWarning().noquote() << tr("-tracefile: %1 is no trace and is not overwritten").arg(arguments[i + 1]);
            } else if (hasNext) {
                traceLog.openFile(arguments[i + 1]);
            }
        } else if (argument == "-help"_L1) {
            if (usage.isEmpty()) {
                usage = tr("-file <file.xml>: use <file.xml> instead of settings.xml");
            }
            // Quoted by hand: the debug stream would escape the line breaks.
            qWarning().noquote() << u'"' + usage + u'"';
            return false;
        }
    }
    Load(app, arguments, width, height);
    return true;
}

void AppRegistry::Load(QCoreApplication* app, const QStringList& arguments, int width, int height)
{
    Translations::installQtTexts(*app);
    installValues.ReadFile(wendleToolsFileName);
    if (!arguments.isEmpty()) {
        exePath = executablePath(arguments.first());
        InitWindowSettings(QFileInfo(arguments.first()).baseName(), width, height);
    }
    values.Read(exePath);
    const Installations::Folders folders = Installations::FindInstallations();
    cInstallDir = folders.c;
    cppInstallDir = folders.cpp;
    definitions.ReadFile(definitionsFileName, definitionsContext());
    SetProcessEnvironment(nullptr, true);
}

void AppRegistry::InitWindowSettings(const QString& name, int defaultWidth, int defaultHeight)
{
    applicationName = name;
    CreateSettings();
    if (!settings || applicationName.isEmpty()) {
        return;
    }
    settings->beginGroup("Window"_L1);
    const QSize defaultSize(defaultWidth, defaultHeight);
    windowPos = storedOr(settings->value("pos"_L1), QPoint(150, 85));
    windowSize = storedOr(settings->value("size"_L1), defaultSize);
    if (windowSize.isEmpty()) {
        windowSize = defaultSize;
    }
    settings->endGroup();
    Q_EMIT ReadRegistryValues(settings.get());
}

void AppRegistry::CreateSettings()
{
    settings = applicationName.isEmpty() ? nullptr : SettingsStore::openForReading(applicationName);
}

void AppRegistry::ReadRegistry()
{
    if (settings && !applicationName.isEmpty()) {
        Q_EMIT ReadRegistryValues(settings.get());
    }
}

bool AppRegistry::WriteRegistry()
{
    if (!settings || applicationName.isEmpty()) {
        return false;
    }
    const bool kept = SettingsStore::write(applicationName, [this](QSettings& store) {
        store.beginGroup("Window"_L1);
        store.setValue("pos"_L1, windowPos);
        store.setValue("size"_L1, windowSize);
        store.endGroup();
        Q_EMIT WriteRegistryValues(&store);
    });
    settings->sync();
    return kept;
}

void AppRegistry::ShutDown()
{
    childProcesses.stopAll(shutDownWaitMs);
    tempFiles.removeAll();
    const QList<QDialog*> dialogs = openDialogs;
    for (QDialog* dialog : dialogs) {
        dialog->done(QDialog::Rejected);
    }
}

QString AppRegistry::DefinitionsFileName() const
{
    return definitions.file.fileName();
}

KOVRASettingsFile::Context AppRegistry::definitionsContext()
{
    return {.places = {values.installPath, cInstallDir, cppInstallDir},
            .xmlArea = values.xmlArea,
            .readPage = readPage,
            .trace = [this](const QString& label, const QString& value) { Trace(label, value); }};
}

ProjectFacts AppRegistry::projectFacts() const
{
    return {cInstallDir, cppInstallDir, values.cCurrentCEValue, values.cppCurrentCEValue};
}

OptionSources AppRegistry::optionSources()
{
    return {[this](const QString& suffix) { return CreateTempFileName(suffix); }, definitions.standardFiles()};
}

QStringList AppRegistry::executableFolders() const
{
    return {values.binArea, cInstallDir + u"/bin"_s, cppInstallDir + u"/bin"_s};
}
