// SPDX-License-Identifier: MIT
#include "app/Translations.h"
#include "Readability.h"
#include "TestMain.h"
#include "wizard/PageScrollArea.h"
#include "WizardDriver.h"

#include <QAccessible>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTranslator>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Has one conversion type with many inputs, columns of path fields and names of any length, a converter that waits,
/// and launchers with an arrow between them.
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
        const QByteArray converter = writeChild(u"convert"_s, "await $0.go; write $1 x").toUtf8();
        define("<projectCreator><name>" + name + "</name><exe>" + converter +
               "</exe><exeargs>%PF</exeargs><orvcProject>1</orvcProject><orvcppProject>1</orvcppProject>"
               "<compilerPersonality TYPE=\"C\">%ORVC%/c.p_c</compilerPersonality>"
               "<compilerPersonality TYPE=\"CPP\">%ORVCPP%/c.p_c</compilerPersonality>" +
               fields + "<inputData><displayName>" + name + "</displayName><inputType COLUMNS=\"" +
               QByteArray::number(columns) + "\">GROUP</inputType>" + paths +
               field("Inner", "GROUP").replace("</inputData>", field("Deep", "EDIT") + "</inputData>") +
               "</inputData></projectCreator><applicationPage><application name='Tool'><exe>" + converter +
               "</exe><rightimage>arrow</rightimage><colour>red</colour></application>"
               "<application name='Gone'><exe>gone</exe></application></applicationPage>");
        write(u"help/wendle.adp"_s, "");
        write(u"orvcpp/c.p_c"_s, "");
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

QString nameOf(const QWidget& control)
{
    const QString text = control.property("text").toString().left(40);
    return QLatin1StringView(control.metaObject()->className()) + u' ' + control.accessibleName() + u'|' + text;
}

/// The controls that a user can not get at in the wizard as it stands.
QStringList outOfReach(const ApplicationWindow& window)
{
    QStringList found;
    const QRect screen = window.screen()->availableGeometry();
    for (const auto which : {QWizard::BackButton, QWizard::NextButton, QWizard::CancelButton, QWizard::FinishButton}) {
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
            found += nameOf(*control);
        }
        if (control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0) {
            control->setFocus();
            if (control->visibleRegion().boundingRect().height() < std::min(control->height(), 20)) {
                found += u"out of sight: "_s + nameOf(*control);
            }
        }
        const auto* area = qobject_cast<const PageScrollArea*>(control);
        if (area && area->horizontalScrollBar()->maximum() > 0) {
            found += u"page %1 sideways by %2"_s.arg(window.currentId()).arg(area->horizontalScrollBar()->maximum());
        }
    }
    return found;
}

/// The texts that are cut off, or can hardly be told from what is behind them.
QStringList unreadable(const QWidget& page)
{
    QStringList found;
    const auto controls = page.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (!control->isVisible() || control->property("text").toString().isEmpty()) {
            continue;
        }
        const auto* label = qobject_cast<const QLabel*>(control);
        if (label && !label->inherits("ElidedLabel") &&
            (label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                               : label->width() < label->sizeHint().width())) {
            found += u"cut: "_s + nameOf(*control);
        }
        const auto* edit = qobject_cast<const QLineEdit*>(control);
        const QPalette& colours = control->palette();
        const double contrast = edit ? Contrast::between(colours.color(QPalette::Text), colours.color(QPalette::Base))
                                : label || qobject_cast<const QAbstractButton*>(control) ? paintedContrast(*control)
                                                                                         : 21;
        if (contrast < Contrast::least && control->isEnabled()) {
            found += u"contrast %1: "_s.arg(contrast) + nameOf(*control);
        }
    }
    return found;
}

/// What a screen reader would have no name for, and the red fields for which it would have no reason.
void collectNameless(QAccessibleInterface& element, QStringList& found)
{
    const QString name = element.text(QAccessible::Name);
    const auto* edit = qobject_cast<const QLineEdit*>(element.object());
    if (!element.state().invisible && element.state().focusable && name.isEmpty()) {
        found += QLatin1StringView(element.object()->metaObject()->className());
    }
    if (edit && edit->palette().color(QPalette::Text) == Qt::red && element.text(QAccessible::Description).isEmpty() &&
        !edit->text().isEmpty()) {
        found += u"no reason: "_s + name;
    }
    for (int i = 0; i < element.childCount(); ++i) {
        if (QAccessibleInterface* child = element.child(i)) {
            collectNameless(*child, found);
        }
    }
}

/// Where Tab leads back, against the way in which the page is read.
QStringList againstReading(const QWidget& page)
{
    QList<const QWidget*> stops;
    for (const QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
        if (page.isAncestorOf(next) && next->isVisible() && next->isEnabled() &&
            (next->focusPolicy() & Qt::TabFocus) != 0) {
            stops += next;
        }
    }
    QStringList found;
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const QRect before(stops[i - 1]->mapTo(&page, QPoint()), stops[i - 1]->size());
        const QRect after(stops[i]->mapTo(&page, QPoint()), stops[i]->size());
        const bool isBeside = page.isRightToLeft() ? after.right() <= before.left() : after.left() >= before.right();
        if (after.top() < before.bottom() && !isBeside) {
            found += nameOf(*stops[i - 1]) + u" -> "_s + nameOf(*stops[i]);
        }
    }
    return found;
}

} // namespace

class LayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator*>()); }

    void fitsTheScreen_data()
    {
        const TestRows<QSize, int, int, QString, int, int, QByteArray, QColor> row(
            "screen", "scale", "points", "language", "inputs", "columns", "name", "window");
        const QByteArray longName = QByteArray("name ").repeated(60).trimmed();
        const QSize small(800, 600);
        const QSize full(1920, 1080);
        const QColor light(239, 239, 239);
        const QColor dark(45, 45, 45);
        row("as it comes", small, 1, 9, u"en"_s, 9, 3, "T", light);
        row("many inputs", small, 1, 9, u"en"_s, 100, 3, "T", dark);
        row("columns of paths", small, 1, 9, u"en"_s, 1, 5, "T", light);
        row("high contrast, long names", small, 1, 9, u"en"_s, 5, 1, longName, Qt::black);
        row("large font", small, 1, 18, u"en"_s, 30, 3, "T", light);
        row("right to left", small, 1, 9, u"ar"_s, 9, 3, "T", dark);
        row("German", full, 1, 9, u"de"_s, 30, 3, "T", dark);
        row("German, all at once", small, 1, 18, u"de"_s, 30, 5, longName, Qt::white);
        row("double", full, 2, 9, u"de"_s, 30, 5, "T", light);
        row("triple", full, 3, 9, u"en"_s, 9, 3, "T", light);
    }

    // Each in a process of its own: the screen and its scale are the platform's.
    void fitsTheScreen()
    {
        if (qEnvironmentVariableIsSet("LAYS_OUT")) {
            layOut();
            return;
        }
        const auto [screen, scale] = fetched<QSize, int>("screen", "scale");
        const TestFolder folder;
        folder.write(u"screens.json"_s, u"{\"screens\": [{\"name\": \"s\", \"x\": 0, \"y\": 0, "
                                        "\"width\": %1, \"height\": %2, \"logicalDpi\": 96, "
                                        "\"logicalBaseDpi\": 96, \"dpr\": 1}]}"_s.arg(screen.width())
                                            .arg(screen.height())
                                            .toUtf8());
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        const ProgramResult result =
            runProgram(QCoreApplication::applicationFilePath(), {u"-nocrashhandler"_s, u"fitsTheScreen:"_s + row},
                       {{u"QT_QPA_PLATFORM"_s, u"offscreen:configfile=screens.json"_s},
                        {u"QT_SCALE_FACTOR"_s, QString::number(scale)},
                        {u"LAYS_OUT"_s, u"1"_s}},
                       folder.path(u"."_s));
        QVERIFY2(result.output.contains(u"PASS   : LayoutTest::fitsTheScreen(%1)"_s.arg(row)),
                 qPrintable(result.output.section(u"testing of LayoutTest"_s, 1, 1)));
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
        row("home", u"~/x"_s, QDir::toNativeSeparators(QDir::homePath() + u"/x"_s));
        row("URL", u"file:///a%20b"_s, QDir::toNativeSeparators(u"/a b"_s));
        row("another user's home", u"~x"_s, u"~x"_s);
    }

    void takesPathsAsPeopleWriteThem()
    {
        const auto [typed, taken] = fetched<QString, QString>("typed", "taken");
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
    static void layOut()
    {
        QFETCH(const int, points);
        QFETCH(const QString, language);
        QFETCH(const int, inputs);
        QFETCH(const int, columns);
        QFETCH(const QByteArray, name);
        QFETCH(const QColor, window);
        Translations::install(QLocale(language));
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        QApplication::setPalette(QPalette(window));
        QApplication::setLayoutDirection(QLocale(language).textDirection());
        const Suite suite(inputs, columns, name);
        // As another, larger screen had it.
        appRegistry->windowSize = QSize(3000, 2000);
        WizardDriver wizard;
        QVERIFY(QTest::qWaitForWindowActive(&wizard.window));
        wizard.window.currentPage()->findChild<QComboBox*>()->setCurrentText(suite.type);
        const auto edits = wizard.window.currentPage()->findChildren<QLineEdit*>();
        edits[1]->setText(suite.path(u"work"_s));
        edits[0]->setText(u"p"_s);
        for (const int page : {StartPageId, SetProductPageId, XmlPageId, ConfPageId, ActionPageId}) {
            checkPage(wizard, page);
            if (QTest::currentTestFailed()) {
                return;
            }
            if (page == XmlPageId) {
                const QLineEdit& path = wizard.edit(u"Path 0"_s);
                QVERIFY(path.width() >=
                        std::min(path.fontMetrics().averageCharWidth() * 20, path.screen()->size().width() / 4));
                wizard.edit(u"Deep"_s).setText(u"kept"_s);
                wizard.press(QWizard::BackButton);
                wizard.press(QWizard::NextButton);
                QCOMPARE(wizard.edit(u"Deep"_s).text(), u"kept"_s);
            }
            if (page != ActionPageId) {
                wizard.press(QWizard::NextButton);
            }
        }
        suite.write(u"convert.go"_s, {});
        QTRY_COMPARE(wizard.window.currentId(), int(DisplayOptionsPageId));
        checkPage(wizard, DisplayOptionsPageId);
    }

    static void checkPage(WizardDriver& wizard, int page)
    {
        QCOMPARE(wizard.window.currentId(), page);
        // The window is fitted when the page has been laid out.
        QTRY_COMPARE_WITH_TIMEOUT(outOfReach(wizard.window).join(u'\n'), QString(), 2000);
        QCOMPARE(wizard.window.minimumSize().boundedTo(wizard.window.screen()->availableSize()),
                 wizard.window.minimumSize());
        QCOMPARE(unreadable(*wizard.window.currentPage()).join(u'\n'), QString());
        QCOMPARE(againstReading(*wizard.window.currentPage()).join(u'\n'), QString());
        QStringList nameless;
        collectNameless(*QAccessible::queryAccessibleInterface(&wizard.window), nameless);
        QCOMPARE(nameless.join(u'\n'), QString());
    }
};

KOVRA_TEST(LayoutTest)
#include "LayoutTest.moc"
