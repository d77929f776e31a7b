// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/Installations.h"
#include "app/OwnEnvironment.h"
#include "app/SettingsStore.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/FileSearch.h"
#include "Installation.h"
#include "process/AnalyserEnvironment.h"
#include "process/BatchFile.h"
#include "process/ChildProcess.h"
#include "process/ConversionRun.h"
#include "process/OutputDecoder.h"
#include "process/StopSignals.h"
#include "project/ProjectTarget.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QSettings>
#include <QSignalSpy>

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

} // namespace

/// What is Windows' own: the registry, variables, the console, links to folders, jobs.
class WindowsRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A redirected hive has no view of its own for 32-bit programs: scripts/windows/check-package looks at that.
    void findsInstallersRecords()
    {
        for (const auto& hive : {u"HKEY_LOCAL_MACHINE"_s, u"HKEY_CURRENT_USER"_s}) {
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
    }

    void extendsPathOnce()
    {
        for (const auto& name : {u"Path"_s, u"PATH"_s, u"path"_s}) {
            const EnvironmentFolders folders{u"C:/bin"_s, u"C:/suite"_s, {u"more"_s}, u"C:/here"_s, {}, {}};
            QCOMPARE(analyserEnvironment({name + u"=C:\\a"_s}, folders, false, {}),
                     QStringList{u"PATH=C:\\a;C:\\bin;C:\\suite\\more;C:\\here"_s});
        }
    }

    void keepsLettersOfVariables()
    {
        const QString value = u"C:\\ж\\日本"_s;
        OwnEnvironment::set({u"KOVRA_LETTERS="_s + value}, {});
        QCOMPARE(qEnvironmentVariable("KOVRA_LETTERS"), value);
        QCOMPARE(OwnEnvironment::forChild({}, {}).value(u"kovra_letters"_s), value);
        QCOMPARE(OwnEnvironment::forChild({u"Kovra_Letters=x"_s}, {}).value(u"KOVRA_LETTERS"_s), u"x"_s);
    }

    void hearsOfTheSessionsEnd()
    {
        const StopSignals signals;
        const QSignalSpy received(&signals, &StopSignals::received);
        const HWND window = ::FindWindowW(L"KovraStopSignals", nullptr);
        ::SendMessageW(window, WM_ENDSESSION, FALSE, 0);
        QCOMPARE(received.size(), 0);
        // Done when the system goes on.
        ::SendMessageW(window, WM_ENDSESSION, TRUE, 0);
        QCOMPARE(received.size(), 1);
    }

    void leavesNoEmptyKeys()
    {
        const auto isThere = [](const wchar_t* key) {
            HKEY handle = nullptr;
            const bool found = ::RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_READ, &handle) == ERROR_SUCCESS;
            ::RegCloseKey(handle);
            return found;
        };
        QCOMPARE(SettingsStore::openForReading(u"Unknown"_s)->value(u"key"_s), QVariant());
        QVERIFY(!isThere(L"Software\\KOVRA\\Unknown"));
        QSettings(u"KOVRA"_s, u"Known"_s).setValue(u"key"_s, 1);
        QCOMPARE(SettingsStore::openForReading(u"Known"_s)->value(u"key"_s).toInt(), 1);
        QVERIFY(isThere(L"Software\\KOVRA\\Known"));
    }

    void namesAProjectThatAnotherProgramHolds()
    {
        const TestFolder place;
        const QString project = place.write(u"p.prj"_s, "old");
        {
            [[maybe_unused]] const HeldFile held(project);
            ConversionRun run;
            QVERIFY(!run.start(place.writeChild(u"convert"_s, "write $1 new"), {project}, project));
            QVERIFY2(run.detail().contains(place.nativePath(u"p.prj"_s) + u" can not be put aside"_s),
                     qPrintable(run.detail()));
        }
        QCOMPARE(place.read(u"p.prj"_s), QByteArray("old"));
    }

    // What Wine shows of this system's processes can not be written, not even by its administrator.
    void saysThatAFolderCanNotBeWritten()
    {
        const QString readOnly = u"Z:/proc"_s;
        if (!QFileInfo(readOnly).isDir()) {
            QSKIP("there is no folder here that nobody can write");
        }
        ConversionRun run;
        const TestFolder place;
        QVERIFY(!ProjectTarget::checkWritable(readOnly + u"/p.prj"_s).ok());
        QVERIFY(!ProjectTarget::createFolder(readOnly + u"/folder"_s).ok());
        QVERIFY(!run.start(place.writeChild(u"convert"_s, "write $1 new"), {readOnly}, readOnly + u"/p.prj"_s));
        QVERIFY2(run.detail().contains("folder can not be written: Z:\\proc\\"_L1), qPrintable(run.detail()));
    }

    void readsWhatAConsolePrints()
    {
        OutputDecoder decoder;
        QCOMPARE(decoder.decode("UTF-8: caf\xc3"), u"UTF-8: caf"_s);
        QCOMPARE(decoder.decode("\xa9\nOEM: caf\x82\n"), u"é\nOEM: café\n"_s);
    }

    void handsOverArguments_data()
    {
        const TestRows<QString> row("starter");
        row("program", u"arguments"_s);
        row("batch file", u"a & b.cmd"_s);
        row("script with an interpreter", u"script.kovratest"_s);
    }

    void handsOverArguments()
    {
        QFETCH(const QString, starter);
        const TestFolder place;
        const QString program =
            place.writeChild(u"arguments"_s, "append $0.out $1; append $0.out $2; append $0.out $3; append $0.out $4; "
                                             "append $0.out $5; append $0.out $6");
        const QString quoted = u"\"%1\" "_s.arg(QDir::toNativeSeparators(program));
        QString file = program;
        if (starter.endsWith(u".cmd"_s)) {
            file = place.write(starter, "@" + quoted.toUtf8() + "%*\r\n");
        } else if (starter != u"arguments"_s) {
            file = place.write(starter, "");
            QSettings kinds(u"HKEY_CLASSES_ROOT"_s, QSettings::NativeFormat);
            kinds.setValue(u".kovratest/."_s, u"kovratest"_s);
            kinds.setValue(u"kovratest/shell/open/command/."_s, quoted + u"\"%1\" %*"_s);
            kinds.sync();
        }
        ChildProcess child;
        const QStringList arguments{u"a&b|c<d>e"_s, starter.endsWith(u".cmd"_s) ? u"^ !x!"_s : u"%PATH% ^ !x!"_s,
                                    u"say \"hi\""_s, u"C:\\end\\"_s, u"ж 日本"_s};
        child.launch(file, arguments);
        QVERIFY(child.waitForFinished(10000));
        const QStringList first =
            starter.startsWith("script"_L1) ? QStringList{place.nativePath(starter)} : QStringList();
        QCOMPARE(QString::fromUtf8(place.read(u"arguments.out"_s)).split(u'\n', Qt::SkipEmptyParts), first + arguments);
    }

    void refusesWhatABatchFileCanNotTake()
    {
        // Wine's own interpreter looks for variables once more in what a batch file was given: only looked at.
        QCOMPARE(BatchFile::interpreterArguments(u"a.cmd"_s, {u"%OS%"_s}).value,
                 u"/e:ON /v:OFF /d /c \"\"a.cmd\" \"%%cd:~,%OS%%cd:~,%\"\""_s);
        ChildProcess child;
        const QSignalSpy errors(&child, &QProcess::errorOccurred);
        child.launch(u"C:/any.BAT"_s, {u"one\ntwo"_s});
        QCOMPARE(errors.size(), 1);
        QVERIFY2(child.errorString().contains(u"line break: one\ntwo"_s), qPrintable(child.errorString()));
    }

    void canBeClosed()
    {
        AppRegistry registry;
        const DisplayDialog window(registry, u"t"_s, DisplayDialog::Text, 100, 100);
        QVERIFY(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
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
        ChildProcess child;
        // Before its parent could be taken into a job by whoever started it.
        child.launch(place.writeChild(u"a b"_s, "start-daemon { start-daemon { mark $0.pid; hang }; hang }; hang"), {});
        QTRY_VERIFY(!place.read(u"a b.pid"_s).isEmpty());
        const QByteArray pid = place.read(u"a b.pid"_s);
        QVERIFY(TestFolder::isAlive(pid));
        QVERIFY(child.stop(10000));
        QTRY_VERIFY(!TestFolder::isAlive(pid));
        QVERIFY(!child.hasLeftovers());
    }
};

KOVRA_TEST(WindowsRulesTest)
#include "WindowsRulesTest.moc"
