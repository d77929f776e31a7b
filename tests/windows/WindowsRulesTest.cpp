// SPDX-License-Identifier: MIT
#include "app/Installations.h"
#include "app/OwnEnvironment.h"
#include "app/SettingsStore.h"
#include "console/Console.h"
#include "dialogs/FileSearch.h"
#include "process/AnalyserEnvironment.h"
#include "process/ChildProcess.h"
#include "process/StopSignals.h"
#include "TestFolder.h"
#include "TestMain.h"
#include "TestRows.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

const auto product = u"Orv C Source Code Analyser"_s;

class Found : public FileSearch::Listener
{
public:
    void folderEntered(const QString&) override {}
    void fileFound(const QString& file) override { files += file.section(u'/', -1); }
    bool goOn() override { return true; }
    bool keepAlive() override { return true; }

    QStringList files;
};

bool isRunning(const QByteArray& pid)
{
    const HANDLE process = ::OpenProcess(SYNCHRONIZE, FALSE, pid.trimmed().toUInt());
    const bool runs = process != nullptr && ::WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    ::CloseHandle(process);
    return runs;
}

} // namespace

/// What is Windows' own: the registry, variables, the console, links to folders, jobs.
class WindowsRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsInstallersRecords_data()
    {
        // A redirected hive has no view of its own for 32-bit programs: scripts/windows/check-package looks at that.
        const TestRows<QString> row("hive");
        row("machine", u"HKEY_LOCAL_MACHINE"_s);
        row("user", u"HKEY_CURRENT_USER"_s);
    }

    void findsInstallersRecords()
    {
        QFETCH(const QString, hive);
        const TestFolder place;
        place.write(u"4.2/ж"_s, "");
        QSettings store(hive + u"\\Software\\KOVRA\\"_s + product, QSettings::NativeFormat);
        store.setValue(u"4.2/Path"_s, place.path(u"4.2"_s));
        store.sync();
        const QString found = Installations::FindInstallation(product, u"ORVCPATH"_s);
        store.clear();
        store.sync();
        QCOMPARE(found, place.path(u"4.2"_s));
    }

    void extendsPathOnce_data()
    {
        const TestRows<QString> row("name");
        row("Path", u"Path"_s);
        row("PATH", u"PATH"_s);
        row("path", u"path"_s);
    }

    void extendsPathOnce()
    {
        QFETCH(const QString, name);
        const EnvironmentFolders folders{u"C:/bin"_s, u"C:/suite"_s, {u"more"_s}, u"C:/here"_s, {}, {}};
        QCOMPARE(analyserEnvironment({name + u"=C:\\a"_s}, folders, false, {}),
                 QStringList{u"PATH=C:\\a;C:\\bin;C:\\suite\\more;C:\\here"_s});
    }

    void keepsLettersOfVariables()
    {
        const QString value = u"C:\\ж\\日本"_s;
        OwnEnvironment::set({u"KOVRA_LETTERS="_s + value}, {});
        QCOMPARE(qEnvironmentVariable("KOVRA_LETTERS"), value);
        QCOMPARE(OwnEnvironment::forChild({}, {}).value(u"kovra_letters"_s), value);
        QCOMPARE(OwnEnvironment::forChild({u"Kovra_Letters=x"_s}, {}).value(u"KOVRA_LETTERS"_s), u"x"_s);
    }

    void takesArgumentsAsGiven()
    {
        const QStringList arguments = Console::arguments(0, nullptr);
        QCOMPARE(arguments, QCoreApplication::arguments());
    }

    void hearsOfCtrlC()
    {
        // One of the test's own: what it was started from may be no console that knows of events.
        ::FreeConsole();
        QVERIFY(::AllocConsole());
        const StopSignals signals;
        QSignalSpy received(&signals, &StopSignals::received);
        QVERIFY(::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
        QTRY_VERIFY(!received.isEmpty());
    }

    void searchesBeyond260Characters()
    {
        const TestFolder place;
        const QString deep = u"work/"_s + QString(120, u'a') + u'/' + QString(120, u'b') + u'/' + QString(120, u'ж');
        place.write(deep + u"/found.c"_s, "");
        place.write(u"work/.hidden/no.c"_s, "");
        Found found;
        FileSearch({u"*.c"_s}).run(place.path(u"work"_s), found);
        QCOMPARE(found.files, QStringList{u"found.c"_s});
    }

    void endsGrandchildren()
    {
        const TestFolder place;
        const QString script = place.write(
            u"a b.cmd"_s, "@echo off\r\nstart /b ping -n 600 127.0.0.1 >nul\r\nping -n 600 127.0.0.1 >nul\r\n");
        ChildProcess child;
        child.start(script, {});
        QVERIFY(child.waitForStarted());
        const QByteArray pid = QByteArray::number(child.processId());
        QVERIFY(isRunning(pid));
        QVERIFY(child.stop(10000));
        QTRY_VERIFY(!isRunning(pid));
        QVERIFY(!child.hasLeftovers());
    }
};

KOVRA_TEST(WindowsRulesTest)
#include "WindowsRulesTest.moc"
