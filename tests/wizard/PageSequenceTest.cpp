// SPDX-License-Identifier: MIT
#include "wizard/PageSequence.h"
#include "definitions/DefinitionRecords.h"
#include "TestMain.h"
#include "wizard/WizardState.h"

#include <QTest>

using namespace Qt::StringLiterals;

class PageSequenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void follows_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("facts");
        QTest::addColumn<int>("next");
        const auto row = [](int page, const char* facts, int next) {
            QTest::addRow("%d %s", page, facts) << page << QString::fromLatin1(facts) << next;
        };
        row(StartPageId, "type inputs", SetProductPageId);
        row(StartPageId, "type inputs fixed", XmlPageId);
        row(StartPageId, "type fixed", NoPageId);
        row(StartPageId, "fixed", NoPageId);
        row(SetProductPageId, "type inputs", XmlPageId);
        row(SetProductPageId, "type", NoPageId);
        row(XmlPageId, "type inputs", ActionPageId);
        row(XmlPageId, "type inputs asks", ConfPageId);
        row(XmlPageId, "type inputs asks given", ActionPageId);
        row(ConfPageId, "type", ActionPageId);
        row(ActionPageId, "type", NoPageId);
        row(ActionPageId, "type done", DisplayOptionsPageId);
        row(DisplayOptionsPageId, "type done", NoPageId);
    }

    void follows()
    {
        QFETCH(const int, page);
        QFETCH(const QString, facts);
        QFETCH(const int, next);
        ProjectCreatorData creator;
        creator.hasAnalyserPersonality = facts.contains("asks"_L1);
        if (facts.contains("inputs"_L1)) {
            creator.inputData.emplace_back(std::make_unique<ArgumentDefinition>());
        }
        WizardState state;
        state.projectCreator = facts.contains("type"_L1) ? &creator : nullptr;
        state.analyserFixed = facts.contains("fixed"_L1);
        state.personalitiesGiven = facts.contains("given"_L1);
        state.conversionDone = facts.contains("done"_L1);
        QCOMPARE(nextPage(page, state), next);
    }

    void decidesTheAnalyser_data()
    {
        QTest::addColumn<QString>("facts");
        QTest::addColumn<QString>("decision");
        const auto row = [](const char* facts, const char* decision) {
            QTest::newRow(facts) << QString::fromLatin1(facts) << QString::fromLatin1(decision);
        };
        row("c cpp cdir cppdir", "open");
        row("c cpp cdir cppdir typeC typeCpp", "open");
        row("c cpp cdir cppdir typeC", "C");
        row("c cpp cdir cppdir typeCpp", "C++");
        row("c cdir cppdir typeCpp", "C");
        row("c cpp cppdir typeC", "C++");
        row("cpp cdir typeCpp", "C");
        row("typeCpp", "C++ none");
        row("", "open none");
    }

    void decidesTheAnalyser()
    {
        QFETCH(const QString, facts);
        QFETCH(const QString, decision);
        const QStringList words = facts.split(u' ');
        ProjectCreatorData creator;
        creator.orvcProject = words.contains("typeC"_L1);
        creator.orvcppProject = words.contains("typeCpp"_L1);
        WizardState state;
        state.projectCreator = &creator;
        state.cAvailable = words.contains("c"_L1);
        state.cppAvailable = words.contains("cpp"_L1);
        state.decideAnalyser(words.contains("cdir"_L1) ? u"/c"_s : QString(),
                             words.contains("cppdir"_L1) ? u"/cpp"_s : QString());
        QString result = !state.analyserFixed ? u"open"_s : state.isORVC ? u"C"_s : u"C++"_s;
        result += state.noAnalyserInstalled ? u" none"_s : QString();
        QCOMPARE(result, decision);
    }
};

KOVRA_TEST(PageSequenceTest)
#include "PageSequenceTest.moc"
