// SPDX-License-Identifier: MIT
#include "project/ProjectReader.h"
#include "Installation.h"
#include "project/Project.h"
#include "TestMain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// The tree in one line: names, files and sub-projects as the reader put them.
QString shape(const ProjectData& project)
{
    QStringList files;
    for (const SourceEntry& entry : project.files) {
        files += entry.fileName().toString();
    }
    QString text = project.name + u'[' + files.join(u' ') + u']';
    for (const auto& child : project.subProjects) {
        text += u'(' + shape(*child) + u')';
    }
    return text;
}

QByteArray versioned(const QByteArray& name, const QByteArray& files)
{
    return "StartProjectMarker\nname=" + name + "\nsourceDir=src\noutputDir=out\nm=default string\na=default string\n" +
           "c=inherit string\n" + files + "EndContainedFilesMarker\n";
}

} // namespace

class ProjectReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsBothDialects_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("tree");
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("analysis");
        const auto row = [](const char* name, const QByteArray& text, const char* tree, int language = 4,
                            const char* analysis = "") {
            QTest::newRow(name) << text << QString::fromUtf8(tree) << language << QString::fromUtf8(analysis);
        };
        const QByteArray start = "versiontag 3\n";
        const QByteArray nest = "StartSubProjectMarker\n";
        const QByteArray up = "EndSubProjectMarker\n";
        row("nested",
            start + versioned("A", "a.c\n") + nest + versioned("B", "b.c\n") + nest + versioned("D", "") + up +
                versioned("C", "c.c\n") + up + versioned("lost", "") + "end\n",
            "A[a.c](B[b.c](D[]))(C[c.c])");
        row("unversioned",
            "x\nStartProjectMarker\nA\nunused\nout\nsrc\na.c\n*project=ORVC\nEndContainedFilesMarker\nm\na\nc\n"
            "*project=ORVCPP and "
            "more\n*lastAnalysis=x*lastAnalysis=y\nStartSubProjectMarker\nStartProjectMarker\nB\n\n\n\n"
            "b.c\nEndContainedFilesMarker\nm\na\nc\nend\n",
            "A[a.c *project=ORVC](B[b.c])", 1, "xy");
        row("annotations among files are no files",
            start + versioned("A", "*project=ORVC\na.c\n*lastAnalysis=1\nb.c\n") + "*lastAnalysis=2\n*Project=ORVCPP\n",
            "A[a.c b.c]", 0, "2");
        row("values end at the second equals sign", start + versioned("a=b", ""), "a[]");
        row("the first line is only looked at for the version", "StartProjectMarker\nx\n", "[]");
        row("the last line is no file", start + versioned("A", "").replace("EndContainedFilesMarker\n", "a.c\nb.c"),
            "A[a.c]");
        row("end before any sub-project", start + versioned("A", "") + up + versioned("B", "") + "end\n", "A[]");
        row("cut short", start + "StartProjectMarker\nname=A\nsour", "A[]");
        row("Windows line ends", QByteArray(start + versioned("A", "a.c\n")).replace('\n', "\r\n"), "A[a.c]");
    }

    void readsBothDialects()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, tree);
        QFETCH(const int, language);
        QFETCH(const QString, analysis);
        Installation suite;
        suite.start();
        Project project(suite.write(u"work/p.prj"_s, text));
        QCOMPARE(shape(project.root), tree);
        QCOMPARE(int(project.declaredLanguage), language);
        QCOMPARE(project.lastAnalysis, analysis);
        QCOMPARE(project.valid, tree != "[]"_L1);
    }

    void resolvesWhatItRead()
    {
        Installation suite;
        suite.start();
        Project project(suite.write(
            u"work/p.prj"_s,
            "VersionTag 1\nStartProjectMarker\nname=A\nsourceDir=/s\noutputDir=/o\nm=/m.p_s\na=default string\n"
            "c=/c.p_c\nd/../main.c\n/abs//x.cpp\nEndContainedFilesMarker\nStartSubProjectMarker\n"
            "StartProjectMarker\nname=B\nsourceDir=rel\noutputDir=\nm=inherit string\na=inherit string\n"
            "c=own\ny.c\nEndContainedFilesMarker\nend\n"));
        const SourceEntry& first = project.root.files.at(0);
        QCOMPARE(first.sourcePath(), u"/s/main.c"_s);
        QCOMPARE(first.metricsPath() + first.errorPath() + first.preprocessedPath(),
                 u"/o/main.c.met/o/main.c.err/o/main.c.i"_s);
        const ProjectData& child = *project.root.subProjects.at(0);
        QCOMPARE(project.root.allSourcePaths(),
                 (QStringList{u"/s/main.c"_s, u"/abs/x.cpp"_s, QDir::currentPath() + u"/rel/y.c"_s}));
        QCOMPARE(child.files.at(0).metricsPath(), QDir::currentPath() + u"/y.c.met"_s);
        QCOMPARE(child.resolvedMessagePersonality(), u"/m.p_s"_s);
        QVERIFY(child.resolvedAnalyserPersonality().isEmpty());
        QCOMPARE(child.resolvedCompilerPersonality(), u"own"_s);
    }

    void prefersANewerBackup()
    {
        Installation suite;
        suite.start();
        const QString file = suite.write(u"work/p.prj"_s, "VersionTag\n" + versioned("now", "") + "end\n");
        const QString backup = suite.write(u"work/p.prj.bak"_s, "VersionTag\n" + versioned("before", "") + "end\n");
        const QDateTime time = QDateTime::currentDateTime().addDays(-1);
        const auto loaded = [&](int backupOffset) {
            for (const auto& [name, offset] : {std::pair{file, 0}, std::pair{backup, backupOffset}}) {
                QFile touched(name);
                if (!touched.open(QIODevice::ReadWrite) ||
                    !touched.setFileTime(time.addSecs(offset), QFileDevice::FileModificationTime)) {
                    return QString();
                }
            }
            return Project(file).root.name;
        };
        QCOMPARE(loaded(0), u"now"_s);
        QCOMPARE(loaded(1), u"before"_s);
    }

    void survivesWhatIsNoProject_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("status");
        const QString invalid = u"This project file is not a valid KOVRA project file"_s;
        QTest::newRow("binary") << u"binary"_s << invalid;
        QTest::newRow("endless line") << u"long"_s << invalid;
        QTest::newRow("endless line in the body") << u"body"_s << invalid;
        QTest::newRow("folder") << u"folder"_s << u"This is not a valid file selection"_s;
        QTest::newRow("loop of links") << u"loop"_s << u"This project file does not exist"_s;
        QTest::newRow("device") << u"/dev/zero"_s << u"This is not a valid file selection"_s;
        QTest::newRow("nothing named") << QString() << u"Project file not selected"_s;
    }

    void survivesWhatIsNoProject()
    {
        QFETCH(const QString, kind);
        QFETCH(const QString, status);
        Installation suite;
        suite.start();
        QString name = kind.startsWith(u'/') || kind.isEmpty() ? kind : suite.path(u"work/"_s + kind);
        if (kind == "binary"_L1) {
            suite.write(u"work/binary"_s, QByteArray("\0\xff\r\n\1StartProjectMarker", 22).repeated(1000));
        } else if (kind == "long"_L1 || kind == "body"_L1) {
            suite.write(u"work/"_s + kind, kind == "body"_L1 ? "VersionTag\nStartProjectMarker\nname=" : "");
            // A hole of 1 GiB reads as one line.
            QVERIFY(QFile::resize(name, 1LL << 30));
        } else if (kind == "folder"_L1) {
            QDir().mkpath(name);
        } else if (kind == "loop"_L1) {
            QCOMPARE(::symlink("loop", qPrintable(name)), 0);
        }
        Project project;
        QVERIFY(!project.load(name));
        QCOMPARE(project.statusText, status);
        QVERIFY(!project.statusOk);
    }

    void endsWhereReadingFails()
    {
        // As a file on a share that went away: it neither delivers nor is at its end.
        class Torn : public QIODevice
        {
        public:
            bool atEnd() const override { return false; }

        protected:
            qint64 readData(char* data, qint64 size) override
            {
                const qint64 taken = std::min(size, qint64(text.size()));
                std::copy_n(text.constData(), taken, data);
                text.remove(0, taken);
                return taken > 0 ? taken : -1;
            }
            qint64 writeData(const char*, qint64) override { return -1; }

        private:
            QByteArray text = "VersionTag\n" + versioned("torn", "a.c\nb.c\n").replace("EndContainedFilesMarker\n", "");
        } device;
        QVERIFY(device.open(QIODevice::ReadOnly));
        Project project;
        QVERIFY(ProjectReader(device, project.root).read());
        QCOMPARE(project.root.fileCount(), 2);
    }

    void copesWithDeepNesting()
    {
        Installation suite;
        suite.start();
        QByteArray text = "VersionTag\n";
        constexpr int depth = 10000;
        for (int i = 0; i < depth; ++i) {
            text +=
                versioned(QByteArray::number(i), "f.c\n").replace("a=default", "a=inherit") + "StartSubProjectMarker\n";
        }
        Project project(suite.write(u"work/deep.prj"_s, text + "end\n"));
        QCOMPARE(project.root.fileCount(), depth);
        const ProjectData* last = &project.root;
        while (!last->subProjects.empty()) {
            last = last->subProjects.front().get();
        }
        QCOMPARE(last->name, QString::number(depth - 1));
        QVERIFY(last->resolvedAnalyserPersonality().isEmpty());
    }
};

KOVRA_TEST(ProjectReaderTest)
#include "ProjectReaderTest.moc"
