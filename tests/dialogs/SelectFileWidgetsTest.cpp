// SPDX-License-Identifier: MIT
#include "wizard/SelectFileWidgets.h"
#include "Installation.h"
#include "TestMain.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

QPushButton& button(const SelectFileWidgets& field, const QString& accessibleName)
{
    const auto buttons = field.frame()->findChildren<QPushButton*>();
    for (QPushButton* candidate : buttons) {
        if (candidate->accessibleName() == accessibleName) {
            return *candidate;
        }
    }
    qFatal("no button %s", qPrintable(accessibleName));
}

} // namespace

class SelectFileWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheText()
    {
        Installation suite;
        suite.start();
        const QString file = suite.write(u"work/ü <b>.p_c"_s, "contents");
        SelectFileWidgets field(u"Cap"_s, u"*.p_c"_s, {.withFind = true, .withHistory = true, .withEdit = true});
        field.frame()->show();
        QPushButton& edit = button(field, u"Edit: Cap"_s);
        const auto colour = [&] { return field.lineEdit()->palette().color(field.lineEdit()->foregroundRole()); };
        QVERIFY(field.isValid() && !edit.isEnabled());
        field.SetValue(u"/nowhere"_s);
        QVERIFY(!field.isValid() && colour() == QColor(Qt::red) && edit.isEnabled());
        field.lineEdit()->setText(u" "_s + file + u' ');
        QVERIFY(field.isValid() && colour() != QColor(Qt::red));
        field.SetValue(file);
        field.SetValue(QString());
        QCOMPARE(field.lineEdit()->text(), file);
        auto* history = field.frame()->findChild<QComboBox*>();
        QCOMPARE(history->count(), 2);
        field.SetValue(u"/nowhere"_s);
        QVERIFY(history->count() == 2 && history->itemText(0) == "/nowhere"_L1);
        field.SetReadOnly(true);
        QVERIFY(field.lineEdit()->isReadOnly() && edit.isHidden() && button(field, u"Find: Cap"_s).isHidden());
    }

    void showsTheFile()
    {
        Installation suite;
        suite.start();
        const QString file = suite.write(u"work/a.p_c"_s, "<i>größe</i>\n");
        SelectFileWidgets field(u"Cap"_s, u"*.p_c"_s, {.withEdit = true});
        field.frame()->show();
        field.SetValue(file);
        QString shown;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                shown = dialog->windowTitle() + u'|' + dialog->findChild<QPlainTextEdit*>()->toPlainText();
                dialog->reject();
            }
        });
        watch.start(5);
        QPushButton& edit = button(field, u"Edit: Cap"_s);
        edit.click();
        QCOMPARE(shown, file + u"|<i>größe</i>\n"_s);
        watch.stop();
        QCOMPARE(suite.read(u"work/a.p_c"_s), QByteArray("<i>größe</i>\n"));
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok});
        field.SetValue(u"/nowhere"_s);
        edit.click();
        field.SetValue(suite.path(u"work"_s));
        edit.click();
        const QString pipe = suite.path(u"work/pipe"_s);
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        field.SetValue(pipe);
        edit.click();
        QCOMPARE(boxes.texts, (QStringList{u"Edit failed|Can not edit file, the file does not exist"_s,
                                           u"Edit failed|Can not open file"_s, u"Edit failed|Can not open file"_s}));
    }

    void shortcutsBelongToTheFocusedField()
    {
        QWidget page;
        auto* layout = new QVBoxLayout(&page);
        auto* back = new QPushButton(u"< &Back"_s);
        SelectFileWidgets first(u"First"_s, u"*"_s, {});
        SelectFileWidgets second(u"Second"_s, u"*"_s, {});
        layout->addWidget(first.frame());
        layout->addWidget(second.frame());
        layout->addWidget(back);
        QList<QSignalSpy*> pressed;
        QStringList log;
        for (QPushButton* target : {&button(first, u"Browse: First"_s), &button(second, u"Browse: Second"_s)}) {
            target->disconnect();
            connect(target, &QPushButton::clicked, this, [&log, target] { log += target->accessibleName(); });
        }
        connect(back, &QPushButton::clicked, this, [&log] { log += u"Back"_s; });
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        second.lineEdit()->setFocus();
        QTest::keyClick(second.lineEdit(), Qt::Key_B, Qt::AltModifier);
        QTRY_COMPARE(log, QStringList{u"Browse: Second"_s});
        back->setFocus();
        QTest::keyClick(back, Qt::Key_B, Qt::AltModifier);
        QTRY_COMPARE(log.size(), 2);
        QCOMPARE(log.last(), u"Back"_s);
        first.frame()->setParent(nullptr);
        second.frame()->setParent(nullptr);
    }
};

KOVRA_TEST(SelectFileWidgetsTest)
#include "SelectFileWidgetsTest.moc"
