// SPDX-License-Identifier: MIT
#include "app/Translations.h"
#include "TestMain.h"
#include "TestRows.h"
#include "WizardDriver.h"

#include <QDir>
#include <QScreen>
#include <QScrollArea>
#include <QTranslator>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

/// Has one conversion type with many inputs, columns of path fields and names of any length.
class Suite : public Installation
{
public:
    Suite(int inputs, int columns, const QByteArray& name)
        : type(QString::fromUtf8(name))
    {
        QByteArray fields;
        const auto field = [](const QByteArray& label, const QByteArray& kind) {
            return "<inputData><displayName>" + label + "</displayName><inputType>" + kind + "</inputType></inputData>";
        };
        for (int i = 0; i < inputs; ++i) {
            fields += field(name + " " + QByteArray::number(i), i % 2 == 0 ? "EDIT" : "CHECK");
        }
        QByteArray paths;
        for (int i = 0; i < columns; ++i) {
            paths += field("Path " + QByteArray::number(i), "FILE");
        }
        define("<projectCreator><name>" + name + "</name><exe>echo</exe><orvcProject>1</orvcProject>" +
               "<orvcppProject>1</orvcppProject><compilerPersonality TYPE=\"C\">%ORVC%/c.p_c</compilerPersonality>" +
               fields + "<inputData><displayName>" + name + "</displayName><inputType COLUMNS=\"" +
               QByteArray::number(columns) + "\">GROUP</inputType>" + paths +
               field("Inner", "GROUP").replace("</inputData>", field("Deep", "EDIT") + "</inputData>") +
               "</inputData></projectCreator>");
        start();
    }

    const QString type;
};

bool isScrolled(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const QScrollArea*>(above)) {
            return true;
        }
    }
    return false;
}

/// The controls that a user can not get at in the wizard as it stands.
QStringList outOfReach(const ApplicationWindow& window)
{
    QStringList found;
    const QRect screen = window.screen()->availableGeometry();
    for (const auto which : {QWizard::BackButton, QWizard::NextButton, QWizard::CancelButton}) {
        const QAbstractButton* button = window.button(which);
        const QRect place(button->mapToGlobal(QPoint()), button->size());
        if (button->isVisible() && !screen.contains(place)) {
            found += button->text();
        }
    }
    const QWidget& page = *window.currentPage();
    const auto controls = page.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        const QRect place(control->mapTo(&page, QPoint()), control->size());
        if (control->isVisible() && !isScrolled(*control) && !page.rect().contains(place)) {
            found += QLatin1StringView(control->metaObject()->className());
        }
        if (control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0) {
            control->setFocus();
            if (control->visibleRegion().boundingRect().height() < control->height()) {
                found += u"out of sight: "_s + control->accessibleName();
            }
        }
    }
    return found;
}

} // namespace

class LayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { font = QApplication::font(); }

    void cleanup()
    {
        QApplication::setFont(font);
        qDeleteAll(qApp->findChildren<QTranslator*>());
    }

    void fitsTheScreen_data()
    {
        const TestRows<QString, int, int, int, QByteArray> row("language", "points", "inputs", "columns", "name");
        const QByteArray longName = QByteArray("name ").repeated(60).trimmed();
        row("as it comes", u"en"_s, 9, 3, 1, "T");
        row("many inputs", u"en"_s, 9, 100, 1, "T");
        row("columns of paths", u"en"_s, 9, 1, 5, "T");
        row("long names", u"en"_s, 9, 5, 1, longName);
        row("large font", u"en"_s, 18, 30, 3, "T");
        row("German", u"de"_s, 9, 30, 3, "T");
        row("German, large font, long names", u"de"_s, 18, 30, 5, longName);
    }

    void fitsTheScreen()
    {
        QFETCH(const QString, language);
        QFETCH(const int, points);
        QFETCH(const int, inputs);
        QFETCH(const int, columns);
        QFETCH(const QByteArray, name);
        Translations::install(QLocale(language));
        QFont large = font;
        large.setPointSize(points);
        QApplication::setFont(large);
        const Suite suite(inputs, columns, name);
        // As another, larger screen had it.
        appRegistry->windowSize = QSize(3000, 2000);
        WizardDriver wizard;
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        wizard.window.currentPage()->findChild<QComboBox*>()->setCurrentText(suite.type);
        wizard.window.currentPage()->findChild<QLineEdit*>()->setText(u"p"_s);
        for (const int page : {StartPageId, SetProductPageId, XmlPageId, ConfPageId}) {
            QCOMPARE(wizard.window.currentId(), page);
            // The window is fitted when the page has been laid out.
            QTRY_COMPARE_WITH_TIMEOUT(outOfReach(wizard.window), QStringList(), 2000);
            QCOMPARE(wizard.window.minimumSize().boundedTo(wizard.window.screen()->availableSize()),
                     wizard.window.minimumSize());
            if (page == XmlPageId) {
                QVERIFY(wizard.edit(u"Path 0"_s).width() >= wizard.window.fontMetrics().averageCharWidth() * 20);
                wizard.edit(u"Deep"_s).setText(u"kept"_s);
                wizard.press(QWizard::BackButton);
                wizard.press(QWizard::NextButton);
                QCOMPARE(wizard.edit(u"Deep"_s).text(), u"kept"_s);
            }
            if (page != ConfPageId) {
                wizard.press(QWizard::NextButton);
            }
        }
    }

    // A letter with Alt is a shortcut or nothing, a wheel over a list only scrolls.
    void keysAndWheelSpareOtherFields()
    {
        const Suite suite(1, 1, "T");
        WizardDriver wizard;
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        QLineEdit& name = wizard.edit(u"Name of project to be created:"_s);
        name.setText(u"precious"_s);
        name.selectAll();
        QTest::keyClick(&name, Qt::Key_B, Qt::AltModifier);
        QCOMPARE(name.text(), u"precious"_s);
        QComboBox& type = wizard.combo(u"Original project type:"_s);
        type.addItem(u"other"_s);
        const QPointF middle = QRectF(type.rect()).center();
        QWheelEvent wheel(middle, type.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&type, &wheel);
        QCOMPARE(type.currentText(), suite.type);
    }

    void takesPathsAsPeopleWriteThem_data()
    {
        const TestRows<QString, QString> row("typed", "taken");
        row("home", u"~/x"_s, QDir::homePath() + u"/x"_s);
        row("URL", u"file:///a%20b"_s, u"/a b"_s);
        row("another user's home", u"~x"_s, u"~x"_s);
    }

    void takesPathsAsPeopleWriteThem()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, taken);
        const Suite suite(1, 1, "T");
        const WizardDriver wizard;
        QLineEdit& field = wizard.edit(u"Location for new project file:"_s);
        field.setText(suite.path(u"work"_s));
        QVERIFY(field.accessibleDescription().isEmpty());
        field.selectAll();
        QTest::keyClicks(&field, typed);
        QCOMPARE(field.accessibleDescription(), u"There is no file or folder of this name."_s);
        wizard.edit(u"Name of project to be created:"_s).setFocus();
        Q_EMIT field.editingFinished();
        QCOMPARE(field.text(), taken);
    }

private:
    QFont font;
};

KOVRA_TEST(LayoutTest)
#include "LayoutTest.moc"
