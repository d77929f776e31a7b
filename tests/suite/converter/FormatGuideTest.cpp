// SPDX-License-Identifier: MIT
#include "ConvertedProject.h"
#include "process/ChildProcess.h"
#include "project/Project.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

/// The converters of the guides work from and into any folder.
class FormatGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsFromAnyFolder_data()
    {
        const TestRows<QString, QString, QStringList> row("guide", "block", "arguments");
#ifdef Q_OS_WIN
        row("definitions", u"settings-xml.md"_s, u"```bat\n"_s,
            {u"../src tree/list"_s, u"p.prj"_s, u"demo"_s, u"ORVCPP"_s, u"p.out"_s, u"cat"_s});
#else
        row("format", u"project-file.md"_s, u"```sh worked-converter\n"_s,
            {u"../src tree/list"_s, u"../src tree/options"_s, u"p.prj"_s, u"demo"_s, u"ORVCPP"_s});
        row("definitions", u"settings-xml.md"_s, u"```sh\n"_s,
            {u"../src tree/list"_s, u"p.prj"_s, u"demo"_s, u"ORVCPP"_s, u"p.out"_s, u"cat"_s});
#endif
    }

    void convertsFromAnyFolder()
    {
        const auto [guide, block, arguments] = fetched<QString, QString, QStringList>("guide", "block", "arguments");
        ConvertedProject place;
        place.start();
        QFile file(QStringLiteral(SOURCE_FOLDER "/docs/") + guide);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString script = QString::fromUtf8(file.readAll()).section(block, 1, 1).section(u"```"_s, 0, 0);
        const QString starter = place.write(u"convert.cmd"_s, script.toUtf8());
        for (const char* name : {"src tree/a.cpp", "src tree/deep/b=c.cpp"}) {
            place.write(u"work/"_s + QString::fromLatin1(name), "");
        }
        place.write(u"work/src tree/list"_s, "a.cpp\ndeep/b=c.cpp\n");
        place.write(u"work/src tree/options"_s, "-DSIZE=2\n-Iinc\n-I/usr/x\n-UOLD\n-O2\n");
        place.write(u"work/elsewhere/keep"_s, "");
        ChildProcess converter;
        converter.setWorkingDirectory(place.work(u"elsewhere"_s));
        QFile::setPermissions(starter, QFile::ReadOwner | QFile::ExeOwner);
        converter.launch(starter, arguments);
        QVERIFY(converter.waitForFinished());
        const QString errors = QString::fromUtf8(converter.readAllStandardError());
        QVERIFY2(converter.exitCode() == 0, qPrintable(errors));

        const Project project(place.work(u"elsewhere/p.prj"_s));
        QVERIFY2(project.root.existingFileCount() == 2, place.read(u"work/elsewhere/p.prj"_s));
        QCOMPARE(project.root.outputFolder(), place.work(u"elsewhere/p.out"_s));
        QVERIFY(!project.isCAnalyser());
        if (guide == "project-file.md"_L1) {
            QCOMPARE(place.options(project.root.resolvedAnalyserPersonality()),
                     (QStringList{u"-d SIZE=2"_s, u"-i \"%1/inc\""_s.arg(place.work(u"src tree"_s)), u"-i \"/usr/x\""_s,
                                  u"*orv undefine=OLD"_s}));
            QVERIFY2(errors.contains("-O2 has no counterpart"_L1), qPrintable(errors));
        }
    }
};

KOVRA_TEST(FormatGuideTest)
#include "FormatGuideTest.moc"
