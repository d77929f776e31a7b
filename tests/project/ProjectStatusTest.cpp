// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Installation.h"
#include "project/Project.h"
#include "TestMain.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Sources, outputs and personalities of one project; times are minutes after a fixed start.
class Workspace : public Installation
{
public:
    void touch(const QString& name, int minutes) const
    {
        if (!QFile::exists(path(u"work/"_s + name))) {
            write(u"work/"_s + name, "x");
        }
        QFile file(path(u"work/"_s + name));
        if (!file.open(QIODevice::ReadWrite) ||
            !file.setFileTime(begin.addSecs(60 * minutes), QFileDevice::FileModificationTime)) {
            qFatal("cannot touch %s", qPrintable(name));
        }
    }

    void analyse(const QString& source, int minutes) const
    {
        touch(u"out/"_s + source + u".met"_s, minutes);
        touch(u"out/"_s + source + u".err"_s, minutes);
    }

    QString project(const QByteArray& files, const QByteArray& lastAnalysis = {}) const
    {
        const QByteArray work = path(u"work"_s).toUtf8();
        return write(u"work/p.prj"_s,
                     "VersionTag\nStartProjectMarker\nname=P\nsourceDir=" + work + "\noutputDir=" + work +
                         "/out\nm=" + work + "/m.p_s\na=" + work + "/a.p_a\nc=default string\n*project=ORVC\n" +
                         (lastAnalysis.isEmpty() ? QByteArray() : "*lastAnalysis=" + lastAnalysis + '\n') + files +
                         "EndContainedFilesMarker\nend\n");
    }

private:
    QDateTime begin = QDateTime::currentDateTime().addDays(-2);
};

} // namespace

class ProjectStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decides_data()
    {
        QTest::addColumn<QString>("sources");
        QTest::addColumn<QString>("analysed");
        QTest::addColumn<QString>("stale");
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("complete");
        const auto row = [](const char* name, const char* sources, const char* analysed, const char* stale,
                            const char* status, bool complete) {
            QTest::newRow(name) << QString::fromLatin1(sources) << QString::fromLatin1(analysed)
                                << QString::fromLatin1(stale) << QString::fromLatin1(status) << complete;
        };
        // The project lists a.c, b.c and c.c; "sources" are those that exist.
        row("nothing listed", "-", "", "", "This project does not contain any source files", false);
        row("none exists", "", "", "", "None of the files specified in this project exist", false);
        row("not analysed", "abc", "", "",
            "This project has not been analysed yet\n   Files in project: 3    Analysed files: 0", false);
        row("stale wins over partly", "abc", "a", "b",
            "Analysis of this project is out of date\n   Files in project: 3    Analysed files: 1\n   Analysed with: V",
            false);
        row("partly", "abc", "ab", "",
            "This project has been partially analysed\n   Files in project: 3    Analysed files: 2\n   Analysed with: "
            "V",
            false);
        row("complete", "abc", "abc", "",
            "Analysis of this project is complete\n   Files in project: 3\n   Analysed with: V", true);
        row("some missing, the others complete", "ab", "ab", "",
            "Some of the files specified in this project do not exist, of those that exist, analysis is complete\n   "
            "Files "
            "in project: 3    Existing files: 2\n   Analysed with: V",
            true);
        row("some missing, some output", "ab", "a", "",
            "Some of the files specified in this project do not exist, of those that exist, some analysis output "
            "exists\n   "
            "Files in project: 3    Existing files: 2    Analysed files: 1\n   Analysed with: V",
            false);
        row("some missing, no output", "ab", "", "",
            "Some of the files specified in this project do not exist, no analysis output exists\n   Files in project: "
            "3    "
            "Existing files: 2    Analysed files: 0",
            false);
    }

    void decides()
    {
        QFETCH(const QString, sources);
        QFETCH(const QString, analysed);
        QFETCH(const QString, stale);
        QFETCH(const QString, status);
        QFETCH(const bool, complete);
        Workspace work;
        work.start();
        for (const QChar name : sources == "-"_L1 ? QString() : sources) {
            work.touch(name + u".c"_s, 10);
        }
        for (const QChar name : analysed) {
            work.analyse(name + u".c"_s, 10);
        }
        for (const QChar name : stale) {
            work.analyse(name + u".c"_s, 9);
        }
        const Project project(work.project(sources == "-"_L1 ? "" : "a.c\nb.c\nc.c\n", "V"));
        QCOMPARE(project.statusText, status);
        QCOMPARE(project.analysisComplete, complete);
        QCOMPARE(project.statusOk, status.contains(u'\n'));
    }

    void followsTheFiles()
    {
        Workspace work;
        AppRegistry& registry = work.start();
        const QString file = work.project("a.c\nb.c\n", "V1");
        const auto status = [&file] { return Project(file).statusText.section(u'\n', 0, 0); };
        work.touch(u"a.c"_s, 1);
        work.touch(u"b.c"_s, 1);
        QCOMPARE(status(), u"This project has not been analysed yet"_s);
        work.touch(u"out/a.c.met"_s, 5);
        QCOMPARE(status(), u"This project has not been analysed yet"_s);
        work.analyse(u"a.c"_s, 5);
        QCOMPARE(status(), u"This project has been partially analysed"_s);
        work.analyse(u"b.c"_s, 5);
        QCOMPARE(status(), u"Analysis of this project is complete"_s);
        work.touch(u"a.c"_s, 6);
        QCOMPARE(status(), u"Analysis of this project is out of date"_s);
        work.analyse(u"a.c"_s, 7);
        // Messages do not shape the analysis, its configuration does.
        work.touch(u"m.p_s"_s, 20);
        QCOMPARE(status(), u"Analysis of this project is complete"_s);
        work.touch(u"a.p_a"_s, 20);
        QCOMPARE(status(), u"Analysis of this project is out of date"_s);
        work.analyse(u"a.c"_s, 20);
        work.analyse(u"b.c"_s, 20);
        registry.values.cCurrentCEValue = u"V1"_s;
        QCOMPARE(status(), u"Analysis of this project is complete"_s);
        registry.values.cCurrentCEValue = u"V2"_s;
        QCOMPARE(status(), u"Analysis of this project is complete, but configuration changed since last analysis"_s);

        const Project project(file);
        QCOMPARE(project.root.upToDateFileCount(), 2);
        QVERIFY(project.root.files.at(0).isUpToDate());
        QCOMPARE(project.root.firstExistingMetricsPath(), work.path(u"work/out/a.c.met"_s));
        registry.values.cCurrentCEValue.clear();
        work.project("a.c\nb.c\n");
        QVERIFY(Project(file).statusText.endsWith(
            "but configuration changed since last analysis\n   Files in project: 2\n   "
            "Analysed with: unknown"_L1));
    }
};

KOVRA_TEST(ProjectStatusTest)
#include "ProjectStatusTest.moc"
