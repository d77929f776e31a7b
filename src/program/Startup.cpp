// SPDX-License-Identifier: MIT
#include "program/Startup.h"
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "app/Translations.h"
#include "batch/BatchConversion.h"
#include "launchers/PageReader.h"
#include "process/StopSignals.h"
#include "process/StrayProcesses.h"
#include "program/DisplayCheck.h"
#include "wizard/ApplicationWindow.h"

#include <QApplication>
#include <QCoreApplication>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultWidth = 650;
constexpr int defaultHeight = 430;

QString title()
{
    return QCoreApplication::translate("Startup", "Create KOVRA Project");
}

// Scripts read it, so a catalogue gives it the same text.
QString usage()
{
    return QCoreApplication::translate("Startup", "ProjectCreation options:\n"
                                                  "-file <file>: xml definition file\n"
                                                  "-cpp: Create a Orv C++ file\n"
                                                  "-c: Create a Orv C file\n"
                                                  "-prj <file>: project file to be created\n"
                                                  "-mp <file>: Message Personality\n"
                                                  "-ap <file>: Analyser Personality\n"
                                                  "-cp <file>: Compiler Personality\n");
}

bool initialise(AppRegistry& registry, QCoreApplication& application)
{
    appRegistry = &registry;
    registry.readPage = readLauncherPage;
    return registry.Init(&application, QCoreApplication::arguments(), title(), defaultWidth, defaultHeight, usage());
}

QStringList toTexts(int argc, char** argv)
{
    QStringList texts;
    for (int i = 0; i < argc; ++i) {
        texts += QString::fromLocal8Bit(argv[i]);
    }
    return texts;
}

// Version, usage and batch conversions need no display, so they must not ask for one.
int runWithoutWindow(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Translations::install(Translations::userLocale());
    AppRegistry registry;
    if (!initialise(registry, application)) {
        return 0;
    }
    const int status = BatchConversion().execute(QCoreApplication::arguments());
    registry.ShutDown();
    return status;
}

} // namespace

int Startup::run(int argc, char** argv)
{
    StrayProcesses::adopt();
    const QStringList arguments = toTexts(argc, argv);
    if (CommandLine::endsProgram(arguments) || BatchArguments::isBatch(arguments)) {
        return runWithoutWindow(argc, argv);
    }
    const std::unique_ptr<QApplication> application = DisplayCheck::createApplication(argc, argv);
    Translations::install(Translations::userLocale());
    AppRegistry registry;
    if (!initialise(registry, *application)) {
        return 0;
    }
    ApplicationWindow window(title(), u"projectCreation.htm"_s, QCoreApplication::arguments());
    window.show();
    const StopSignals stopSignals;
    QObject::connect(&stopSignals, &StopSignals::received, &registry, [&registry] {
        registry.ShutDown();
        // Not quit(): it would ask the windows, and the wizard would ask the user.
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}
