// SPDX-License-Identifier: MIT
#include "app/Translations.h"
#include "Installation.h"
#include "TestMain.h"
#include "wizard/PageSequence.h"
#include "WizardDriver.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QProcess>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// The texts of which the window shows a part only.
QStringList cutOffTexts(const QWidget& window)
{
    QStringList texts;
    const auto check = [&texts](const QWidget* widget, const QString& text, int neededWidth, int neededHeight) {
        if (widget->isVisible() && !text.isEmpty() &&
            (widget->width() < neededWidth || widget->height() < neededHeight)) {
            texts += text;
        }
    };
    for (const auto* label : window.findChildren<QLabel*>()) {
        const bool wraps = label->wordWrap();
        check(label, label->text(), wraps ? 0 : label->sizeHint().width(),
              wraps ? label->heightForWidth(label->width()) : label->sizeHint().height());
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        check(button, button->text(), button->sizeHint().width(), button->sizeHint().height());
    }
    for (const auto* box : window.findChildren<QGroupBox*>()) {
        check(box, box->title(), box->minimumSizeHint().width(), 0);
    }
    return texts;
}

/// The keys that more than one kind of visible button claims.
QStringList clashingKeys(const QWidget& window)
{
    QHash<QString, QString> owners;
    QStringList clashes;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        const QString key = QKeySequence::mnemonic(button->text()).toString();
        if (!button->isVisible() || key.isEmpty()) {
            continue;
        }
        const QString owner = owners.value(key, button->text());
        if (owner != button->text()) {
            clashes += key + u": "_s + owner + u", "_s + button->text();
        }
        owners.insert(key, owner);
    }
    return clashes;
}

bool qtIsTranslated()
{
    return QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_de.qm"_s);
}

