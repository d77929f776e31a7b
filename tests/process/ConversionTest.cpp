// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "app/ProcessEnvironment.h"
#include "definitions/DefinitionRecords.h"
#include "Installation.h"
#include "process/AnalyserEnvironment.h"
#include "process/ArgumentSubstitution.h"
#include "process/ConversionRun.h"
#include "process/OutputBuffer.h"
#include "process/OutputDecoder.h"
#include "process/StrayProcesses.h"
#include "process/WizardState.h"
#include "TestMain.h"

#include <QProcess>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A conversion in a suite of its own; its script gets the project file as its argument.
struct Conversion : Installation
{
    Conversion()
    {
        QObject::connect(&run, &ConversionRun::outputReady, &run, [this] { output += run.takeOutput(); });
    }
    bool start(const QByteArray& script)
    {
        output.clear();
        return run.start(writeChild(u"convert"_s, script), {project}, project);
    }

    QString output;
    // As long as a name can be.
    const QString project = path(u"work/"_s + QString(251, u'p') + u".prj"_s);
    ConversionRun run;
    QSignalSpy ended{&run, &ConversionRun::ended};
};

} // namespace

class ConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void substitutes()
    {
        const auto substituted = [](const QString& value, const QString& prefix, bool quote = false) {
            QStringList arguments{u"a"_s, u"%V"_s, u"-x=%V%V"_s};
            SubstituteArgument(arguments, u"%V"_s, value, prefix, quote);
            return arguments.join(u'|');
        };
        QCOMPARE(substituted(u"v"_s, u"-p"_s), u"a|-p|v|-p|-x=vv"_s);
        // Nothing needs no prefix.
        QCOMPARE(substituted({}, u"-p"_s), u"a||-p|-x="_s);
        QCOMPARE(substituted(u"v w"_s, {}, true), u"a|\"v w\"|\"-x=v wv w\""_s);
        QCOMPARE(substituted(u"%V"_s, u"%V"_s), u"a|%V|%V|%V|-x=%V%V"_s);
    }

    void buildsTheConversionCommand()
    {
        ProjectCreatorData creator;
        creator.exeArgs = u"%Q %D %J %PF %CP+ %CP %AP+ %MP+ %IN %LIST"_s.split(u' ');
        ArgumentDefinition& input = *creator.inputData.emplace_back(std::make_unique<ArgumentDefinition>());
        input.argument = u"%IN"_s;
        input.prefix = u"--in"_s;
        input.value = u"a b.json"_s;
        creator.inputData.emplace_back(std::make_unique<ArgumentDefinition>())->argument = u"%LIST"_s;
        WizardState state;
        state.projectCreator = &creator;
        state.fileName = u"new"_s;
        state.fileDir = u"/w"_s;
        state.isORVC = false;
        state.compilerPersonality = u"/c.p_c"_s;
        state.messagePersonality = u"/m.p_s"_s;
        QCOMPARE(conversionArguments(state).join(u'|'),
                 u"ORVCPP|/w|new|%1|-via|/c.p_c|/c.p_c||-via|/m.p_s|--in|a b.json|"_s.arg(
                     QDir::toNativeSeparators(u"/w/new.prj"_s)));
    }

    void takesWhatItPrints()
    {
        Conversion conversion;
        QVERIFY(conversion.start("copy-input; put caf\xc3; pause 100; put '\xa9 <b>'; print-error problem\n"
                                 "print \\x; write $1 new"));
        QTRY_COMPARE(conversion.ended.size(), 1);
        QCOMPARE(conversion.run.outcome(), ConversionRun::Outcome::Created);
        QCOMPARE(conversion.output, u"café <b>problem\n%1\n"_s.arg(OutputDecoder::text("\x82")));
        QCOMPARE(conversion.run.detail(), QString());
        QCOMPARE(conversion.read(conversion.project), QByteArray("new\n"));
    }

    void leavesAFolderInThePlaceAlone()
    {
        Conversion conversion;
        QVERIFY(QDir().mkpath(conversion.project + u"/x"_s));
        QVERIFY(!conversion.start(""));
        QCOMPARE(conversion.ended.size(), 1);
        QCOMPARE(conversion.run.outcome(), ConversionRun::Outcome::NotStarted);
        QVERIFY(QFile::exists(conversion.project + u"/x"_s));
    }

    void takesCareOfWhatIsDetached()
    {
        Conversion conversion;
        QProcess earlier;
        earlier.start(u"setsid"_s, {u"sleep"_s, u"1000"_s});
        QVERIFY(earlier.waitForStarted());
        StrayProcesses::adopt();
        // One that waits for the end of what it has detached must see it end.
        QVERIFY(conversion.start("#!(sh -c 'echo $$ > \"$0\"; exec sleep 0.1' \"$0.pid\" &)\nsleep 0.05\n"
                                 "while kill -0 $(cat \"$0.pid\"); do sleep 0.05; done\necho new > \"$1\"\n"));
        QTRY_COMPARE(conversion.ended.size(), 1);
        QCOMPARE(conversion.run.outcome(), ConversionRun::Outcome::Created);
        // What was there before us is not ours to end.
        QCOMPARE(earlier.state(), QProcess::Running);
        QVERIFY(Installation::isAlive(QByteArray::number(earlier.processId())));
        earlier.kill();
        QVERIFY(earlier.waitForFinished());
    }

    void joinsWhatReadsCut()
    {
        OutputBuffer buffer(100);
        buffer.append(u"one\r\ntw");
        QCOMPARE(buffer.take(10), QStringList{u"one"_s});
        buffer.append(u"o\n\npro");
        QCOMPARE(buffer.take(1), QStringList{u"two"_s});
        QCOMPARE(buffer.take(10), QStringList{QString()});
        // A prompt that never ends its line appears one call later, what follows it is a paragraph of its own.
        QCOMPARE(buffer.take(10), QStringList{u"pro"_s});
        buffer.append(u"mpt");
        buffer.endLine();
        QCOMPARE(buffer.take(100), QStringList{u"mpt"_s});
        QVERIFY(buffer.isEmpty());
    }

    void staysBounded()
    {
        OutputBuffer buffer(10);
        for (int i = 0; i < 1000; ++i) {
            buffer.append(QString(QString::number(i) + u'\n'));
        }
        QStringList last = buffer.take(100);
        QCOMPARE(last.size(), 10);
        QCOMPARE(last.first(), u"990"_s);
        QCOMPARE(buffer.takeDropped(), qint64(990));
        QCOMPARE(buffer.takeDropped(), qint64(0));
        buffer.append(QString(QString(1 << 20, u'x') + u"\nend\n"_s));
        last = buffer.take(100);
        QCOMPARE(last.last(), u"end"_s);
        QVERIFY(last.first().size() <= 16LL * 1024);
        buffer.append(QString(10, u'x') + u"\n1\n2\n"_s);
        QCOMPARE(buffer.take(100, 5).size(), 1);
        QCOMPARE(buffer.take(100, 5).size(), 2);
        // Long lines count by their characters, also while nobody takes them.
        OutputBuffer longLines(5000);
        longLines.append(QString(QString(4000, u'x') + u'\n').repeated(2000));
        const qint64 dropped = longLines.takeDropped();
        QVERIFY2(dropped > 1400, QByteArray::number(dropped));
        const qint64 kept = longLines.take(5000).size();
        QVERIFY2(kept < 300, QByteArray::number(kept));
        QCOMPARE(dropped + kept + longLines.takeDropped(), qint64(2000));
    }

    void extendsThePath()
    {
        const Installation suite;
        const QString c = suite.path(u"orvc"_s);
        const QString cpp = suite.path(u"orvcpp"_s);
        EnvironmentFolders folders{{}, u"/tools"_s, {u"lib"_s, u"/ext/bin"_s}, u"/here"_s, c, cpp};
        QString traced;
        // What is set is replaced in place, in any letter case, only PATH is another variable than Path; folders that
        // do not exist get no variable.
        QCOMPARE(analyserEnvironment({u"A=1"_s, u"orvcbin=old"_s, u"Path=/y"_s, u"PATH=/x"_s, u"ORVCPATH="_s + c},
                                     folders, true, [&](const QString& name, const QString&) { traced += name + u' '; })
                     .join(u'\n'),
                 u"A=1\nORVCBIN=%1/bin\nPath=/y\nPATH=/x::/tools/lib:/tools//ext/bin:/here:%1/bin:%2/bin\nORVCPATH=%1\n"
                 "ORVCPERSONALITIES=%1/personalities\nORVCPPPATH=%2\nORVCPPBIN=%2/bin\n"
                 "ORVCPPPERSONALITIES=%2/personalities"_s.arg(c, cpp));
        QCOMPARE(traced, u"ORVCBIN ORVCPERSONALITIES ORVCPPPATH ORVCPPBIN ORVCPPPERSONALITIES "_s);
        QCOMPARE(analyserEnvironment({u"A=1"_s}, folders, false), QStringList{u"A=1"_s});
        folders.cInstallDir = u"/nowhere"_s;
        QVERIFY(analyserEnvironment({}, folders, true).filter(u"ORVCPATH"_s).isEmpty());
    }

    void childrenInheritIt()
    {
        Installation suite;
        const auto more = QDir::listSeparator() + u"/opt/"_s;
        qputenv("LATIN", "caf\xe9");
        qputenv("PATH", qgetenv("PATH") + more.toUtf8() + "caf\xe9");
        suite.start();
#ifdef Q_OS_WIN
        const QByteArray cafe = "caf\xc3\xa9";
#else
        const QByteArray cafe = "caf\xe9";
#endif
        const QString next = QDir::listSeparator() + suite.nativePath(u"bin"_s);
        for (const bool isLaunched : {false, true}) {
            QProcess child;
            isLaunched ? SetProcessEnvironment(&child, true) : void();
            // The user's own variables keep their bytes, PATH those that it had.
            child.start(suite.writeChild(u"show"_s, "put $ORVCBIN|$LATIN|$PATH"), {});
            QVERIFY(child.waitForFinished());
            const QByteArray said = child.readAll();
            QVERIFY2(said.startsWith(suite.nativePath(u"orvc/bin"_s).toUtf8() + '|' + cafe + '|'), said.constData());
            QVERIFY2(said.contains(more.toUtf8() + cafe + next.toUtf8()), said.constData());
        }
        qunsetenv("LATIN");
    }
};

KOVRA_TEST(ConversionTest)
#include "ConversionTest.moc"
