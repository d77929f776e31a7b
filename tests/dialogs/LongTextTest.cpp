// SPDX-License-Identifier: MIT
#include "app/AppRegistry.h"
#include "Controls.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/HtmlShape.h"
#include "Installation.h"
#include "TestMain.h"

#include <QDesktopServices>
#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

// Not all fonts for code say that they are of fixed pitch.
bool hasEqualWidths(const QFont& font)
{
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(u'i') == metrics.horizontalAdvance(u'W');
}

} // namespace

/// Texts of a size or shape on which a window would stall.
class LongTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesHtml_data()
    {
        const TestRows<QString, bool> row("html", "quick");
        row("nothing", {}, true);
        row("no html", u"1 < 2 and 3 > 2"_s, true);
        row("a report", u"<h1>Report</h1>"_s + u"<p>some words of a report</p>\n"_s.repeated(500), true);
        row("a long report", u"<p>some words of a report</p>\n"_s.repeated(20000), false);
        row("a small table", u"<table>"_s + u"<tr><td>1<td>2</tr>"_s.repeated(100) + u"</table>"_s, true);
        row("many rows", u"<table>"_s + u"<tr><td>1</td></tr>"_s.repeated(1000) + u"</table>"_s, false);
        row("many cells", u"<TABLE><TR>"_s + u"<TD>1"_s.repeated(1000), false);
        row("a table in a table", u"<table><tr><td>"_s.repeated(2) + u'x', true);
        row("tables in tables", u"<table><tr><td>"_s.repeated(12) + u'x', false);
        row("a long word", u"x"_s.repeated(10000), true);
        row("a very long word", u"x"_s.repeated(25000), false);
        row("a long word of blanks that hold together", u"\u00A0"_s.repeated(25000), false);
        row("a long word of pieces", u"<b>x</b>"_s.repeated(3000), false);
        row("paragraphs in a word", u"<p>x</p>"_s.repeated(1000), true);
        row("deep", u"<div>"_s.repeated(2000), false);
        row("deep and closed", u"<div>"_s.repeated(2000) + u'x' + u"</div>"_s.repeated(2000), false);
        row("beside each other", u"<div>x</div>"_s.repeated(1000), true);
        row("line breaks", u"a b<br>"_s.repeated(5000), false);
        row("rules", u"<style>"_s + u"a {} "_s.repeated(2000) + u"</style>"_s + u"<p>x y"_s.repeated(500), false);
        row("images", u"<img src='a.png'> "_s.repeated(100), false);
        row("a comment", u"<!--"_s + u"<td>"_s.repeated(5000) + u"-->"_s, true);
        row("never ends", u"<p>x"_s + u"<table "_s, true);
    }

    void judgesHtml()
    {
        const auto [html, quick] = fetched<QString, bool>("html", "quick");
        QCOMPARE(HtmlShape::of(html).isQuick(), quick);
    }

    void offersTheBrowserForLongHtml()
    {
        const Installation suite;
        auto registry = std::make_unique<AppRegistry>();
        DisplayDialog dialog(*registry, u"Report"_s, DisplayDialog::Html, 600, 600);
        const QString rows = u"<tr><td>cell</td></tr>\n"_s.repeated(50000);
        dialog.SetText(u"<h1>Title &amp; more</h1><table>"_s + rows);
        dialog.show();
        const QString shown = dialog.findChild<QTextBrowser*>()->toPlainText();
        QVERIFY2(shown.contains("\n\nTitle & more\ncell"_L1), qPrintable(shown.left(100)));
        QVERIFY(shown.size() < 20000);
        const QString file = shown.section(u' ', -1).remove(u']');
        QCOMPARE(suite.read(file).count("<td>"), 50000);

        QDesktopServices::setUrlHandler(u"file"_s, this, "openUrl");
        opened.clear();
        controlCalled<QPushButton>(dialog, u"&Open in the browser"_s).click();
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(opened, QUrl::fromLocalFile(file));
        // A browser may read it later.
        registry->ShutDown();
        QVERIFY(QFile::remove(file));
    }

    void followsLinks()
    {
        const Installation suite;
        suite.write(u"short.html"_s, "short");
        suite.write(u"long.html"_s, QByteArray("<td>cell").repeated(1000));
        suite.write(u"long.txt"_s, QByteArray("<td>cell").repeated(1000));
        AppRegistry registry;
        for (const auto& [link, inBrowser] : {std::pair{u"https://example.invalid/a.html"_s, true},
                                              {u"long.html"_s, true},
                                              {u"short.html"_s, false},
                                              {u"long.txt"_s, false},
                                              {u"missing.html"_s, false}}) {
            DisplayDialog dialog(registry, u"Report"_s, DisplayDialog::Html, 600, 600);
            dialog.SetText(u"start"_s);
            auto& view = *dialog.findChild<QTextBrowser*>();
            const QUrl url = link.contains(u':') ? QUrl(link) : QUrl::fromLocalFile(suite.path(link));
            opened.clear();
            QDesktopServices::setUrlHandler(url.scheme(), this, "openUrl");
            view.setSource(url);
            QDesktopServices::unsetUrlHandler(url.scheme());
            QCOMPARE(opened, inBrowser ? url : QUrl());
            QCOMPARE(view.source() == url, !inBrowser);
        }
    }

    void aLinkToASourceShowsItsLine()
    {
        const Installation suite;
        suite.write(u"short.html"_s, "<b>short</b>");
        const QByteArray line = "#include <a&b>\t// <b>\n";
        suite.write(u"a.cpp"_s, line.repeated(5000));
        AppRegistry registry;
        DisplayDialog dialog(registry, u"Report"_s, DisplayDialog::Html, 600, 600);
        dialog.SetText(u"<b>start</b>"_s);
        auto& view = *dialog.findChild<QTextBrowser*>();
        QUrl url = QUrl::fromLocalFile(suite.path(u"a.cpp"_s));
        url.setFragment(u"L2500"_s);
        view.setSource(url);
        const QString shown = view.toPlainText();
        QVERIFY2(shown.contains("\n  2500  #include <a&b>\t// <b>\n"_L1), qPrintable(shown.left(300)));
        QVERIFY(shown.size() < 40'000);
        QVERIFY(hasEqualWidths(view.document()->find(u"2500"_s).charFormat().font()));
        view.backward();
        QCOMPARE(view.toPlainText(), u"start"_s);
        view.forward();
        QCOMPARE(view.toPlainText(), shown);
    }

    void showsLongTexts_data()
    {
        const TestRows<QString, int, QString> row("text", "lines", "end");
        row("short", u"a\nb"_s, 2, u"b"_s);
        row("many lines", u"line\n"_s.repeated(200'000) + u"end"_s, 200'001, u"end"_s);
        row("more lines than a view takes", u"\n"_s.repeated(1'200'000), 1'000'000, u"only its beginning"_s);
        row("a line without an end", u"x"_s.repeated(999'500) + u"end"_s, 1000, u"xend"_s);
    }

    void showsLongTexts()
    {
        const auto [text, lines, end] = fetched<QString, int, QString>("text", "lines", "end");
        AppRegistry registry;
        DisplayDialog dialog(registry, u"Report"_s, DisplayDialog::Text, 600, 600);
        dialog.SetText(text);
        const auto& view = *dialog.findChild<QPlainTextEdit*>();
        // Columns stand below each other.
        QVERIFY(hasEqualWidths(view.font()));
        const QTextDocument& document = *view.document();
        QTRY_VERIFY_WITH_TIMEOUT(document.lastBlock().text().contains(end), 60000);
        QVERIFY2(document.blockCount() >= lines, qPrintable(QString::number(document.blockCount())));
        QVERIFY2(document.blockCount() <= lines + 5000, qPrintable(QString::number(document.blockCount())));
    }

public Q_SLOTS:
    void openUrl(const QUrl& url) { opened = url; }

private:
    QUrl opened;
};

KOVRA_TEST(LongTextTest)
#include "LongTextTest.moc"
