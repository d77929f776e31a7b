// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Controls.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/FileSearch.h"
#include "dialogs/FindDialog.h"
#include "Installation.h"
#include "TestMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

#include <unistd.h>

using namespace Qt::StringLiterals;

class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWindowsAndListsThem()
    {
        Installation suite;
        AppRegistry& registry = suite.start();
        DisplayDialog message(registry, u"t"_s, DisplayDialog::Message, 600, 70);
        QCOMPARE(message.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        {
            const DisplayDialog gone(registry, u"t"_s, DisplayDialog::Text, 10, 10);
            DisplayDialog html(registry, u"t"_s, DisplayDialog::Html, 600, 600);
            html.SetText(u"<h1>Größe €</h1>"_s);
            html.show();
            auto* browser = html.findChild<QTextBrowser*>();
            QCOMPARE(browser->toPlainText(), u"Größe €"_s);
            QPushButton& back = controlCalled<QPushButton>(html, u"Back"_s);
            QVERIFY(!back.isEnabled());
            browser->setSource(QUrl::fromLocalFile(suite.write(u"work/next.htm"_s, "<p>Next</p>")));
            QVERIFY(back.isEnabled() && browser->toPlainText() == "Next"_L1);
            back.click();
            QCOMPARE(browser->toPlainText(), u"Größe €"_s);
            // The frame's button only hides it, Escape and the Close button take it off the list.
            html.close();
            QVERIFY(!html.isVisible() && registry.openDialogs.size() == 3);
            html.show();
            QTest::keyClick(&html, Qt::Key_Escape);
            QVERIFY(!html.isVisible() && registry.openDialogs.size() == 2);
        }
        QCOMPARE(registry.openDialogs, QList<QDialog*>{&message});
        message.show();
        controlCalled<QPushButton>(message, u"Close"_s).click();
        QVERIFY(!message.isVisible() && registry.openDialogs.isEmpty());
    }

    void completesAndPrintsALargeText()
    {
        Installation suite;
        suite.start();
        const QString text = u"one line of a <b>report\n"_s.repeated(50000) + QString(100000, u'x');
        DisplayDialog plain(*appRegistry, u"t"_s, DisplayDialog::Text, 600, 600);
        DisplayDialog html(*appRegistry, u"t"_s, DisplayDialog::Html, 600, 600);
        const QTextDocument& document = *plain.findChild<QPlainTextEdit*>()->document();
        plain.SetText(text);
        QVERIFY(document.blockCount() < 20000);
        // Lines too long for a view are broken.
        QTRY_COMPARE(document.characterCount(), text.size() + 10 + 1);
        QVERIFY(document.toPlainText().startsWith(text.first(100)));

        plain.SetText(text);
        html.SetText(u"a line\n"_s.repeated(60000));
        for (DisplayDialog* dialog : {&plain, &html}) {
            const QString name = dialog == &plain ? u"work/plain.pdf"_s : u"work/html.pdf"_s;
            QPrinter printer(QPrinter::ScreenResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(suite.path(name));
            dialog->printTo(printer);
            QVERIFY(suite.read(name).startsWith("%PDF-"));
        }
        // Printing does not leave out what was still to be shown.
        QCOMPARE(document.characterCount(), text.size() + 10 + 1);
    }

    void findsFilesAndPicksOne()
    {
        Installation suite;
        const QString folder = suite.path(u"work"_s);
        suite.start().values.installPath = folder;
        for (const auto& name : {u"a.c"_s, u"xy"_s, u"deep/b <b>x</b>.C"_s, u"deep/h.h"_s, u"deep/d1.cpp"_s,
                                 u"deep/deeper/ü\nz.c"_s, u".hidden/no.c"_s}) {
            suite.write(u"work/"_s + name, "");
        }
        QCOMPARE(::symlink("..", qPrintable(suite.path(u"work/deep/loop"_s))), 0);
        QCOMPARE(::symlink("a.c", qPrintable(suite.path(u"work/link.c"_s))), 0);
        // A folder that may not be read holds nothing. Root may read all, so for root it is empty.
        const QString closed = folder + u"/closed"_s;
        QVERIFY(QDir().mkpath(closed));
        if (::geteuid() != 0) {
            suite.write(u"work/closed/no.c"_s, "");
        }
        QVERIFY(QFile::setPermissions(closed, {}));
        FindDialog dialog(appRegistry->values.installPath);
        dialog.show();
        QLineEdit& location = *dialog.findChild<QLineEdit*>();
        QListWidget& list = *dialog.findChild<QListWidget*>();
        QPushButton& searchButton = controlCalled<QPushButton>(dialog, u"&Search"_s);
        QPushButton& ok = controlCalled<QPushButton>(dialog, u"&Ok"_s);
        const auto find = [&](const QString& filter) {
            dialog.Setup(u"Caption"_s, filter);
            searchButton.click();
            QStringList names;
            for (int i = 0; i < list.count(); ++i) {
                names += list.item(i)->text().mid(folder.size() + 1);
            }
            names.sort();
            return names;
        };
        const QStringList dotC{u"a.c"_s, u"deep/b <b>x</b>.C"_s, u"deep/deeper/ü\nz.c"_s};
        QCOMPARE(find(u"*.*"_s), (QStringList{dotC[0], dotC[1], u"deep/d1.cpp"_s, dotC[2], u"deep/h.h"_s}));
        QCOMPARE(find(u"*.h d?.c* [x]y"_s), (QStringList{u"deep/d1.cpp"_s, u"deep/h.h"_s, u"xy"_s}));
        QCOMPARE(find(QString()), QStringList());
        QCOMPARE(find(u"*.c"_s), dotC);
        QVERIFY(QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

        QVERIFY(!ok.isEnabled());
        list.setCurrentRow(0);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(dialog.SelectedFile(), folder + u"/a.c"_s);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        // Escape keeps the earlier choice, Cancel forgets it.
        dialog.show();
        ok.setFocus();
        QTest::keyClick(&ok, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        dialog.show();
        dialog.reject();
        QCOMPARE(dialog.SelectedFile(), folder + u"/a.c"_s);
        dialog.show();
        controlCalled<QPushButton>(dialog, u"&Cancel"_s).click();
        QVERIFY(dialog.SelectedFile().isEmpty());

        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        for (const QString& place : {u"/nowhere"_s, folder + u"/xy"_s}) {
            location.setText(place);
            searchButton.click();
        }
        QCOMPARE(boxes.texts,
                 (QStringList{u"Unable to search for files|The specified search location does not exist"_s,
                              u"Unable to search for files|The specified search location must be a directory"_s}));
        location.clear();
        QVERIFY(!searchButton.isEnabled());
        // Below the last search folder nothing changes; elsewhere the folder of the file is proposed.
        dialog.SetSearchStart(folder + u"/deep/h.h"_s);
        dialog.SetSearchStart(u"/nowhere"_s);
        QCOMPARE(location.text(), QString());
        dialog.SetSearchStart(suite.write(u"other/b.c"_s, ""));
        QCOMPARE(location.text(), suite.path(u"other"_s));
    }

    void stopsSearchingAtAnyEntry()
    {
        struct Impatient : FileSearch::Listener
        {
            void folderEntered(const QString&) override {}
            bool goOn() override { return ++asked <= 10; }
            void fileFound(const QString&) override { ++found; }
            int asked = 0, found = 0;
        } listener;
        const Installation suite;
        for (int i = 0; i < 30; ++i) {
            suite.write(u"work/%1/%2.c"_s.arg(i % 3).arg(i), "");
        }
        FileSearch({u"*.c"_s}).run(suite.path(u"work"_s), listener);
        // Three folders were announced, then seven files found.
        QVERIFY(listener.found == 7 && listener.asked == 11);
    }
};

KOVRA_TEST(DialogsTest)
#include "DialogsTest.moc"
