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
        QCOMPARE(InputValues::value(group, source), u"-a,c,D,E+f"_s);
        QVERIFY(group.value.isEmpty() && group.children[0]->value.isEmpty());
        states[u"c"_s] = toggle(true, false);
        states[u"d"_s] = text(u"hidden"_s, false);
        QCOMPARE(InputValues::value(group, source), u"-a,E+f"_s);
        InputValues::remember(group, source);
        QCOMPARE(group.value, u"-a,E+f"_s);
        QCOMPARE(group.children[0]->value + group.children[1]->value, u"10"_s);
        QVERIFY(group.children[2]->value.isEmpty() && group.children[3]->value.isEmpty());
        // What is nested deeper is joined but not remembered.
        QVERIFY(inner.children[0]->value.isEmpty());
    }

    void switches()
    {
        // Of the last text the first part goes into the command, the second is remembered.
        const std::tuple<QString, FieldState, QString> rows[] = {{{}, toggle(true), u"1|1"_s},
                                                                 {{}, toggle(false), u"0|0"_s},
                                                                 {u"-x"_s, toggle(true), u"-x|1"_s},
                                                                 {u"-x"_s, toggle(false), u"|0"_s},
                                                                 {u"-x"_s, toggle(true, false), u"|"_s}};
        for (const auto& [output, state, values] : rows) {
            ArgumentDefinitions list;
            ArgumentDefinition& check = add(list, InputType::Check, u"c"_s, output);
            check.value = u"old"_s;
            const FieldSource source = [field = state](const auto&) { return field; };
            const QString value = InputValues::value(check, source);
            InputValues::remember(check, source);
            QCOMPARE(value + u'|' + check.value, values);
        }
    }

    void completeness()
    {
        const std::tuple<const char*, InputType, bool, bool, FieldState, bool> rows[] = {
            {"optional, empty", InputType::File, false, false, text({}), true},
            {"needed, blanks only", InputType::Edit, true, false, text(u" \t "_s), false},
            {"needed, given", InputType::Edit, true, false, text(u"x"_s), true},
            {"must exist, missing", InputType::File, true, true, text(u"/nowhere"_s), false},
            {"must exist, there", InputType::File, true, true, text(QCoreApplication::applicationFilePath()), true},
            {"an edit never must exist", InputType::Edit, true, true, text(u"/nowhere"_s), true}};
        for (const auto& [name, type, mustBeSet, mustExist, state, complete] : rows) {
            ArgumentDefinitions list;
            add(list, InputType::Edit, u"optional"_s);
            ArgumentDefinition& field = add(list, type, u"f"_s);
            field.mustBeSet = mustBeSet;
            field.fileMustExist = mustExist;
            const FieldSource source = [entered = state](const auto&) { return entered; };
            QVERIFY2(InputValues::firstIncomplete(list, source) == (complete ? nullptr : &field), name);
        }
    }
};

KOVRA_TEST(InputValuesTest)
#include "InputValuesTest.moc"
