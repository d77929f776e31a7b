// SPDX-License-Identifier: MIT
#include "personality/AnalyserInference.h"
#include "Installation.h"
#include "personality/FileScans.h"
#include "personality/OptionTables.h"
#include "TestMain.h"

#include <QTest>

using namespace Qt::StringLiterals;

class AnalyserInferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tablesDiffer()
    {
        QCOMPARE(OptionTables::cOptionNames().size(), 163);
        QCOMPARE(OptionTables::cppOptionNames().size(), 214);
        const QStringList& c = OptionTables::cOnlyOptions();
        const QStringList& cpp = OptionTables::cppOnlyOptions();
        QVERIFY(c.size() == 41 && c.first() == "-ar"_L1 && c.contains("-k+r"_L1) && c.last() == "-xnamelength"_L1);
        QVERIFY(cpp.size() == 92 && cpp.first() == "-accd"_L1 && cpp.last() == "-wp"_L1);
        QVERIFY(!c.contains("-via"_L1) && !cpp.contains("-via"_L1));
    }

    void scans_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("found");
        QTest::newRow("C setting") << QByteArray("-xcase+\n") << u"c"_s;
        QTest::newRow("any letter case") << QByteArray("x\n-XCASE-") << u"c"_s;
        QTest::newRow("C option with a value") << QByteArray("-namelength 31") << u"c"_s;
        QTest::newRow("C option at the end is none") << QByteArray("-xcase") << QString();
        QTest::newRow("C option at a line end is none") << QByteArray("-xcase\n") << QString();
        QTest::newRow("C++ option anywhere") << QByteArray("text-ccx") << u"cpp"_s;
        QTest::newRow("both") << QByteArray("-xcase+ -rvaluerefbind") << u"c cpp"_s;
        QTest::newRow("neither") << QByteArray("-via \"x\"\n-maxcount 3\n") << QString();
        QTest::newRow("C metrics") << QByteArray("<S>STBUG 1") << u"cmet"_s;
        QTest::newRow("C++ metrics, in their own letter case") << QByteArray("<S>STWMC <s>stbug") << u"cppmet"_s;
        QTest::newRow("binary") << QByteArray("\0\xff-xcase+\0", 10) << u"c"_s;
    }

    void scans()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, found);
        const Installation suite;
        const QString file = suite.write(u"work/file"_s, text);
        QStringList result;
        for (const auto& [scan, name] :
             {std::pair{&FileScans::mentionsCOnlyOption, u"c"_s},
              std::pair{&FileScans::mentionsCppOnlyOption, u"cpp"_s}, std::pair{&FileScans::hasCMetrics, u"cmet"_s},
              std::pair{&FileScans::hasCppMetrics, u"cppmet"_s}}) {
            if (scan(file)) {
                result += name;
            }
            QVERIFY(!scan(suite.path(u"work"_s)) && !scan(u"/dev/zero"_s) && !scan(QString()));
        }
        QCOMPARE(result.join(u' '), found);
    }

    void infers_data()
    {
        QTest::addColumn<QString>("facts");
        QTest::addColumn<ProjectType>("type");
        const auto row = [](const char* facts, ProjectType type) {
            QTest::newRow(facts) << QString::fromLatin1(facts) << type;
        };
        row("declared compiler:c", ProjectType::Cpp);
        row("compiler:c analyser:cpp", ProjectType::C);
        row("compiler:both analyser:cpp", ProjectType::Cpp);
        row("compiler:gone analyser:both metrics:cpp", ProjectType::Cpp);
        row("metrics:c source:x.cpp", ProjectType::C);
        row("in:/opt/orvcpp/p.prj source:x.c", ProjectType::Cpp);
        row("in:/opt/orvcpp/opt/orvc/p.prj", ProjectType::C);
        row("in:/p.prj source:x.h source:x.CPP source:a.tar.c source:y.cpp", ProjectType::CBySuffix);
        row("in:/p.prj source:x.cxx source:y.c", ProjectType::CppBySuffix);
        row("in:/p.prj source:x.h", ProjectType::Unknown);
        row("noc in:/opt/orvcpp/p.prj", ProjectType::C);
    }

    void infers()
    {
        QFETCH(const QString, facts);
        QFETCH(const ProjectType, type);
        const Installation suite;
        suite.write(u"work/c"_s, "-xcase+ <S>STBUG");
        suite.write(u"work/cpp"_s, "-rvaluerefbind <S>STWMC");
        suite.write(u"work/both"_s, "-rvaluerefbind -xcase+");
        const QStringList words = facts.split(u' ');
        const auto value = [&](const QString& key) {
            return words.filter(QRegularExpression(u'^' + key + u':')).value(0).section(u':', 1);
        };
        const auto file = [&](const QString& key) {
            return value(key).isEmpty() ? QString() : suite.path(u"work/"_s + value(key));
        };
        InferenceInput input;
        input.declaredLanguage = words.contains("declared"_L1) ? ProjectType::Cpp : ProjectType::Unknown;
        input.compilerPersonality = file(u"compiler"_s);
        input.analyserPersonality = file(u"analyser"_s);
        input.metricsPath = file(u"metrics"_s);
        input.projectFile = value(u"in"_s);
        input.cInstallDir = words.contains("noc"_L1) ? QString() : u"/opt/orvc/"_s;
        input.cppInstallDir = u"/opt/orvcpp"_s;
        input.eachSource = [&](const std::function<bool(const QString&)>& visit) {
            for (const QString& word : words) {
                if (word.startsWith("source:"_L1) && visit(word.sliced(7))) {
                    return;
                }
            }
        };
        QCOMPARE(inferAnalyser(input), type);
    }
};

KOVRA_TEST(AnalyserInferenceTest)
#include "AnalyserInferenceTest.moc"
