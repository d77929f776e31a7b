// SPDX-License-Identifier: MIT
#include "TestMain.h"
#include "PrivateStores.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

std::vector<std::function<std::unique_ptr<QObject>()>>& testFactories()
{
    static std::vector<std::function<std::unique_ptr<QObject>()>> factories;
    return factories;
}

namespace {

/// Ends the process with a message when a dialog waits for an answer that nobody gives.
class DialogGuard : public QObject
{
public:
    DialogGuard() { startTimer(100); }

private:
    void timerEvent(QTimerEvent*) override
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog != waiting) {
            waiting = dialog;
            ticks = 0;
        }
        // The window that locks the wizard waits for a program. Ticks, as on a busy machine also the answers are late.
        if (!dialog || dialog->inherits("BusyDialog") || ++ticks < 40) {
            return;
        }
        QStringList texts;
        for (const auto* label : dialog->findChildren<QLabel*>()) {
            texts += label->text();
        }
        texts.removeAll(QString());
        const char* row = QTest::currentDataTag();
        qFatal("%s(%s): nobody answers the dialog \"%s\": %s", QTest::currentTestFunction(), row ? row : "",
               qPrintable(dialog->windowTitle()), qPrintable(texts.join(u' ')));
    }

    QPointer<QWidget> waiting;
    int ticks = 0;
};

// "Class::function why" a line: what makes no sense on the system that the tests run on.
QStringList skippedTests()
{
    QFile list(qEnvironmentVariable("KOVRA_SKIPPED_TESTS"));
    QStringList functions;
    if (!list.fileName().isEmpty() && list.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            functions += line.section(u' ', 0, 0);
        }
    }
    return functions;
}

// With all functions but these. Without any of them on the list the arguments stay.
int runTest(QObject& test, const QStringList& arguments, const QStringList& skipped)
{
    const QMetaObject& type = *test.metaObject();
    QStringList functions;
    qsizetype left = 0;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QString name = QString::fromLatin1(type.method(i).name());
        const QMetaMethod method = type.method(i);
        static const QStringList frame{u"initTestCase"_s, u"cleanupTestCase"_s, u"init"_s, u"cleanup"_s};
        if (method.methodType() != QMetaMethod::Slot || method.access() != QMetaMethod::Private ||
            name.endsWith("_data"_L1) || frame.contains(name)) {
            continue;
        }
        if (skipped.contains(QLatin1StringView(type.className()) + "::"_L1 + name)) {
            ++left;
        } else {
            functions += name;
        }
    }
    if (left > 0 && functions.isEmpty()) {
        return 0;
    }
    return QTest::qExec(&test, left > 0 ? arguments + functions : arguments);
}

} // namespace

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
    const PrivateStores stores(home.path());
    for (const char* name : {"ORVCPATH", "ORVCPPPATH", "ORVCPERSONALITIES", "ORVCPPPERSONALITIES"}) {
        qunsetenv(name);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }

    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    const DialogGuard guard;
    const QStringList skipped = skippedTests();
    int failures = 0;
    for (const auto& create : testFactories()) {
        const std::unique_ptr<QObject> test = create();
        failures += runTest(*test, QCoreApplication::arguments(), skipped) == 0 ? 0 : 1;
    }
    return failures;
}
