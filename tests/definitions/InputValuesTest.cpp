// SPDX-License-Identifier: MIT
#include "definitions/InputValues.h"
#include "TestMain.h"

#include <QHash>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

ArgumentDefinition& add(ArgumentDefinitions& list, InputType type, const QString& name, const QString& output = {})
{
    ArgumentDefinition& definition = *list.emplace_back(std::make_unique<ArgumentDefinition>());
    definition.inputType = type;
    definition.displayName = name;
    definition.outputString = output;
    return definition;
}

FieldState text(const QString& value, bool enabled = true)
{
    return {.hasText = true, .textEnabled = enabled, .text = value};
}

FieldState toggle(bool checked, bool active = true)
{
    return {.hasSwitch = true, .switchActive = active, .checked = checked};
}

} // namespace

class InputValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joinsGroups()
    {
        ArgumentDefinitions list;
        ArgumentDefinition& group = add(list, InputType::Group, u"g"_s);
        group.separator = u","_s;
        add(group.children, InputType::Check, u"a"_s, u"-a"_s);
        add(group.children, InputType::Check, u"b"_s, u"-b"_s);
        add(group.children, InputType::Radio, u"c"_s);
        add(group.children, InputType::Edit, u"d"_s);
        ArgumentDefinition& inner = add(group.children, InputType::Group, u"inner"_s);
        inner.separator = u"+"_s;
        add(inner.children, InputType::Edit, u"e"_s);
        add(inner.children, InputType::Check, u"f"_s);
        QHash<QString, FieldState> states{{u"a"_s, toggle(true)}, {u"b"_s, toggle(false)}, {u"c"_s, toggle(true)},
                                          {u"d"_s, text(u"D"_s)}, {u"e"_s, text(u"E"_s)},  {u"f"_s, toggle(true)}};
        const FieldSource source = [&](const ArgumentDefinition& field) { return states.value(field.displayName); };

        QCOMPARE(InputValues::value(group, source, false), u"-a,c,D,E+f"_s);
        QVERIFY(group.value.isEmpty() && group.children[0]->value.isEmpty());
        states[u"c"_s] = toggle(true, false);
        states[u"d"_s] = text(u"hidden"_s, false);
        QCOMPARE(InputValues::value(group, source, true), u"-a,E+f"_s);
        QCOMPARE(group.value, u"-a,E+f"_s);
        QCOMPARE(group.children[0]->value, u"1"_s);
        QCOMPARE(group.children[1]->value, u"0"_s);
        QVERIFY(group.children[2]->value.isEmpty() && group.children[3]->value.isEmpty());
        // What is nested deeper is joined but not remembered.
        QVERIFY(inner.children[0]->value.isEmpty());
    }

    void switches_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("active");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("remembered");
        QTest::newRow("checked") << QString() << true << true << u"1"_s << u"1"_s;
        QTest::newRow("unchecked") << QString() << false << true << u"0"_s << u"0"_s;
        QTest::newRow("output, checked") << u"-x"_s << true << true << u"-x"_s << u"1"_s;
        QTest::newRow("output, unchecked") << u"-x"_s << false << true << QString() << u"0"_s;
        QTest::newRow("hidden") << u"-x"_s << true << false << QString() << QString();
    }

    void switches()
    {
        QFETCH(const QString, output);
        QFETCH(const bool, checked);
        QFETCH(const bool, active);
        QFETCH(const QString, value);
        QFETCH(const QString, remembered);
        ArgumentDefinitions list;
        ArgumentDefinition& check = add(list, InputType::Check, u"c"_s, output);
        check.value = u"old"_s;
        QCOMPARE(InputValues::value(
                     check, [&](const auto&) { return toggle(checked, active); }, true),
                 value);
        QCOMPARE(check.value, remembered);
    }

    void completeness_data()
    {
        QTest::addColumn<InputType>("type");
        QTest::addColumn<bool>("mustBeSet");
        QTest::addColumn<bool>("mustExist");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<bool>("complete");
        const QString here = QCoreApplication::applicationFilePath();
        QTest::newRow("optional, empty") << InputType::File << false << false << QString() << true;
        QTest::newRow("needed, blanks only") << InputType::Edit << true << false << u" \t "_s << false;
        QTest::newRow("needed, given") << InputType::Edit << true << false << u"x"_s << true;
        QTest::newRow("must exist, missing") << InputType::File << true << true << u"/nowhere"_s << false;
        QTest::newRow("must exist, there") << InputType::File << true << true << here << true;
        QTest::newRow("an edit never must exist") << InputType::Edit << true << true << u"/nowhere"_s << true;
    }

    void completeness()
    {
        QFETCH(const InputType, type);
        QFETCH(const bool, mustBeSet);
        QFETCH(const bool, mustExist);
        QFETCH(const QString, entered);
        QFETCH(const bool, complete);
        ArgumentDefinitions list;
        add(list, InputType::Edit, u"optional"_s);
        ArgumentDefinition& field = add(list, type, u"f"_s);
        field.mustBeSet = mustBeSet;
        field.fileMustExist = mustExist;
        const ArgumentDefinition* missing =
            InputValues::firstIncomplete(list, [&](const auto&) { return text(entered); });
        QCOMPARE(missing, complete ? nullptr : &field);
    }
};

KOVRA_TEST(InputValuesTest)
#include "InputValuesTest.moc"
