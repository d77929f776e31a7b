// SPDX-License-Identifier: MIT
#include "WizardDriver.h"

#include <QLabel>

using namespace Qt::StringLiterals;

WizardDriver::WizardDriver(const QStringList& arguments)
    : window(u"Create KOVRA Project"_s, u"projectCreation.htm"_s, QStringList{u"ProjectCreation"_s} + arguments)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        qFatal("the wizard does not appear");
    }
}

QStringList WizardDriver::labels() const
{
    QStringList texts;
    const auto all = window.currentPage()->findChildren<QLabel*>();
    for (const QLabel* label : all) {
        if (label->isVisible()) {
            texts += label->text();
        }
    }
    return texts;
}

void WizardDriver::press(QWizard::WizardButton which) const
{
    QAbstractButton* target = window.button(which);
    if (!target->isEnabled() || !target->isVisible()) {
        qFatal("button %d can not be pressed", int(which));
    }
    QTest::mouseClick(target, Qt::LeftButton);
}

QStringList WizardDriver::checked() const
{
    QStringList names;
    const auto all = window.currentPage()->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : all) {
        if (button->isVisible() && button->isChecked()) {
            names += button->accessibleName();
        }
    }
    return names;
}

void WizardDriver::passStartPage(const QString& name, const QString& folder, const QString& type) const
{
    edit(u"Name of project to be created:"_s).setText(name);
    edit(u"Location for new project file:"_s).setText(folder);
    combo(u"Original project type:"_s).setCurrentText(type);
    press(QWizard::NextButton);
}

AppRegistry& startSuite(Installation& suite, const QByteArray& script, const QByteArray& more)
{
    const QString program = script.isEmpty() ? suite.path(u"missing"_s) : suite.writeChild(u"convert"_s, script);
    suite.define("<projectCreator><name>T</name><orvcProject>1</orvcProject><exe>" + program.toUtf8() +
                 "</exe><exeargs>%PF %E</exeargs><inputData><displayName>E</displayName><argDef>%E</argDef></inputData>"
                 "</projectCreator>" +
                 more);
    return suite.start();
}

void convert(const WizardDriver& wizard, const Installation& suite)
{
    wizard.passStartPage(u"p"_s, suite.path(u"work"_s), u"T"_s);
    wizard.press(QWizard::NextButton);
}
