// SPDX-License-Identifier: MIT
#include "dialogs/DisplayDialog.h"
#include "app/AppRegistry.h"
#include "Installation.h"
#include "TestMain.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

class DisplayDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isListedWhileItIsOpen()
    {
        Installation suite;
        const AppRegistry& registry = suite.start();
        {
            DisplayDialog first(u"t"_s, DisplayDialog::Message, 600, 70);
            DisplayDialog second(u"t"_s, DisplayDialog::Text, 600, 600);
            QCOMPARE(registry.openDialogs.size(), 2);
            first.show();
            first.close();
            QVERIFY(!first.isVisible());
            // The frame's button only hides it, the Close button takes it off the list.
            QCOMPARE(registry.openDialogs.size(), 2);
            first.show();
            first.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
            QCOMPARE(registry.openDialogs, QList<QDialog*>{&second});
            second.show();
            QTest::keyClick(&second, Qt::Key_Escape);
            QVERIFY(registry.openDialogs.isEmpty() && !second.isVisible());
            first.show();
        }
        DisplayDialog listed(u"t"_s, 7, 10, 10);
        {
            const DisplayDialog gone(u"t"_s, DisplayDialog::Html, 10, 10);
        }
        QCOMPARE(registry.openDialogs, QList<QDialog*>{&listed});
    }

    void showsEachKindAsItIs()
    {
        Installation suite;
        suite.start();
        const QString text = u"<b>ü</b> & 50%"_s;
        DisplayDialog message(u"t"_s, DisplayDialog::Message, 600, 70);
        message.SetText(text);
        QCOMPARE(message.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        DisplayDialog plain(u"t"_s, DisplayDialog::Text, 600, 600);
        plain.SetText(text);
        QCOMPARE(plain.findChild<QPlainTextEdit*>()->toPlainText(), text);

        suite.write(u"work/next.htm"_s, "<p>Next</p>");
        DisplayDialog html(u"t"_s, DisplayDialog::Html, 600, 600);
        html.SetText(u"<h1>Größe €</h1><a href='%1'>next</a>"_s.arg(suite.path(u"work/next.htm"_s)));
        auto* browser = html.findChild<QTextBrowser*>();
        QVERIFY2(browser->toPlainText().startsWith(u"Größe €"_s), qPrintable(browser->toPlainText()));
        QPushButton* back = html.findChildren<QPushButton*>().at(0);
        QVERIFY(back->text() == "Back"_L1 && !back->isEnabled());
        Q_EMIT browser->anchorClicked(QUrl::fromLocalFile(suite.path(u"work/next.htm"_s)));
        browser->setSource(QUrl::fromLocalFile(suite.path(u"work/next.htm"_s)));
        QVERIFY(back->isEnabled());
        back->click();
        QVERIFY(browser->toPlainText().startsWith(u"Größe"_s));
    }

    void completesALargeText()
    {
        Installation suite;
        suite.start();
        DisplayDialog dialog(u"t"_s, DisplayDialog::Text, 600, 600);
        const QString line = u"one line of a report\n"_s;
        dialog.SetText(line.repeated(50000) + QString(100000, u'x'));
        const auto* view = dialog.findChild<QPlainTextEdit*>();
        QVERIFY(view->document()->blockCount() < 20000);
        QTRY_COMPARE(view->document()->characterCount(), line.size() * 50000 + 100000 + 10 + 1);
    }

    void printsToPdf()
    {
        Installation suite;
        suite.start();
        for (const int mode : {DisplayDialog::Text, DisplayDialog::Html}) {
            DisplayDialog dialog(u"t"_s, mode, 600, 600);
            dialog.SetText(u"a line\n"_s.repeated(60000));
            QPrinter printer(QPrinter::ScreenResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(suite.path(u"work/%1.pdf"_s.arg(mode)));
            dialog.printTo(printer);
            QVERIFY(suite.read(u"work/%1.pdf"_s.arg(mode)).startsWith("%PDF-"));
            if (mode == DisplayDialog::Text) {
                QCOMPARE(dialog.findChild<QPlainTextEdit*>()->document()->blockCount(), 60001);
            }
        }
    }
};

KOVRA_TEST(DisplayDialogTest)
#include "DisplayDialogTest.moc"
