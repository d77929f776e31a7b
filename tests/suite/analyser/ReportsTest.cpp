// SPDX-License-Identifier: MIT
#include "CodeBase.h"
#include "TestMain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Results of three sources that share a header, of one that the analyser gave up on, and of one without any.
class Results : public CodeBase
{
public:
    explicit Results(const QByteArray& messages = {})
    {
        QStringList files;
        for (const auto& name : {u"a.cpp"_s, u"b & ü.cpp"_s, u"c.cpp"_s, u"bad.cpp"_s, u"new.cpp"_s}) {
            files += name;
            write(u"one/"_s + name, "int x;\nint y;\nint z;\n");
        }
        project({{.folder = u"one"_s, .files = files}}, messages);
        const QByteArray header = path(u"one/h.h"_s).toUtf8() + ":2:5: style: In a header [headerStyle]\n";
        write(u"one/h.h"_s, "int h;\nint i;\n");
        result(u"a.cpp"_s, header + place(u"a.cpp"_s) + "3:7: error: Broken \"a, b\" <b>bold</b> [broken]\n");
        result(u"b & ü.cpp"_s, header + place(u"b & ü.cpp"_s) + "1:1: warning: Odd [odd]\n");
        result(u"c.cpp"_s, header + "nofile:0:0: information: Elsewhere [elsewhere]\n");
        write(u"out/one/bad.cpp.err"_s, place(u"bad.cpp"_s) + "7:1: error: No code [syntaxError]\n");
    }

    ProgramResult report(const QString& arguments) const { return run(u"report p.prj --incomplete-ok "_s + arguments); }

private:
    QByteArray place(const QString& name) const { return path(u"one/"_s + name).toUtf8() + ':'; }

    void result(const QString& name, const QByteArray& messages)
    {
        write(u"out/one/"_s + name + u".err"_s, messages);
        write(u"out/one/"_s + name + u".met"_s, "<S>STWMC 1\n");
    }
};

QString shownIds(const QString& text)
{
    QStringList ids;
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines) {
        if (line.contains(u": "_s) && !line.startsWith(u' ') && line.contains(u'[')) {
            ids += line.section(u": "_s, 1, 1) + u' ' + line.section(u'[', -1).section(u']', 0, 0);
        }
    }
    ids.sort();
    return ids.join(u", "_s);
}

} // namespace

class ReportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachMessageOnce_data()
    {
        // "%1" is the folder of the sources, "URL" its address.
        const TestRows<QString, QStringList> row("form", "parts");
        row("text", u"--text"_s,
            {u"3 of 5 sources analysed"_s, u"2 errors, 1 warning, 1 style message, 1 information.\n"_s,
             u"In force: messages.p_s"_s, u"%1/bad.cpp: line 7: No code [syntaxError]\n"_s,
             u"%1/new.cpp: it has not been analysed yet\n"_s,
             u"h.h:2:5: style: In a header [headerStyle] (seen from 3 sources)\n"_s});
        const QStringList html{u"Not analysed (2)"_s, u"&lt;b&gt;bold&lt;/b&gt;"_s, u"seen from 3 sources"_s,
                               u"href=\"URL/b%20&amp;%20%C3%BC.cpp#L1\""_s, u"b &amp; ü.cpp</a>"_s};
        row("for a browser", u"--html"_s,
            html + QStringList{u"<input type=\"checkbox\" id=\"show-warning\" checked>"_s});
        row("for a window", u"--plain-html"_s, html + QStringList{u"<a href=\"#warning\">warning (1)</a>"_s});
    }

    void tellsEachMessageOnce()
    {
        QFETCH(const QString, form);
        QFETCH(QStringList, parts);
        const Results results;
        const QString text = results.report(form).output;
        parts.replaceInStrings(u"%1"_s, results.path(u"one"_s))
            .replaceInStrings(u"URL"_s, QUrl::fromLocalFile(results.path(u"one"_s)).toString());
        for (const QString& part : std::as_const(parts)) {
            QVERIFY2(text.contains(part), qPrintable(part + u" is not in "_s + text));
        }
        QCOMPARE(text.count(u"[headerStyle]"_s), 1);
        QVERIFY(text.indexOf("Not analysed"_L1) < text.indexOf("[headerStyle]"_L1));
    }

    void messagePersonalitiesSelect_data()
    {
        const TestRows<QByteArray, QString> row("messages", "shown");
        row("nothing said", {},
            u"error broken, error syntaxError, information elsewhere, style headerStyle, warning odd"_s);
        row("only", "-only odd,broken\n", u"error broken, error syntaxError, warning odd"_s);
        row("only adds up", "-only odd\n-only brok*\n", u"error broken, error syntaxError, warning odd"_s);
        row("a severity", "-only warning\n", u"error syntaxError, warning odd"_s);
        row("only is forgotten", "-only odd\n-forgetall only\n-nomsg information,odd\n",
            u"error broken, error syntaxError, style headerStyle"_s);
        row("hidden ones are forgotten", "-nomsg odd\n-forgetall nomsg\n-threshold 3\n",
            u"error broken, error syntaxError, warning odd"_s);
        row("threshold 2", "-threshold 2\n", u"error broken, error syntaxError, style headerStyle, warning odd"_s);
        row("shown as errors", "*orv errors=headerStyle\n-threshold 4\n",
            u"error broken, error headerStyle, error syntaxError"_s);
        row("why a source was not analysed stays", "-nomsg error,warning,style,information\n", u"error syntaxError"_s);
    }

    void messagePersonalitiesSelect()
    {
        QFETCH(const QByteArray, messages);
        const Results results(messages);
        QTEST(shownIds(results.report(u"--text"_s).output), "shown");
    }

    void codingStandardsComeOnTop()
    {
        const Results results("-only odd\n");
        const QString options =
            results.write(u"project.via"_s, "-via \"" + results.path(u"messages.p_s"_s).toUtf8() + "\"\n-via \"" +
                                                results.path(u"house.p_s"_s).toUtf8() + "\"\n");
        results.write(u"house.p_s"_s, "*orv module=House\n*orv errors=odd\n");
        const QString text = results.report(u"--text -via \"%1\""_s.arg(options)).output;
        QCOMPARE(shownIds(text), u"error odd, error syntaxError"_s);
        QVERIFY2(text.contains("In force: House"_L1), qPrintable(text));
    }

    void statusesTellTheLimit()
    {
        const Results results;
        const auto status = [&](const QString& arguments) {
            return results.run(u"report p.prj --csv "_s + arguments).status;
        };
        QCOMPARE(status(u"--incomplete-ok"_s), 0);
        QCOMPARE(status({}), 2);
        QCOMPARE(status(u"--incomplete-ok --fail-on error"_s), 1);
        // Hidden from the report, but there.
        QCOMPARE(status(u"--incomplete-ok --fail-on style --severity error"_s), 1);
        results.write(u"out/one/a.cpp.err"_s, "");
        results.write(u"out/one/bad.cpp.err"_s, "");
        QCOMPARE(status(u"--incomplete-ok --fail-on error"_s), 0);
        QCOMPARE(status(u"--incomplete-ok --fail-on warning"_s), 1);
    }

    void csvQuotesItsFields()
    {
        const Results results;
        QCOMPARE(results.run(u"count p.prj"_s).output,
                 u"5 messages in 3 analysed files: 2 errors, 1 warning, 1 style message, 1 information\n"_s);
        QCOMPARE(results.report(u"--csv -o results.csv"_s).output, QString());
        const QStringList lines = QString::fromUtf8(results.read(u"results.csv"_s)).split(u"\r\n"_s);
        QCOMPARE(lines[0], u"file,line,column,severity,id,message,sources"_s);
        QCOMPARE(lines[1], results.path(u"one/bad.cpp"_s) + u",,,not analysed,,line 7: No code [syntaxError],1"_s);
        for (const QString& line :
             {results.path(u"one/a.cpp"_s) + u",3,7,error,broken,\"Broken \"\"a, b\"\" <b>bold</b>\",1"_s,
              results.path(u"one/h.h"_s) + u",2,5,style,headerStyle,In a header,3"_s}) {
            QVERIFY2(lines.contains(line), qPrintable(lines.join(u'\n')));
        }
        QCOMPARE(lines.size(), 9);
    }

    void aWindowGetsTheWeightiestOfMany()
    {
        const Results results;
        QByteArray many;
        for (int i = 1; i <= 3000; ++i) {
            many += "/x.cpp:" + QByteArray::number(i) + ":1: style: S [manyStyle]\n";
        }
        results.write(u"out/one/c.cpp.err"_s, many);
        const QString page = results.report(u"--plain-html"_s).output;
        QVERIFY(page.contains("[broken]"_L1));
        QVERIFY2(page.contains("weightiest of 3004 messages"_L1), qPrintable(page.left(800)));
        QVERIFY(page.size() < 50000);
    }

    void sarifHoldsToItsSchema()
    {
        if (QStandardPaths::findExecutable(u"jsonschema"_s).isEmpty()) {
            QSKIP("needs the package python3-jsonschema");
        }
        const Results results;
        QCOMPARE(results.report(u"--sarif -o results.sarif"_s).errors, QString());
        const ProgramResult check =
            runProgram(u"jsonschema"_s, {u"-i"_s, results.path(u"results.sarif"_s), QStringLiteral(SARIF_SCHEMA)});
        QVERIFY2(check.status == 0, qPrintable(check.output + check.errors));
        const QJsonObject run = QJsonDocument::fromJson(results.read(u"results.sarif"_s))[u"runs"_s][0].toObject();
        const QJsonArray found = run[u"results"_s].toArray();
        QCOMPARE(found.size(), 5);
        const QJsonArray rules = run[u"tool"_s][u"driver"_s][u"rules"_s].toArray();
        for (const auto& each : found) {
            QCOMPARE(rules[each[u"ruleIndex"_s].toInt()][u"id"_s], each[u"ruleId"_s]);
        }
        const QJsonValue place = found[0][u"locations"_s][0][u"physicalLocation"_s];
        QCOMPARE(place[u"artifactLocation"_s][u"uri"_s].toString(), u"one/a.cpp"_s);
        QCOMPARE(place[u"region"_s][u"startLine"_s].toInt(), 3);
        QCOMPARE(found[0][u"message"_s][u"text"_s].toString(), u"Broken \"a, b\" <b>bold</b>"_s);
        QCOMPARE(run[u"invocations"_s][0][u"executionSuccessful"_s], QJsonValue(false));
        QCOMPARE(run[u"invocations"_s][0][u"toolExecutionNotifications"_s].toArray().size(), 2);
    }

    void theBrowserReportShowsSources()
    {
        if (QStandardPaths::findExecutable(u"cppcheck-htmlreport"_s).isEmpty()) {
            QSKIP("needs cppcheck-htmlreport");
        }
        const Results results;
        const ProgramResult result = results.run(u"browse p.prj --no-browser"_s);
        QVERIFY2(result.status == 0, qPrintable(result.errors));
        const QString index = result.output.trimmed();
        const QString pages = index.left(index.lastIndexOf(u'/') + 1);
        static const QRegularExpression link(u"href=\"([^\"]+#(line-3))\">3<"_s);
        const QRegularExpressionMatch found = link.match(shownPage(results, index));
        QVERIFY2(found.hasMatch(), results.read(index));
        const QString source = shownPage(results, pages + found.captured(1));
        const qsizetype line = source.indexOf(u"\"line-3\""_s);
        QVERIFY2(line > 0, qPrintable(source));
        QVERIFY2(source.indexOf("Broken"_L1) > line, qPrintable(source));
    }

private:
    /// A page as a browser shows it, or where there is none as it is stored.
    static QString shownPage(const Results& results, const QString& place)
    {
        const QString browser = QStandardPaths::findExecutable(u"chromium"_s);
        if (browser.isEmpty()) {
            return QString::fromUtf8(results.read(place.section(u'#', 0, 0)));
        }
        return runProgram(browser,
                          {u"--headless"_s, u"--no-sandbox"_s, u"--disable-gpu"_s,
                           u"--user-data-dir="_s + results.path(u"browser"_s), u"--dump-dom"_s, u"file://"_s + place},
                          {{u"HOME"_s, results.path()}, {u"LC_ALL"_s, u"C.UTF-8"_s}})
            .output;
    }
};

KOVRA_TEST(ReportsTest)
#include "ReportsTest.moc"
