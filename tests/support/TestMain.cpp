// SPDX-License-Identifier: MIT
#include "TestMain.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

std::vector<std::function<std::unique_ptr<QObject>()>>& testFactories()
{
    static std::vector<std::function<std::unique_ptr<QObject>()>> factories;
    return factories;
}

// Every place a test could leave something behind lies in one folder that goes with the run.
int main(int argc, char** argv)
{
    QTemporaryDir home;
    if (!home.isValid()) {
        qCritical("cannot create a folder for the test run");
        return 1;
    }
    for (const auto& [variable, name] : {std::pair{"HOME", "home"}, std::pair{"XDG_CONFIG_HOME", "config"},
                                         std::pair{"XDG_CONFIG_DIRS", "system-config"}, std::pair{"TMPDIR", "tmp"}}) {
        const QString folder = home.filePath(QLatin1String(name));
        QDir().mkpath(folder);
        qputenv(variable, folder.toLocal8Bit());
    }
    for (const char* name : {"ORVCPATH", "ORVCPPPATH", "ORVCPERSONALITIES", "ORVCPPPERSONALITIES"}) {
        qunsetenv(name);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }

    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    int failures = 0;
    for (const auto& create : testFactories()) {
        const std::unique_ptr<QObject> test = create();
        failures += QTest::qExec(test.get(), argc, argv) == 0 ? 0 : 1;
    }
    return failures;
}
