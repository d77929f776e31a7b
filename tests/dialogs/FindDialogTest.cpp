// SPDX-License-Identifier: MIT
#include "dialogs/FindDialog.h"
#include "app/AppRegistry.h"
#include "dialogs/FileSearch.h"
#include "Installation.h"
#include "TestMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The dialog's controls, as a user finds them.
class Driver
{
public:
    Driver() { dialog.show(); }

    QPushButton& button(const QString& text) const
    {
        for (QPushButton* candidate : dialog.findChildren<QPushButton*>()) {
            if (candidate->text() == text) {
                return *candidate;
            }
        }
        qFatal("no button %s", qPrintable(text));
    }
    QLineEdit& location() const { return *dialog.findChild<QLineEdit*>(); }
    QListWidget& list() const { return *dialog.findChild<QListWidget*>(); }
    QStringList search(const QString& folder) const
    {
        location().setText(folder);
        button(u"&Search"_s).click();
        QStringList names;
        for (int i = 0; i < list().count(); ++i) {
            names += list().item(i)->text().mid(folder.size() + 1);
        }
        names.sort();
        return names;
    }

    FindDialog dialog;
};

} // namespace

class FindDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatMatches_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("one pattern") << u"*.c"_s
                                     << QStringList{u"a.c"_s, u"deep/b <b>x</b>.C"_s, u"deep/deeper/ü\nz.c"_s};
        QTest::newRow("two patterns") << u"*.h d?.c* [x]y"_s << QStringList{u"deep/d1.cpp"_s, u"deep/h.h"_s, u"xy"_s};
        QTest::newRow("with a dot") << u"*.*"_s
                                    << QStringList{u"a.c"_s, u"deep/b <b>x</b>.C"_s, u"deep/d1.cpp"_s,
                                                   u"deep/deeper/ü\nz.c"_s, u"deep/h.h"_s};
        QTest::newRow("nothing asked for") << QString() << QStringList{};
    }

    void findsWhatMatches()
    {
        QFETCH(const QString, filter);
        QFETCH(const QStringList, found);
        Installation suite;
        suite.start();
        for (const auto& name : {u"a.c"_s, u"xy"_s, u"deep/b <b>x</b>.C"_s, u"deep/h.h"_s, u"deep/d1.cpp"_s,
                                 u"deep/deeper/ü\nz.c"_s, u".hidden/no.c"_s}) {
            suite.write(u"work/"_s + name, "");
        }
        QCOMPARE(::symlink("..", qPrintable(suite.path(u"work/deep/loop"_s))), 0);
        QCOMPARE(::symlink("a.c", qPrintable(suite.path(u"work/link.c"_s))), 0);
        Driver driver;
        driver.dialog.Setup(u"Caption"_s, filter);
        QCOMPARE(driver.search(suite.path(u"work"_s)), found);
        QCOMPARE(driver.search(suite.path(u"work"_s)), found);
        QVERIFY(driver.dialog.findChildren<QLabel*>().at(1)->text().contains(filter.split(u' ').join(u", "_s)));
    }

    void picksOne()
    {
        Installation suite;
        suite.start();
        const QString file = suite.write(u"work/a.c"_s, "");
        Driver driver;
        driver.dialog.Setup(u"Caption"_s, u"*.c"_s);
        driver.search(suite.path(u"work"_s));
        QPushButton& ok = driver.button(u"&Ok"_s);
        QVERIFY(!ok.isEnabled());
        driver.list().setCurrentRow(0);
        QVERIFY(ok.isEnabled());
        ok.click();
        QCOMPARE(driver.dialog.SelectedFile(), file);
        QCOMPARE(driver.dialog.result(), int(QDialog::Accepted));
        // Escape keeps the earlier choice, Cancel forgets it.
        driver.dialog.show();
        driver.dialog.reject();
        QCOMPARE(driver.dialog.SelectedFile(), file);
        driver.dialog.show();
        driver.button(u"&Cancel"_s).click();
        QVERIFY(driver.dialog.SelectedFile().isEmpty());
    }

    void checksTheLocation()
    {
        Installation suite;
        suite.start().values.installPath = suite.path(u"work"_s);
        const QString file = suite.write(u"work/sub/a.c"_s, "");
        Driver driver;
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        driver.search(u"/nowhere"_s);
        driver.search(file);
        QCOMPARE(boxes.texts,
                 (QStringList{u"Unable to search for files|The specified search location does not exist"_s,
                              u"Unable to search for files|The specified search location must be a directory"_s}));
        driver.location().clear();
        QVERIFY(!driver.button(u"&Search"_s).isEnabled());
        driver.location().setText(u"x"_s);
        // Below the last search folder nothing changes; elsewhere the folder of the file is proposed.
        driver.dialog.SetSearchStart(file);
        QCOMPARE(driver.location().text(), u"x"_s);
        driver.dialog.SetSearchStart(u"/nowhere"_s);
        QCOMPARE(driver.location().text(), u"x"_s);
        driver.dialog.SetSearchStart(suite.write(u"other/b.c"_s, ""));
        QCOMPARE(driver.location().text(), suite.path(u"other"_s));
    }

    void stopsAtAnyEntry()
    {
        const Installation suite;
        for (int i = 0; i < 30; ++i) {
            suite.write(u"work/%1/%2.c"_s.arg(i % 3).arg(i), "");
        }
        class Impatient : public FileSearch::Listener
        {
        public:
            void folderEntered(const QString&) override {}
            bool goOn() override { return ++asked <= 10; }
            void fileFound(const QString&) override { ++found; }
            int asked = 0;
            int found = 0;
        } listener;
        FileSearch({u"*.c"_s}).run(suite.path(u"work"_s), listener);
        // Three folders were announced, then seven files found.
        QCOMPARE(listener.found, 7);
        QCOMPARE(listener.asked, 11);
    }
};

KOVRA_TEST(FindDialogTest)
#include "FindDialogTest.moc"
