// SPDX-License-Identifier: MIT
#include "program/Startup.h"
#include "app/AppRegistry.h"
#include "app/CommandLine.h"
#include "app/PortableMode.h"
#include "app/Translations.h"
#include "batch/BatchArguments.h"
#include "batch/BatchMode.h"
#include "console/Console.h"
#include "dialogs/MessageBox.h"
#include "launchers/PageReader.h"
#include "process/Guardian.h"
#include "process/StopSignals.h"
#include "process/StrayProcesses.h"
#include "program/DisplayCheck.h"
#include "program/StandardChannels.h"
#include "program/SuiteFolder.h"
#include "wizard/ApplicationWindow.h"

#include <QApplication>
#include <QCoreApplication>

#include <cstdlib>
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

// Without a page reader the launchers are read without their buttons.
bool initialise(AppRegistry& registry, QCoreApplication& application, const PageReader& readPage)
{
    PortableMode::enter();
    SuiteFolder::offerAnalysers();
    appRegistry = &registry;
    registry.readPage = readPage;
    return registry.Init(&application, QCoreApplication::arguments(), title(), defaultWidth, defaultHeight, usage());
}

// Version, usage and batch conversions need no display, so they must not ask for one.
int runWithoutWindow(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Translations::install(Translations::userLocale());
    AppRegistry registry;
    if (!initialise(registry, application, {})) {
        return 0;
    }
    const int status = BatchMode::execute(QCoreApplication::arguments());
    registry.ShutDown();
    return status;
}

enum class Question { None, Version, Help, BatchHelp };

// What everybody tries first; the program's own -ver and -help answer on the warning channel.
Question question(const QStringList& arguments)
{
    const QStringList options = arguments.mid(1);
    if (options.contains("--version"_L1)) {
        return Question::Version;
    }
    const bool wantsHelp = options.contains("--help"_L1) || options.contains("-h"_L1);
    if (BatchArguments::isBatch(arguments)) {
        return wantsHelp || options.contains("-help"_L1) ? Question::BatchHelp : Question::None;
    }
    return wantsHelp ? Question::Help : Question::None;
}

int answer(Question asked, int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Translations::install(Translations::userLocale());
    if (asked == Question::BatchHelp) {
        return BatchMode::help();
    }
    const QString text = asked == Question::Version
                             ? title() + u" 1 (build 1)\n"_s
                             : usage() + QCoreApplication::translate("Startup", "Without a window: ProjectCreation "
                                                                                "-batch -help tells how.\n");
    return BatchMode::print(text);
}

// Forked before there are threads, and before the system is asked for strays: it is none.
void watchOverChildren()
{
    Guardian::start();
    StrayProcesses::adopt();
}

int runWithWindow(int argc, char** argv)
{
    const std::unique_ptr<QApplication> application = DisplayCheck::createApplication(argc, argv);
    Translations::install(Translations::userLocale());
    AppRegistry registry;
    if (!initialise(registry, *application, readLauncherPage)) {
        return 0;
    }
    ApplicationWindow window(title(), u"projectCreation.htm"_s, QCoreApplication::arguments());
    if (const auto project = CommandLine::toolsProject(QCoreApplication::arguments())) {
        const Result<void> opened = window.openTools(*project);
        if (!opened.ok()) {
            MessageBox::warn(nullptr, title(), opened.problem);
            return EXIT_FAILURE;
        }
    }
    window.show();
    const StopSignals stopSignals;
    QObject::connect(&stopSignals, &StopSignals::received, &registry, [&registry] {
        registry.ShutDown();
        // Not quit(): it would ask the windows, and the wizard would ask the user.
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}

} // namespace

int Startup::run(int argc, char** argv)
{
    StandardChannels::reserve();
    Console::open();
    const QStringList arguments = Console::arguments(argc, argv);
    if (const Question asked = question(arguments); asked != Question::None) {
        return answer(asked, argc, argv);
    }
    if (CommandLine::endsProgram(arguments)) {
        return runWithoutWindow(argc, argv);
    }
    if (BatchArguments::isBatch(arguments)) {
        Console::hearKeys();
    }
    watchOverChildren();
    const int status = BatchArguments::isBatch(arguments) ? runWithoutWindow(argc, argv) : runWithWindow(argc, argv);
    Guardian::dismiss();
    return status;
}
