// SPDX-License-Identifier: MIT
#include "personality/AnalyserInference.h"
#include "personality/FileScans.h"
#include "personality/MessageSelectionFile.h"
#include "personality/OptionTables.h"
#include "TestFolder.h"
#include "TestMain.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What a file is found to be for.
QString scanned(const QString& file)
{
    using namespace FileScans;
    QStringList found{mentionsCOnlyOption(file) ? u"c"_s : QString(),
                      mentionsCppOnlyOption(file) ? u"cpp"_s : QString(), hasCMetrics(file) ? u"cmet"_s : QString(),
                      hasCppMetrics(file) ? u"cppmet"_s : QString()};
    found.removeAll(QString());
    return found.join(u' ');
}

} // namespace

class PersonalityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scans()
    {
        const TestFolder suite;
        const auto found = [&suite](const QByteArray& text) { return scanned(suite.write(u"file"_s, text)); };
        QCOMPARE(found("x\n-XCASE-"), u"c"_s);
        QCOMPARE(found("-namelength 31"), u"c"_s);
        // Without a setting it is none.
        QCOMPARE(found("-xcase"), QString());
        QCOMPARE(found("-xcase\n"), QString());
        QCOMPARE(found("text-ccx"), u"cpp"_s);
        QCOMPARE(found("-xcase+ -rvaluerefbind"), u"c cpp"_s);
        QCOMPARE(found("-via \"x\"\n-maxcount 3\n"), QString());
        QCOMPARE(found("<S>STBUG 1"), u"cmet"_s);
        QCOMPARE(found("<S>STWMC <s>stbug"), u"cppmet"_s);
        QCOMPARE(found(QByteArray("\0\xff-xcase+\0", 10)), u"c"_s);
        for (const QString& noFile : {suite.path(u"work"_s), u"/dev/zero"_s, QString()}) {
            QCOMPARE(scanned(noFile), QString());
        }
    }

    // A lost option of either table would decide for the wrong analyser.
    void tablesAreWhole()
    {
        QCOMPARE(OptionTables::cOnlyOptions().size(), size_t(41));
        QCOMPARE(OptionTables::cppOnlyOptions().size(), size_t(92));
    }

    void infers_data()
    {
        using enum ProjectType;
        // What lies nearer to the project decides first: its settings, its metrics, its place, its sources.
        const TestRows<QStringList, QString, QString, QStringList, ProjectType> row("settings", "metrics", "project",
                                                                                    "sources", "inferred");
        row("compiler", {u"c"_s, u"cpp"_s}, {}, {}, {}, C);
        row("analyser", {u"both"_s, u"cpp"_s}, {}, {}, {}, Cpp);
        row("metrics", {u"gone"_s, u"both"_s}, u"cpp"_s, {}, {}, Cpp);
        row("metrics before sources", {}, u"c"_s, {}, {u"x.cpp"_s}, C);
        row("place before sources", {}, {}, u"/opt/orvcpp/p.prj"_s, {u"x.c"_s}, Cpp);
        row("in both places", {}, {}, u"/opt/orvcpp/opt/orvc/p.prj"_s, {}, C);
        row("first C source", {}, {}, u"/p.prj"_s, {u"x.h"_s, u"x.CPP"_s, u"a.tar.c"_s, u"y.cpp"_s}, CBySuffix);
        row("first C++ source", {}, {}, u"/p.prj"_s, {u"x.cxx"_s, u"y.c"_s}, CppBySuffix);
        row("headers only", {}, {}, u"/p.prj"_s, {u"x.h"_s}, Unknown);
    }

    void infers()
    {
        QFETCH(QStringList, settings);
        QFETCH(const QString, metrics);
        QFETCH(const QStringList, sources);
        QFETCH(const QString, project);
        const TestFolder suite;
        suite.write(u"c"_s, "-xcase+ <S>STBUG");
        suite.write(u"cpp"_s, "-rvaluerefbind <S>STWMC");
        suite.write(u"both"_s, "-rvaluerefbind -xcase+");
        InferenceInput input;
        input.cInstallDir = u"/opt/orvc/"_s;
        input.cppInstallDir = u"/opt/orvcpp"_s;
        input.compilerPersonality = settings.isEmpty() ? QString() : suite.path(settings[0]);
        input.analyserPersonality = settings.isEmpty() ? QString() : suite.path(settings[1]);
        input.metricsPath = metrics.isEmpty() ? QString() : suite.path(metrics);
        input.projectFile = project;
        input.eachSource = [&sources](const auto& visit) { std::ranges::any_of(sources, visit); };
        QTEST(inferAnalyser(input), "inferred");
    }

    void infersFromWhatIsDeclared()
    {
        InferenceInput input;
        input.cppInstallDir = u"/opt/orvcpp"_s;
        input.projectFile = u"/opt/orvcpp/p.prj"_s;
        input.eachSource = [](const auto&) {};
        // A folder that is not known lies in every path.
        QCOMPARE(inferAnalyser(input), ProjectType::C);
        input.declaredLanguage = ProjectType::Cpp;
        QCOMPARE(inferAnalyser(input), ProjectType::Cpp);
    }

    void selectsMessages()
    {
        const TestFolder suite;
        const QString file = suite.write(u"m.via"_s, "old");
        const QStringList numbers = u"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22"_s.split(u',');
        const auto written = [&](int count) {
            return writeMessageSelectionFile(numbers.first(count), file).ok() ? suite.readLines(file) : "failed";
        };
        QCOMPARE(written(0), QByteArray("old"));
        const QByteArray rule(32, '*');
        const QByteArray eleven = rule + "\n* REMOVE ANY PREVIOUS SETTINGS *\n" + rule +
                                  "\n-forgetall only\n-forgetall nomsg\n-forgetall su\n" + rule + '\n' + rule +
                                  "\n-only 1,2,3,4,5,6,7,8,9,10,11\n";
        QCOMPARE(written(11), eleven);
        QCOMPARE(written(22), eleven + "-only 12,13,14,15,16,17,18,19,20,21\n-only 22\n");
        QVERIFY(!writeMessageSelectionFile(numbers, file + u"/below"_s).ok());
    }
};

KOVRA_TEST(PersonalityTest)
#include "PersonalityTest.moc"
