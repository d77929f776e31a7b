// SPDX-License-Identifier: MIT
#include "Installation.h"
#include "personality/AnalyserInference.h"
#include "personality/FileScans.h"
#include "personality/MessageSelectionFile.h"
#include "personality/OptionTables.h"
#include "TestMain.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class PersonalityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scans()
    {
        using namespace FileScans;
        const Installation suite;
        const auto found = [&suite](const QByteArray& text) {
            const QString file = suite.write(u"file"_s, text);
            return QByteArray(mentionsCOnlyOption(file) ? "c " : "") + (mentionsCppOnlyOption(file) ? "cpp " : "") +
                   (hasCMetrics(file) ? "cmet " : "") + (hasCppMetrics(file) ? "cppmet " : "");
        };
        // A lost option of either table would decide for the wrong analyser.
        QVERIFY(OptionTables::cOnlyOptions().size() == 41 && OptionTables::cppOnlyOptions().size() == 92);
        QCOMPARE(found("x\n-XCASE-"), "c ");
        QCOMPARE(found("-namelength 31"), "c ");
        // A C option is one with a setting only, a C++ option is one anywhere.
        QCOMPARE(found("-xcase"), "");
        QCOMPARE(found("-xcase\n"), "");
        QCOMPARE(found("text-ccx"), "cpp ");
        QCOMPARE(found("-xcase+ -rvaluerefbind"), "c cpp ");
        QCOMPARE(found("-via \"x\"\n-maxcount 3\n"), "");
        QCOMPARE(found("<S>STBUG 1"), "cmet ");
        QCOMPARE(found("<S>STWMC <s>stbug"), "cppmet ");
        QCOMPARE(found(QByteArray("\0\xff-xcase+\0", 10)), "c ");
        for (const auto& scan : {mentionsCOnlyOption, mentionsCppOnlyOption, hasCMetrics, hasCppMetrics}) {
            QVERIFY(!scan(suite.path(u"work"_s)) && !scan(u"/dev/zero"_s) && !scan(QString()));
        }
    }

    void infers()
    {
        using enum ProjectType;
        const Installation suite;
        const QString c = suite.write(u"c"_s, "-xcase+ <S>STBUG");
        const QString cpp = suite.write(u"cpp"_s, "-rvaluerefbind <S>STWMC");
        const QString both = suite.write(u"both"_s, "-rvaluerefbind -xcase+");
        InferenceInput input;
        input.cInstallDir = u"/opt/orvc/"_s;
        input.cppInstallDir = u"/opt/orvcpp"_s;
        // What lies nearer to the project decides first: its settings, its metrics, its place, its sources.
        const auto inferred = [&input](const QStringList& settings, const QString& metrics, const QString& project,
                                       const QStringList& sources) {
            input.compilerPersonality = settings.value(0);
            input.analyserPersonality = settings.value(1);
            input.metricsPath = metrics;
            input.projectFile = project;
            input.eachSource = [&sources](const auto& visit) { std::ranges::any_of(sources, visit); };
            return inferAnalyser(input);
        };
        QCOMPARE(inferred({c, cpp}, {}, {}, {}), C);
        QCOMPARE(inferred({both, cpp}, {}, {}, {}), Cpp);
        QCOMPARE(inferred({u"/gone"_s, both}, cpp, {}, {}), Cpp);
        QCOMPARE(inferred({}, c, {}, {u"x.cpp"_s}), C);
        QCOMPARE(inferred({}, {}, u"/opt/orvcpp/p.prj"_s, {u"x.c"_s}), Cpp);
        QCOMPARE(inferred({}, {}, u"/opt/orvcpp/opt/orvc/p.prj"_s, {}), C);
        QCOMPARE(inferred({}, {}, u"/p.prj"_s, {u"x.h"_s, u"x.CPP"_s, u"a.tar.c"_s, u"y.cpp"_s}), CBySuffix);
        QCOMPARE(inferred({}, {}, u"/p.prj"_s, {u"x.cxx"_s, u"y.c"_s}), CppBySuffix);
        QCOMPARE(inferred({}, {}, u"/p.prj"_s, {u"x.h"_s}), Unknown);
        // A folder that is not known lies in every path.
        input.cInstallDir.clear();
        QCOMPARE(inferred({}, {}, u"/opt/orvcpp/p.prj"_s, {}), C);
        input.declaredLanguage = Cpp;
        QCOMPARE(inferred({c}, {}, {}, {}), Cpp);
    }

    void selectsMessages()
    {
        const Installation suite;
        const QString file = suite.write(u"m.via"_s, "old");
        const QStringList numbers = u"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22"_s.split(u',');
        const auto written = [&](int count) {
            return writeMessageSelectionFile(numbers.first(count), file).ok() ? suite.read(file) : "failed";
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
