// SPDX-License-Identifier: MIT
#include "definitions/InputValues.h"
#include "TestFolder.h"
#include "TestMain.h"

#include <QHash>
#include <QSettings>

#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

ArgumentDefinition& add(ArgumentDefinitions& list, InputType type, const QString& name, const QString& output = {})
{
    ArgumentDefinition& definition = *list.emplace_back(std::make_unique<ArgumentDefinition>());
    definition.inputType = type;
    definition.displayName = name;
    definition.key = name;
    definition.outputString = output;
    return definition;
}

FieldState entered(const QString& value, bool enabled = true)
{
    return {.hasText = true, .textEnabled = enabled, .text = value};
}

FieldState toggle(bool checked, bool active = true)
{
    return {.hasSwitch = true, .switchActive = active, .checked = checked};
}

// The values of a group and of its fields.
QString remembered(const ArgumentDefinition& group)
{
    QString values = group.value;
    for (const auto& field : group.children) {
        values += u'|' + field->value;
    }
    return values;
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
        QHash<QString, FieldState> states{{u"a"_s, toggle(true)},    {u"b"_s, toggle(false)},   {u"c"_s, toggle(true)},
                                          {u"d"_s, entered(u"D"_s)}, {u"e"_s, entered(u"E"_s)}, {u"f"_s, toggle(true)}};
        const FieldSource source = [&](const ArgumentDefinition& field) { return states.value(field.displayName); };
        QCOMPARE(InputValues::value(group, source), u"-a,c,D,E+f"_s);
        QCOMPARE(remembered(group), u"|||||"_s);
        states[u"c"_s] = toggle(true, false);
        states[u"d"_s] = entered(u"hidden"_s, false);
        QCOMPARE(InputValues::value(group, source), u"-a,E+f"_s);
        InputValues::remember(group, source);
        // Of what is nested deeper the fields are remembered, too.
        QCOMPARE(remembered(group), u"-a,E+f|1|0|||"_s);
        QCOMPARE(remembered(inner), u"|E|1"_s);
        // They go no further than the window.
        std::vector<std::unique_ptr<ProjectCreatorData>> types;
        types.emplace_back(std::make_unique<ProjectCreatorData>())->inputData = std::move(list);
        const TestFolder folder;
        QSettings store(folder.path(u"store"_s), QSettings::IniFormat);
        InputValues::write(store, types);
        QCOMPARE(store.allKeys().join(u' '), u"a b c d g inner"_s);
    }

    void switches()
    {
        // The value that is passed on, and the one that is kept.
        const auto values = [](const QString& output, const FieldState& state) {
            ArgumentDefinitions list;
            ArgumentDefinition& check = add(list, InputType::Check, u"c"_s, output);
            check.value = u"old"_s;
            const FieldSource source = [&state](const auto&) { return state; };
            const QString value = InputValues::value(check, source);
            InputValues::remember(check, source);
            return value + u'|' + check.value;
        };
        QCOMPARE(values({}, toggle(true)), u"1|1"_s);
        QCOMPARE(values({}, toggle(false)), u"0|0"_s);
        QCOMPARE(values(u"-x"_s, toggle(true)), u"-x|1"_s);
        QCOMPARE(values(u"-x"_s, toggle(false)), u"|0"_s);
        QCOMPARE(values(u"-x"_s, toggle(true, false)), u"|"_s);
    }

    // Of the other kinds the pages of the wizard tell.
    void anEditNamesNoFile()
    {
        ArgumentDefinitions list;
        ArgumentDefinition& field = add(list, InputType::Edit, u"f"_s);
        field.mustBeSet = true;
        field.fileMustExist = true;
        QVERIFY(!InputValues::firstIncomplete(list, [](const auto&) { return entered(u"/nowhere"_s); }));
    }
};

KOVRA_TEST(InputValuesTest)
#include "InputValuesTest.moc"
