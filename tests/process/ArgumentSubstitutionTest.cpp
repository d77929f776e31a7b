// SPDX-License-Identifier: MIT
#include "process/ArgumentSubstitution.h"
#include "definitions/DefinitionRecords.h"
#include "TestMain.h"
#include "wizard/WizardState.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ArgumentSubstitutionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void substitutes_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("quote");
        QTest::addColumn<QStringList>("result");
        QTest::newRow("plain") << u"v"_s << QString() << false << QStringList{u"a"_s, u"v"_s, u"-x=vv"_s};
        QTest::newRow("prefix") << u"v"_s << u"-p"_s << false
                                << QStringList{u"a"_s, u"-p"_s, u"v"_s, u"-p"_s, u"-x=vv"_s};
        QTest::newRow("no prefix before nothing")
            << QString() << u"-p"_s << false << QStringList{u"a"_s, QString(), u"-p"_s, u"-x="_s};
        QTest::newRow("quoted where there are blanks")
            << u"v w"_s << QString() << true << QStringList{u"a"_s, u"\"v w\""_s, u"\"-x=v wv w\""_s};
        QTest::newRow("a value that holds the placeholder")
            << u"%V"_s << u"%V"_s << false << QStringList{u"a"_s, u"%V"_s, u"%V"_s, u"%V"_s, u"-x=%V%V"_s};
    }

    void substitutes()
    {
        QFETCH(const QString, value);
        QFETCH(const QString, prefix);
        QFETCH(const bool, quote);
        QFETCH(const QStringList, result);
        QStringList arguments{u"a"_s, u"%V"_s, u"-x=%V%V"_s};
        SubstituteArgument(arguments, u"%V"_s, value, prefix, quote);
        QCOMPARE(arguments, result);
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
        QCOMPARE(conversionArguments(state),
                 (QStringList{u"ORVCPP"_s, u"/w"_s, u"new"_s, u"/w/new.prj"_s, u"-via"_s, u"/c.p_c"_s, u"/c.p_c"_s,
                              QString(), u"-via"_s, u"/m.p_s"_s, u"--in"_s, u"a b.json"_s, QString()}));
    }
};

KOVRA_TEST(ArgumentSubstitutionTest)
#include "ArgumentSubstitutionTest.moc"
