// SPDX-License-Identifier: MIT
#include "app/Translations.h"
#include "TestMain.h"
#include "WizardDriver.h"

#include <QGroupBox>
#include <QLibraryInfo>
#include <QTranslator>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// The buttons and boxes whose text the window shows a part of only, and the keys that more than one kind of visible
/// button claims.
QStringList flaws(const QWidget& window)
{
    QStringList found;
    const auto check = [&found](const QWidget* widget, const QString& text, const QSize& needed) {
        if (widget->isVisible() && !text.isEmpty() && widget->size().expandedTo(needed) != widget->size()) {
            found += text;
        }
    };
    for (const auto* box : window.findChildren<QGroupBox*>()) {
        check(box, box->title(), {box->minimumSizeHint().width(), 0});
    }
    std::map<QString, QString> owners;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        check(button, button->text(), button->sizeHint());
        const QString key = QKeySequence::mnemonic(button->text()).toString();
        if (button->isVisible() && !key.isEmpty()) {
            const QString owner = owners.try_emplace(key, button->text()).first->second;
            found += owner == button->text() ? QStringList() : QStringList{key, owner, button->text()};
        }
    }
    return found;
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator*>()); }

    void obeysTheEnvironment_data()
    {
        const std::pair english{u"LC_ALL"_s, u"C.UTF-8"_s};
        const TestRows<Variables, bool> row("variables", "german");
        row("LANG", {{u"LANG"_s, u"de_DE.UTF-8"_s}}, true);
        row("LC_ALL", {{u"LC_ALL"_s, u"de_AT.UTF-8"_s}}, true);
        row("LANGUAGE", {english, {u"LANGUAGE"_s, u"de"_s}}, true);
        row("no French", {english, {u"LANGUAGE"_s, u"fr:de"_s}}, true);
        row("English first", {english, {u"LANGUAGE"_s, u"en:de"_s}}, false);
        row("French", {{u"LC_ALL"_s, u"fr_FR.UTF-8"_s}}, false);
        row("a script", {{u"LC_ALL"_s, u"C"_s}, {u"LANGUAGE"_s, u"de"_s}}, false);
    }

    void obeysTheEnvironment()
    {
        QFETCH(const Variables, variables);
        QFETCH(const bool, german);
        const auto says = [&](const QStringList& arguments, const QString& inGerman, const QString& inEnglish) {
            const QString errors = runProgram(QStringLiteral(PROGRAM), arguments, variables).errors;
            QVERIFY2(errors.contains(german ? inGerman : inEnglish), qPrintable(errors));
        };
        says({u"-batch"_s}, u"Aufruf: ProjectCreation"_s, u"Usage: ProjectCreation"_s);
        says({u"-batch"_s, u"-bogus"_s}, u"unbekanntes Argument „-bogus“"_s, u"unknown argument \"-bogus\""_s);
        // Without a display there is no application yet that could translate.
        says({}, u"DISPLAY ist nicht gesetzt"_s, u"DISPLAY is not set"_s);
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
            QCOMPARE(flaws(window).join(u'|'), QString());
            QCOMPARE(window.size(), QSize(650, 430));
        };
        check(StartPageId, u"Projektangaben"_s);
        if (QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_de.qm"_s)) {
            QVERIFY(window.button(QWizard::NextButton)->text().contains("Weiter"_L1));
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
};

KOVRA_TEST(TranslationsTest)
#include "TranslationsTest.moc"
