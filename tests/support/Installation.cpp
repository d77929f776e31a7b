// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "app/AppRegistry.h"
#include "launchers/PageReader.h"
#include "process/OutputDecoder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

Installation::Installation()
    : searchPath(qgetenv("PATH"))
{
    for (const auto& name : {u"bin"_s, u"xml"_s, u"help"_s, u"work"_s, u"orvc/bin"_s, u"orvc/personalities"_s,
                             u"orvcpp/bin"_s, u"orvcpp/personalities"_s}) {
        QDir(folder.path()).mkpath(name);
    }
    qputenv("ORVCPATH", path(u"orvc"_s).toLocal8Bit());
    qputenv("ORVCPPPATH", path(u"orvcpp"_s).toLocal8Bit());
}

Installation::~Installation()
{
    registry.reset();
    // What a wizard remembered must not reach the next test.
    QSettings(QSettings::SystemScope, u"KOVRA"_s, u"ProjectCreation"_s).clear();
    qputenv("PATH", searchPath);
    // The registry derives further variables from the analysers' folders.
    const QStringList variables = QProcessEnvironment::systemEnvironment().keys();
    for (const QString& name : variables) {
        if (name.startsWith("ORVC"_L1)) {
            qunsetenv(name.toLocal8Bit());
        }
    }
}

void Installation::define(const QByteArray& elements) const
{
    write(u"xml/settings.xml"_s, "<?xml version=\"1.0\"?>\n<settings>\n" + elements + "\n</settings>\n");
}

AppRegistry& Installation::start(const QStringList& options)
{
    registry.reset();
    registry = std::make_unique<AppRegistry>();
    appRegistry = registry.get();
    registry->readPage = readLauncherPage;
    registry->Init(qApp, QStringList{path(u"bin/ProjectCreation"_s)} + options, u"Create KOVRA Project"_s, 650, 430,
                   {});
    return *registry;
}

BoxAnswers::BoxAnswers(QList<QMessageBox::StandardButton> buttons)
    : answers(std::move(buttons))
    , timer(std::make_unique<QTimer>())
{
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [this] { answer(); });
    timer->start(5);
}

BoxAnswers::~BoxAnswers() = default;

void BoxAnswers::answer()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    // The window that locks the wizard waits for a program.
    if (!dialog || !dialog->isVisible() || dialog->inherits("BusyDialog")) {
        return;
    }
    auto* box = qobject_cast<QMessageBox*>(dialog);
    if (!box) {
        const auto* text = dialog->findChild<QPlainTextEdit*>();
        texts += dialog->windowTitle() + (text ? u'|' + text->toPlainText() : QString());
        dialog->reject();
        return;
    }
    texts += box->windowTitle() + u'|' + box->text();
    details += box->detailedText();
    additions += box->informativeText();
    // An unexpected box must not hang the test: it gets the answer that changes least.
    const QMessageBox::StandardButton choice = answers.isEmpty() ? QMessageBox::NoButton : answers.takeFirst();
    if (QAbstractButton* button = box->button(choice)) {
        button->click();
    } else {
        box->reject();
    }
}

namespace {

// Windows' line ends are no difference that a test looks for.
QString textOf(const QByteArray& output)
{
    return OutputDecoder::text(output).replace("\r\n"_L1, "\n"_L1);
}

} // namespace

ProgramResult runProgram(const QString& name, const QStringList& arguments, const Variables& variables,
                         const QString& folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& variable :
         {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"HOME"_s, u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANG"_s, u"LANGUAGE"_s}) {
        environment.remove(variable);
    }
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    for (const auto& [variable, value] : variables) {
        environment.insert(variable, value);
    }
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(folder);
    program.start(name, arguments);
    const bool ended = program.waitForFinished() && program.exitStatus() == QProcess::NormalExit;
    return {ended ? program.exitCode() : -1, textOf(program.readAllStandardOutput()),
            textOf(program.readAllStandardError())};
}
