// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Controls.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/FileSearch.h"
#include "dialogs/FindDialog.h"
#include "dialogs/MainWindow.h"
#include "Installation.h"
#include "SystemCalls.h"
#include "TestMain.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

// Windows takes no line break in a name.
QString oddName()
{
#ifdef Q_OS_WIN
    return u"deep/deeper/ü z.c"_s;
#else
    return u"deep/deeper/ü\nz.c"_s;
#endif
}

/// The Find dialog over a folder of sources, links and a closed folder.
struct Find : Installation
{
    Find()
    {
        start();
        for (const auto& name : {u"a.c"_s, u"xy"_s, u"deep/b &amp; x.C"_s, u"deep/h.h"_s, u"deep/d1.cpp"_s, oddName(),
                                 u".hidden/no.c"_s}) {
            write(u"work/"_s + name, "");
        }
#ifdef Q_OS_UNIX
        QFile::link(u".."_s, searched + u"/deep/loop"_s);
        QFile::link(u"a.c"_s, searched + u"/link.c"_s);
#endif
        // A folder that may not be read holds nothing. Root may read all, so for root it is empty.
        QDir().mkpath(closed);
        if (::geteuid() != 0) {
            write(u"work/closed/no.c"_s, "");
        }
        QFile::setPermissions(closed, {});
        dialog = std::make_unique<FindDialog>(searched);
        dialog->show();
    }
    ~Find()
    {
        QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QStringList search(const QString& filter) const
    {
        dialog->Setup(u"Caption"_s, filter);
        button(u"&Search"_s).click();
        QStringList names;
        for (int i = 0; i < list().count(); ++i) {
            names += QDir::fromNativeSeparators(list().item(i)->text()).mid(searched.size() + 1);
        }
        names.sort();
        return names;
    }
    QLineEdit& location() const
    {
        return *dialog->findChild<QLineEdit*>();
    }
    QListWidget& list() const
    {
        return *dialog->findChild<QListWidget*>();
    }
    QPushButton& button(const QString& name) const
    {
        return controlCalled<QPushButton>(*dialog, name);
    }

    const QString searched = path(u"work"_s);
    const QString closed = searched + u"/closed"_s;
    std::unique_ptr<FindDialog> dialog;
};

/// Counts the help keys that reach the main window.
struct HelpKeys : QObject
{
    explicit HelpKeys(QWidget& window)
    {
        MainWindow::set(&window);
        window.installEventFilter(this);
    }
    ~HelpKeys() override { MainWindow::set(nullptr); }
    bool eventFilter(QObject* /*window*/, QEvent* event) override
    {
        count += int(event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1);
        return false;
    }
    int count = 0;
};

} // namespace

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
            QVERIFY(!findControl(html, u"&Open in the browser"_s));
            QPushButton& back = controlCalled<QPushButton>(html, u"Back"_s);
            QVERIFY(!back.isEnabled());
            browser->setSource(QUrl::fromLocalFile(suite.write(u"work/next.htm"_s, "<p>Next</p>")));
            QVERIFY(back.isEnabled());
            QCOMPARE(browser->toPlainText(), u"Next"_s);
            back.click();
            QCOMPARE(browser->toPlainText(), u"Größe €"_s);
            // The frame's button only hides it, Escape and the Close button take it off the list.
            html.close();
            QVERIFY(!html.isVisible());
            QCOMPARE(registry.openDialogs.size(), 3);
            html.show();
            QTest::keyClick(&html, Qt::Key_Escape);
            QVERIFY(!html.isVisible());
            QCOMPARE(registry.openDialogs.size(), 2);
        }
        QCOMPARE(registry.openDialogs, QList<QDialog*>{&message});
        message.show();
        controlCalled<QPushButton>(message, u"Close"_s).click();
        QVERIFY(!message.isVisible());
        QCOMPARE(registry.openDialogs, QList<QDialog*>());
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
        QTRY_COMPARE(document.characterCount(), text.size() + 100 + 1);
        QVERIFY(document.toPlainText().startsWith(text.first(100)));

        plain.SetText(text);
        html.SetText(u"a line\n"_s.repeated(60000));
        const auto printed = [&suite](DisplayDialog& dialog) {
            QPrinter printer(QPrinter::ScreenResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(suite.path(u"work/printed.pdf"_s));
            dialog.printTo(printer);
            return suite.read(u"work/printed.pdf"_s).first(5);
        };
        QCOMPARE(printed(plain), QByteArray("%PDF-"));
        QVERIFY(QFile::remove(suite.path(u"work/printed.pdf"_s)));
        QCOMPARE(printed(html), QByteArray("%PDF-"));
        // Printing does not leave out what was still to be shown.
        QCOMPARE(document.characterCount(), text.size() + 100 + 1);
    }

    void findsWordsInAText()
    {
        const Installation suite;
        AppRegistry registry;
        QWidget wizard;
        HelpKeys helpKeys(wizard);
        DisplayDialog dialog(registry, u"t"_s, DisplayDialog::Text, 600, 600);
        dialog.SetText(u"one\ntwo one"_s);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_F, Qt::ControlModifier);
        QLineEdit& words = controlCalled<QLineEdit>(dialog, u"Find in the text"_s);
        const auto& view = *dialog.findChild<QPlainTextEdit*>();
        words.setText(u"ONE"_s);
        QList<int> places;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(&words, Qt::Key_Return);
            places += view.textCursor().selectionStart();
        }
        QCOMPARE(places, (QList{0, 8, 0}));
        QVERIFY(findControl(dialog, u"Went on at the beginning."_s));
        words.setText(u"three"_s);
        QTest::keyClick(&words, Qt::Key_Return);
        QVERIFY(findControl(dialog, u"Not found."_s));
        // While the text is still coming, it waits for the words.
        dialog.SetText(u"line\n"_s.repeated(100'000) + u"three"_s);
        QTest::keyClick(&words, Qt::Key_Return);
        QTRY_COMPARE(view.textCursor().selectedText(), u"three"_s);
        QTest::keyClick(&words, Qt::Key_F1);
        QCOMPARE(helpKeys.count, 1);
        // Escape closes the bar first.
        QTest::keyClick(&words, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        QVERIFY(!words.isVisible());
    }

    void filtersWhatItFound()
    {
        const Find find;
        QWidget wizard;
        HelpKeys helpKeys(wizard);
        find.search(u"*.*"_s);
        QLineEdit& filter = controlCalled<QLineEdit>(*find.dialog, u"Show only paths with these words"_s);
        filter.setText(u"DEEPER"_s);
        QTRY_VERIFY(findControl(*find.dialog, u"Files found: 5. Shown: 1."_s));
        QVERIFY(find.list().isRowHidden(find.list().row(find.list().findItems(u"a.c"_s, Qt::MatchEndsWith).first())));
        filter.clear();
        QTRY_VERIFY(findControl(*find.dialog, u"Files found: 5."_s));
        QTest::keyClick(&filter, Qt::Key_F1);
        QCOMPARE(helpKeys.count, 1);
    }

    void findsFiles_data()
    {
        const QString b = u"deep/b &amp; x.C"_s;
        const QString z = oddName();
        const TestRows<QString, QStringList> row("filter", "found");
        row("with a dot", u"*.*"_s, {u"a.c"_s, b, u"deep/d1.cpp"_s, z, u"deep/h.h"_s});
        row("several patterns", u"*.h d?.c* [x]y"_s, {u"deep/d1.cpp"_s, u"deep/h.h"_s, u"xy"_s});
        row("none", {}, {});
        row("any letter case", u"*.c"_s, {u"a.c"_s, b, z});
    }

    void findsFiles()
    {
        const auto [filter, found] = fetched<QString, QStringList>("filter", "found");
        const Find find;
#ifdef Q_OS_UNIX
        QVERIFY(QFileInfo(find.path(u"work/link.c"_s)).isSymLink());
        QVERIFY(QFileInfo(find.path(u"work/deep/loop"_s)).isSymLink());
#endif
        QCOMPARE(find.search(filter).join(u'|'), found.join(u'|'));
    }

    void picksAFile()
    {
        const Find find;
        FindDialog& dialog = *find.dialog;
        QPushButton& ok = find.button(u"&Ok"_s);
        find.search(u"a.c"_s);
        QVERIFY(!ok.isEnabled());
        find.list().setCurrentRow(0);
        find.list().setFocus();
        QTest::keyClick(&find.list(), Qt::Key_Return);
        QCOMPARE(dialog.SelectedFile(), find.searched + u"/a.c"_s);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        // Escape keeps the earlier choice, Cancel forgets it.
        dialog.show();
        ok.setFocus();
        QTest::keyClick(&ok, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        dialog.show();
        dialog.reject();
        QCOMPARE(dialog.SelectedFile(), find.searched + u"/a.c"_s);
        dialog.show();
        find.button(u"&Cancel"_s).click();
        QVERIFY(dialog.SelectedFile().isEmpty());
    }

    void saysWhereItCanNotSearch()
    {
        const Find find;
        const BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        QPushButton& searchButton = find.button(u"&Search"_s);
        find.location().setText(u"/nowhere"_s);
        searchButton.click();
        find.location().setText(find.searched + u"/xy"_s);
        searchButton.click();
        QCOMPARE(boxes.texts,
                 (QStringList{u"Unable to search for files|The specified search location does not exist"_s,
                              u"Unable to search for files|The specified search location must be a directory"_s}));
        find.location().clear();
        QVERIFY(!searchButton.isEnabled());
    }

    void startsWhereTheFileLies()
    {
        const Find find;
        find.location().clear();
        // Below the last search folder nothing changes; elsewhere the folder of the file is proposed.
        find.dialog->SetSearchStart(find.searched + u"/deep/h.h"_s);
        find.dialog->SetSearchStart(u"/nowhere"_s);
        QCOMPARE(find.location().text(), QString());
        find.dialog->SetSearchStart(find.write(u"other/b.c"_s, ""));
        QCOMPARE(find.location().text(), find.path(u"other"_s));
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
        QCOMPARE(listener.found, 7);
        QCOMPARE(listener.asked, 11);
    }
};

KOVRA_TEST(DialogsTest)
#include "DialogsTest.moc"
