// SPDX-License-Identifier: MIT
#include "project/Project.h"
#include "app/TemporaryFiles.h"
#include "project/OptionSources.h"
#include "project/ProjectReader.h"
#include "SystemCalls.h"
#include "TestFolder.h"
#include "TestMain.h"

#include <QBuffer>
#include <QDateTime>

using namespace Qt::StringLiterals;

namespace {

// One project of a versioned file, before its sub-projects.
QByteArray versioned(const QByteArray& name, const QByteArray& files, const QByteArray& folder = "src")
{
    return "StartProjectMarker\nname=" + name + "\nsourceDir=" + folder + "\noutputDir=" + folder +
           "/out\nm=" + folder + "/m.p_s\na=" + folder + "/a.p_a\nc=default string\n" + files +
           "EndContainedFilesMarker\n";
}

// The tree in one line: names, their files and in brackets their sub-projects, as the reader put them.
QString shape(const ProjectData& project)
{
    QString text = project.name;
    for (const SourceEntry& entry : project.files) {
        text += u' ' + entry.fileName().toString();
    }
    for (const auto& child : project.subProjects) {
        text += u'(' + shape(*child) + u')';
    }
    return text;
}

/// Sources, outputs and personalities of one project; times are seconds after a fixed start.
struct Workspace : TestFolder
{
    void touch(const QString& name, int seconds, const QByteArray& contents = "x") const
    {
        write(u"work/"_s + name, contents, begin.addSecs(seconds));
    }

    /// Results of a.c, b.c and so on.
    void analyse(const QString& letters, int seconds) const
    {
        for (const QChar letter : letters) {
            touch(u"out/%1.c.met"_s.arg(letter), seconds);
            touch(u"out/%1.c.err"_s.arg(letter), seconds);
        }
    }

    QString project(const QByteArray& files) const
    {
        return write(u"work/p.prj"_s,
                     "VersionTag\n" + versioned("P", "*project=ORVC\n" + files, path(u"work"_s).toUtf8()) + "end\n");
    }

    const QDateTime begin = QDateTime::currentDateTime().addDays(-2);
};

} // namespace

class ProjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsBothDialects_data()
    {
        const QByteArray start = "versiontag 3\n";
        const QByteArray nest = "StartSubProjectMarker\n";
        const QByteArray up = "EndSubProjectMarker\n";
        // The tree, the declared language (4 for none) and what analysed it.
        const TestRows<QByteArray, QString> row("text", "read");
        row("nested",
            start + versioned("A", "a.c\n") + nest + versioned("B", "b.c\n") + nest + versioned("D", "") + up +
                versioned("C", "c.c\n") + up + versioned("lost", "") + "end\n",
            u"A a.c(B b.c(D))(C c.c)|4|"_s);
        row("without version",
            "x\nStartProjectMarker\nA\nunused\nout\nsrc\na.c\n*project=ORVC\nEndContainedFilesMarker\nm\na\n"
            "c\n*project=ORVCPP and more\n*lastAnalysis=x*lastAnalysis=y\nStartSubProjectMarker\n"
            "StartProjectMarker\nB\n\n\n\nb.c\nEndContainedFilesMarker\nm\na\nc\nend\n",
            u"A a.c *project=ORVC(B b.c)|1|xy"_s);
        row("annotations among the files, of which the last counts",
            start + versioned("A", "*project=ORVC\na.c\n*lastAnalysis=1\nb.c\n") + "*lastAnalysis=2\n*Project=ORVCPP\n",
            u"A a.c b.c|0|2"_s);
        row("value with two equals signs", start + versioned("a=b", ""), u"a|4|"_s);
        row("first line is for the version only", "StartProjectMarker\nx\n", u"invalid"_s);
        row("last line is no file", start + versioned("A", "").replace("EndContainedFilesMarker\n", "a.c\nb.c"),
            u"A a.c|4|"_s);
        row("ends too often", start + versioned("A", "") + up + versioned("B", "") + "end\n", u"A|4|"_s);
        row("cut", start + "StartProjectMarker\nname=A\nsour", u"A|4|"_s);
        row("Windows line ends", QByteArray(start + versioned("A", "a.c\n")).replace('\n', "\r\n"), u"A a.c|4|"_s);
        const auto length = ProjectReader::longestLine;
        row("longest line", start + versioned("A", QByteArray(length - 1, 'x') + '\n'),
            u"A "_s + QString(length - 1, u'x') + u"|4|"_s);
        row("UTF-8", start + versioned("Größe", "ä.c\n"), u"Größe ä.c|4|"_s);
        row("UTF-8 with a mark", "\xEF\xBB\xBF" + start + versioned("Größe", "ä.c\n"), u"Größe ä.c|4|"_s);
        row("Latin-1",
            start + versioned("Gr\xF6\xDF"
                              "e",
                              "\xE4.c\n"),
            u"Größe ä.c|4|"_s);
        row("longer line", start + versioned("A", QByteArray(length, 'x') + '\n'), u"invalid"_s);
    }

    void readsBothDialects()
    {
        QFETCH(const QByteArray, text);
        const Workspace suite;
        const Project project(suite.write(u"work/p.prj"_s, text));
        const QString facts = u"|%1|"_s.arg(int(project.declaredLanguage)) + project.lastAnalysis;
        QTEST(project.valid ? shape(project.root) + facts : u"invalid"_s, "read");
    }

    void resolvesWhatItRead()
    {
        const Workspace suite;
        const Project project(suite.write(
            u"work/p.prj"_s,
            "VersionTag 1\nStartProjectMarker\nname=A\nsourceDir=/s\noutputDir=/o\nm=/m.p_s\na=default string\n"
            "c=/c.p_c\nd/../main.c\n/abs//x.cpp\nEndContainedFilesMarker\nStartSubProjectMarker\n"
            "StartProjectMarker\nname=B\nsourceDir=rel\noutputDir=\nm=inherit string\na=inherit string\n"
            "c=own\ny.c\nEndContainedFilesMarker\nend\n"));
        const SourceEntry& first = project.root.files.at(0);
        const ProjectData& child = *project.root.subProjects.at(0);
        const QString here = QDir::currentPath();
        QCOMPARE(project.root.allSourcePaths().join(u' '), u"/s/main.c /abs/x.cpp %1/rel/y.c"_s.arg(here));
        QCOMPARE(first.metricsPath(), u"/o/main.c.met"_s);
        QCOMPARE(first.errorPath(), u"/o/main.c.err"_s);
        QCOMPARE(first.preprocessedPath(), u"/o/main.c.i"_s);
        QCOMPARE(child.files.at(0).metricsPath(), here + u"/y.c.met"_s);
        QCOMPARE(child.resolvedMessagePersonality(), u"/m.p_s"_s);
        QCOMPARE(child.resolvedAnalyserPersonality(), QString());
        QCOMPARE(child.resolvedCompilerPersonality(), u"own"_s);
    }

    void survivesWhatIsNoProject_data()
    {
        const QString invalid = u"This project file is not a valid KOVRA project file"_s;
        const QString noFile = u"This is not a valid file selection"_s;
        const TestRows<QString, QString> row("file", "status");
        row("binary", u"binary"_s, invalid);
        row("one line of a gigabyte", u"line"_s, invalid);
        row("name of a gigabyte", u"body"_s, invalid);
        row("folder", u"work"_s, noFile);
#ifdef Q_OS_UNIX
        row("may not be read", u"closed"_s, invalid);
        row("device", u"zero"_s, noFile);
        row("link to itself", u"loop"_s, u"This project file does not exist"_s);
#endif
        row("none", {}, u"Project file not selected"_s);
    }

    void survivesWhatIsNoProject()
    {
        QFETCH(const QString, file);
        const Workspace suite;
        suite.write(u"binary"_s, QByteArray("\0\xff\r\n\1StartProjectMarker", 22).repeated(1000));
        // A hole of 1 GiB reads as one line.
        QVERIFY(QFile::resize(suite.write(u"line"_s, {}), 1LL << 30));
        QVERIFY(QFile::resize(suite.write(u"body"_s, "VersionTag\nStartProjectMarker\nname="), 1LL << 30));
        QVERIFY(QDir(suite.path(u"."_s)).mkpath(u"work"_s));
#ifdef Q_OS_UNIX
        QVERIFY(QFile::link(u"loop"_s, suite.path(u"loop"_s)));
        QVERIFY(QFile::link(u"/dev/zero"_s, suite.path(u"zero"_s)));
        // Root may read everything, so for root this is one more file that is no project.
        const QString closed = suite.write(u"closed"_s, ::geteuid() == 0 ? "" : "V\nStartProjectMarker\nend\n");
        QVERIFY(QFile::setPermissions(closed, {}));
#endif
        Project project;
        QVERIFY(!project.load(file.isEmpty() ? QString() : suite.path(file)));
        QVERIFY(!project.statusOk);
        QTEST(project.statusText, "status");
    }

    void endsWhereReadingFails()
    {
        // As a file on a share that went away: it neither delivers nor is at its end.
        struct Torn : QBuffer
        {
            bool atEnd() const override { return false; }
            qint64 readData(char* data, qint64 size) override
            {
                const qint64 taken = QBuffer::readData(data, size);
                return taken > 0 ? taken : -1;
            }
        } device;
        device.setData("VersionTag\n" + versioned("torn", "a.c\nb.c\n").replace("EndContainedFilesMarker\n", ""));
        QVERIFY(device.open(QIODevice::ReadOnly));
        Project project;
        QVERIFY(ProjectReader(device, QStringConverter::Utf8, project.root).read());
        QCOMPARE(project.root.fileCount(), 2);
    }

    void copesWithDeepNesting()
    {
        const Workspace suite;
        constexpr int depth = 10000;
        QByteArray text = "VersionTag\n";
        for (int i = 0; i < depth; ++i) {
            text += versioned(QByteArray::number(i), "f.c\n").replace("src/a.p_a", "inherit string") +
                    "StartSubProjectMarker\n";
        }
        const Project project(suite.write(u"work/deep.prj"_s, text + "end\n"));
        QCOMPARE(project.root.fileCount(), depth);
        const ProjectData* last = &project.root;
        while (!last->subProjects.empty()) {
            last = last->subProjects.front().get();
        }
        QCOMPARE(last->name, QString::number(depth - 1));
        QVERIFY(last->resolvedAnalyserPersonality().isEmpty());
    }

    void decides_data()
    {
        const QString some = u"Some of the files specified in this project do not exist, "_s;
        const QString files = u"\n   Files in project: 3"_s;
        const QString with = u"\n   Analysed with: V"_s;
        // The project lists a.c, b.c and c.c unless it is empty; "sources" are those that exist. A plus before the
        // status stands for a complete analysis, an exclamation mark for a project that can not be analysed.
        const TestRows<QString, QString, QString, QString> row("sources", "analysed", "stale", "status");
        row("no files", u"empty"_s, {}, {}, u"!This project does not contain any source files"_s);
        row("no sources", {}, {}, {}, u"!None of the files specified in this project exist"_s);
        row("not analysed", u"abc"_s, {}, {},
            u"This project has not been analysed yet"_s + files + u"    Analysed files: 0"_s);
        row("stale wins over partly", u"abc"_s, u"a"_s, u"b"_s,
            u"Analysis of this project is out of date"_s + files + u"    Analysed files: 1"_s + with);
        row("partly", u"abc"_s, u"ab"_s, {},
            u"This project has been partially analysed"_s + files + u"    Analysed files: 2"_s + with);
        row("complete", u"abc"_s, u"abc"_s, {}, u"+Analysis of this project is complete"_s + files + with);
        row("complete where it can", u"ab"_s, u"ab"_s, {},
            u'+' + some + u"of those that exist, analysis is complete"_s + files + u"    Existing files: 2"_s + with);
        row("partly where it can", u"ab"_s, u"a"_s, {},
            some + u"of those that exist, some analysis output exists"_s + files +
                u"    Existing files: 2    Analysed files: 1"_s + with);
        row("not where it can", u"ab"_s, {}, {},
            some + u"no analysis output exists"_s + files + u"    Existing files: 2    Analysed files: 0"_s);
    }

    void decides()
    {
        const auto [sources, analysed, stale] = fetched<QString, QString, QString>("sources", "analysed", "stale");
        const bool isEmpty = sources == "empty"_L1;
        const Workspace work;
        work.analyse(analysed, 10);
        work.analyse(stale, 9);
        for (const QChar name : isEmpty ? QString() : sources) {
            work.touch(name + u".c"_s, 10);
        }
        const Project project(work.project(isEmpty ? "*lastAnalysis=V\n" : "*lastAnalysis=V\na.c\nb.c\nc.c\n"));
        const QString sign = project.analysisComplete ? u"+"_s : project.statusOk ? u""_s : u"!"_s;
        QTEST(sign + project.statusText, "status");
    }

    void followsTheFiles()
    {
        const Workspace work;
        const QString file = work.project("*lastAnalysis=V1\na.c\nb.c\n");
        ProjectFacts facts;
        const auto status = [&] { return Project(file, facts).statusText.section(u'\n', 0, 0); };
        const QString complete = u"Analysis of this project is complete"_s;
        const QString outOfDate = u"Analysis of this project is out of date"_s;
        work.touch(u"a.c"_s, 1);
        work.touch(u"b.c"_s, 1);
        work.touch(u"out/a.c.met"_s, 5);
        QCOMPARE(status(), u"This project has not been analysed yet"_s);
        work.analyse(u"ab"_s, 5);
        QCOMPARE(status(), complete);
        work.touch(u"a.c"_s, 6);
        QCOMPARE(status(), outOfDate);
        // Each of the two results has to be newer.
        work.touch(u"out/a.c.met"_s, 7);
        QCOMPARE(status(), outOfDate);
        work.touch(u"out/a.c.met"_s, 5);
        work.touch(u"out/a.c.err"_s, 7);
        QCOMPARE(status(), outOfDate);
        work.analyse(u"a"_s, 7);
        // Messages do not shape the analysis, its configuration does.
        work.touch(u"m.p_s"_s, 20);
        QCOMPARE(status(), complete);
        work.touch(u"a.p_a"_s, 20);
        QCOMPARE(status(), outOfDate);
        work.analyse(u"ab"_s, 20);
        facts.cConfiguration = u"V1"_s;
        QCOMPARE(status(), complete);
        facts.cConfiguration = u"V2"_s;
        const QString changed = complete + u", but configuration changed since last analysis"_s;
        QCOMPARE(status(), changed);
        facts.cConfiguration.clear();
        work.project("a.c\nb.c\n");
        QCOMPARE(Project(file).statusText, changed + u"\n   Files in project: 2\n   Analysed with: unknown"_s);
    }

    void prefersANewerBackup()
    {
        const Workspace work;
        const QString file = work.project("a.c\n");
        const QByteArray text = work.read(file);
        const QByteArray backup = QByteArray(text).replace("name=P", "name=Before");
        work.touch(u"p.prj"_s, 1, text);
        work.touch(u"p.prj.bak"_s, 1, backup);
        QCOMPARE(Project(file).root.name, u"P"_s);
        work.touch(u"p.prj.bak"_s, 2, backup);
        QCOMPARE(Project(file).root.name, u"Before"_s);
    }

    void expandsLauncherArguments()
    {
        const TestFolder suite;
        const QByteArray standard = suite.write(u"s.p_s"_s, "").toUtf8();
        const QByteArray root = suite.path(u"a b"_s).toUtf8();
        // The root has a personality but no results of its own, one of its sub-projects has some, the other has none.
        for (const auto& name :
             {u"a.p_a"_s, u"out/a.c.met"_s, u"q/out/b.c.met"_s, u"q/out/b.c.err"_s, u"q/out/c.c.err"_s}) {
            suite.write(u"a b/"_s + name, "");
        }
        const QString file =
            suite.write(u"p.prj"_s, "VersionTag\n" + versioned("P", "a.c\n", root) + "StartSubProjectMarker\n" +
                                        versioned("Q", "b.c\nc.c\n", root + "/q") + versioned("R", "d.c\n") + "end\n");
        Project project(file);
        TemporaryFiles files;
        const OptionSources sources{[&](const QString& suffix) { return files.create(suffix); },
                                    {QString::fromUtf8(standard), u"/gone"_s}};
        const auto [result, problem] = project.expandLauncherArguments(
            u"%Q|%PF|%P+|%P|%L+|%L|%R+|%R| %P|%p|"_s.split(u'|'), u"ORVC"_s, u"extra"_s, sources);
        QCOMPARE(problem, QString());
        QCOMPARE(result.size(), 16);
        const QString& options = result[3];
        const QString& list = result[8];
        QCOMPARE(result.join(u'|'), u"ORVC|%1|-via|%2|-via|extra|%2|-list|%3|%3|-file|%4|%5| %P|%p|"_s.arg(
                                        result[1], options, list, result[11], result[12]));
        QCOMPARE(QDir::fromNativeSeparators(result[1]), file);
        QVERIFY2(result[11].endsWith(".txt"_L1), qPrintable(result[11]));
        QVERIFY2(result[12].endsWith(".txt"_L1), qPrintable(result[12]));
        QVERIFY(result[11] != result[12]);
        QCOMPARE(suite.readLines(options),
                 "-outputpath \"" + root + "/out\"\n-via \"" + root + "/a.p_a\"\n-via \"" + standard + "\"\n");
        QCOMPARE(suite.readLines(list), "-outputpath \"" + root + "/out\"\n-outputpath \"" + root + "/q/out\"\n\"" +
                                            root + "/q/b.c\"\n-cmaf \"" + root + "/out/P\"\n");
        // The option file is kept as long as its text is the same, the list is always new.
        const QStringList again = project.expandLauncherArguments({u"%P"_s, u"%L"_s}, {}, {}, sources).value;
        QCOMPARE(again.size(), 2);
        QCOMPARE(again[0], options);
        QVERIFY(again[1] != list);
    }
};

KOVRA_TEST(ProjectTest)
#include "ProjectTest.moc"
