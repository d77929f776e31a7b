// SPDX-License-Identifier: MIT
#include "CodeBase.h"
#include "Failure.h"
#include "LibraryHints.h"
#include "OptionReader.h"
#include "TestMain.h"

using namespace Qt::StringLiterals;

class OptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesAreReadInOrder()
    {
        const CodeBase code;
        const QByteArray folder = code.path().toUtf8();
        code.write(u"base.p_a"_s, "* a comment\n-d A=1\n-d B\n-strict+\n*orv standard=c11\n*orv module=Base\n");
        code.write(u"part.p_a"_s,
                   "-via \"" + folder +
                       "/base.p_a\"\r\n-d A=\"x y\"\n-u B\n-d F(a,b)=a\n-d F(c)=c\n"
                       "*orv folder=system\n-i \"/s y s\"\n-i \"/own/gr\xc3\xb6\xc3\x9f\"\n*orv hiding=\"x\"\n"
                       "-via \"" +
                       folder + "/base.p_a\"\n");
        OptionReader reader;
        reader.readFile(code.path(u"part.p_a"_s));
        reader.finish();
        const AnalysisOptions& options = reader.options;
        QCOMPARE(options.defines, QStringList({u"A=\"x y\""_s, u"F(c)=c"_s}));
        QCOMPARE(options.undefines, QStringList(u"B"_s));
        QCOMPARE(options.standard, u"c11"_s);
        QCOMPARE(options.modules, QStringList(u"Base"_s));
        QCOMPARE(options.folders.size(), 2);
        QCOMPARE(options.folders[0].kind, FolderKind::System);
        QCOMPARE(options.folders[1].kind, FolderKind::Normal);
        QCOMPARE(options.folders[1].path, u"/own/größ"_s);
        QCOMPARE(options.files.size(), 2);
        QVERIFY_THROWS_EXCEPTION(Failure, OptionReader().readFile(code.path(u"gone"_s)));
    }

    void librariesAndPlatforms_data()
    {
        const TestRows<QString, QString> row("lines", "told");
        row("no Qt", u"-i \"/home/qt/project/src\"\n"_s, {});
        row("GTK", u"*orv folder=system\n-i \"/usr/include/gtk-3.0\"\n"_s, u"gtk"_s);
        row("Linux", u"-d __linux__=1\n-d _GNU_SOURCE=1\n-d __SIZEOF_POINTER__=8\n"_s, u"posix gnu unix64"_s);
        row("Windows", u"-d _WIN32=1\n-d UNICODE\n"_s, u"windows win32W"_s);
        row("64 bit Windows", u"-d _WIN32=1\n-d _WIN64=1\n"_s, u"windows win64"_s);
        row("cross compiler", u"*orv compiler=\"/usr/bin/x86_64-w64-mingw32-gcc\"\n"_s, u"win64"_s);
        row("unsigned characters", u"*orv target=-funsigned-char\n"_s, u"unix64-unsigned"_s);
        row("named", u"*orv library=boost\n*orv platform=pic16\n-d _WIN32\n"_s, u"boost windows pic16"_s);
    }

    void librariesAndPlatforms()
    {
        QFETCH(const QString, lines);
        const CodeBase code;
        OptionReader reader;
        reader.readFile(code.write(u"o.p_a"_s, lines.toUtf8()));
        reader.finish();
        QStringList words = LibraryHints::libraries(reader.options);
        words += LibraryHints::platform(reader.options);
        words.removeAll(QString());
        QTEST(words.join(u' '), "told");
    }

    void linesBecomeFindings_data()
    {
        const TestRows<QString, QString, int, QString> row("text", "file", "line", "id");
        row("usual", u"/a/b.c:3:14: style: Text [id]"_s, u"/a/b.c"_s, 3, u"id"_s);
        row("colons and blanks", u"/a: style: b.c:3:14: error: A: b [c]: d [id]"_s, u"/a: style: b.c"_s, 3, u"id"_s);
        row("drive", u"C:\\a.c:3:1: warning: T [x-1.2]\r"_s, u"C:\\a.c"_s, 3, u"x-1.2"_s);
        row("no text", u"nofile:0:0: information:  [id]"_s, u"nofile"_s, 0, u"id"_s);
        row("no id", u"/a/b.c:3:14: style: Text"_s, {}, 0, {});
        row("no severity", u"/a/b.c:3:14: bad: Text [id]"_s, {}, 0, {});
        row("no number", u"/a/b.c:x:14: style: Text [id]"_s, {}, 0, {});
    }

    void linesBecomeFindings()
    {
        const auto [text, file, line, id] = fetched<QString, QString, int, QString>("text", "file", "line", "id");
        Finding finding;
        QCOMPARE(finding.fromLine(text), !file.isEmpty());
        if (!file.isEmpty()) {
            QCOMPARE(finding.file, file);
            QCOMPARE(finding.line, line);
            QCOMPARE(finding.id, id);
            QCOMPARE(finding.toLine(), text.trimmed());
        }
    }
};

KOVRA_TEST(OptionsTest)
#include "OptionsTest.moc"