QByteArray runProgram(const QStringList& arguments, const QList<std::pair<QString, QString>>& variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& name :
         {u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANG"_s, u"LANGUAGE"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s}) {
        environment.remove(name);
    }
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    for (const auto& [name, value] : variables) {
        environment.insert(name, value);
    }
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(PROGRAM), arguments);
    return program.waitForFinished() ? program.readAll() : "it does not end: " + program.readAll();
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator*>()); }

    void obeysTheEnvironment_data()
    {
        using Variables = QList<std::pair<QString, QString>>;
        QTest::addColumn<Variables>("variables");
        QTest::addColumn<bool>("german");
        const std::pair everything{u"LC_ALL"_s, u"C.UTF-8"_s};
        QTest::newRow("LANG") << Variables{{u"LANG"_s, u"de_DE.UTF-8"_s}} << true;
        QTest::newRow("another country") << Variables{{u"LC_ALL"_s, u"de_AT.UTF-8"_s}} << true;
        QTest::newRow("LANGUAGE") << Variables{everything, {u"LANGUAGE"_s, u"de"_s}} << true;
        QTest::newRow("second choice") << Variables{everything, {u"LANGUAGE"_s, u"fr:de"_s}} << true;
        QTest::newRow("English preferred") << Variables{everything, {u"LANGUAGE"_s, u"en:de"_s}} << false;
        QTest::newRow("for a script") << Variables{{u"LC_ALL"_s, u"C"_s}, {u"LANGUAGE"_s, u"de"_s}} << false;
        QTest::newRow("another language") << Variables{{u"LC_ALL"_s, u"fr_FR.UTF-8"_s}} << false;
    }

    void obeysTheEnvironment()
    {
        using Variables = QList<std::pair<QString, QString>>;
        QFETCH(const Variables, variables);
        QFETCH(const bool, german);
        const QByteArray usage = runProgram({u"-batch"_s}, variables);
        QVERIFY2(usage.contains(german ? "Aufruf: ProjectCreation" : "Usage: ProjectCreation"), usage);
        const QByteArray error = runProgram({u"-batch"_s, u"-bogus"_s}, variables);
        QVERIFY2(error.contains(german ? "unbekanntes Argument „-bogus“" : "unknown argument \"-bogus\""), error);
        // There is no application yet that could translate this one.
        const QByteArray display = runProgram({}, variables);
        QVERIFY2(display.contains(german ? "DISPLAY ist nicht gesetzt" : "DISPLAY is not set"), display);
    }

    void theOptionsStayAsTheyAre()
    {
        const QByteArray english = runProgram({u"-help"_s}, {{u"LC_ALL"_s, u"C.UTF-8"_s}});
        QVERIFY2(english.startsWith("\"ProjectCreation options:\n"), english);
        QCOMPARE(runProgram({u"-help"_s}, {{u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, u"de"_s}}), english);
    }

    void theWizardIsGermanAndFits()
    {
        Installation suite;
        suite.write(u"orvcpp/personalities/cpp.p_c"_s, "");
        suite.define(R"(<projectCreator><name>T</name><orvcppProject>1</orvcppProject><exe>/no/such/program</exe>
            <inputData><displayName>Datei</displayName><inputType>FILE</inputType></inputData>
            <compilerPersonality TYPE="CPP">%ORVCPP%/personalities/cpp.p_c</compilerPersonality>
            <analyserPersonality TYPE="CPP"></analyserPersonality>
            <messagePersonality TYPE="CPP"></messagePersonality></projectCreator>
          <compliance_module><product>ORVCPP</product><name>Module</name><location>/</location></compliance_module>)");
        Translations::install(QLocale(u"de_DE"_s));
        suite.start();
        const WizardDriver wizard;
        const ApplicationWindow& window = wizard.window;
        const auto check = [&](int page, const QString& title) {
            QCOMPARE(window.currentId(), page);
            QCOMPARE(window.currentPage()->title(), title);
            QCOMPARE(cutOffTexts(window).join(u'|'), QString());
            QCOMPARE(clashingKeys(window).join(u'|'), QString());
            QCOMPARE(window.size(), QSize(650, 430));
        };
        check(StartPageId, u"Projektangaben"_s);
        if (qtIsTranslated()) {
            QVERIFY2(window.button(QWizard::NextButton)->text().contains("Weiter"_L1),
                     qPrintable(window.button(QWizard::NextButton)->text()));
            QCOMPARE(window.button(QWizard::CancelButton)->text(), u"Abbrechen"_s);
        }
        wizard.edit(u"Name des neuen Projekts:"_s).setText(u"p"_s);
        wizard.edit(u"Ort der neuen Projektdatei:"_s).setText(suite.path(u"work"_s));
        wizard.press(QWizard::NextButton);
        check(XmlPageId, u"Angaben zur Projektkonvertierung"_s);
        wizard.press(QWizard::NextButton);
        check(ConfPageId, u"Angaben zur Konfiguration für Orv C++"_s);
        QLineEdit& messages = wizard.edit(u"Konfigurationsdatei für die Meldungen:"_s);
        messages.setText(u"/no/such/file"_s);
        QVERIFY(wizard.labels().contains(
            u"Um fortzufahren, geben Sie unter „Konfigurationsdatei für die Meldungen“ eine vorhandene Datei an."_s));
        messages.setText(suite.path(u"orvcpp/personalities/cpp.p_c"_s));
        wizard.press(QWizard::NextButton);
        check(ActionPageId, u"Projekt erstellen"_s);
        QVERIFY2(wizard.output().contains(u"Fehler: Das Konvertierungsprogramm konnte nicht ausgeführt werden"_s),
                 qPrintable(wizard.output()));
    }

    void theNumberDecidesTheForm()
    {
        Translations::install(QLocale(u"de"_s));
        const auto lines = [](int count) {
            return QCoreApplication::translate("ActionPage", "[%n line(s) not shown]", nullptr, count);
        };
        QCOMPARE(lines(1), u"[1 Zeile nicht angezeigt]"_s);
        QCOMPARE(lines(2), u"[2 Zeilen nicht angezeigt]"_s);
    }
};

KOVRA_TEST(TranslationsTest)
#include "TranslationsTest.moc"
