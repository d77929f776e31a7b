// SPDX-License-Identifier: MIT
#include "Controls.h"
#include "dialogs/BusyDialog.h"
#include "Launchers.h"
#include "Readability.h"
#include "TestMain.h"

#include <QProgressBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Launchers that run children, on a page that is shown.
struct LauncherPage : Launchers
{
    explicit LauncherPage(const QByteArrayList& scripts, const QByteArray& more = {}, QByteArray applications = {})
    {
        for (qsizetype i = 0; i < scripts.size(); ++i) {
            applications += application(int(i + 1), scripts[i], more);
        }
        define(applications);
        holder->show();
    }
};

} // namespace

class LauncherProgressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsItOnTheButton()
    {
        const LauncherPage page({"print [34/151] a.c; await $0.go; put-error '\r[151/151] b.c'; await $0.end"});
        RunAppData& tool = page.tool(1);
        const auto* bar = page.holder->findChild<QProgressBar*>();
        QVERIFY(!bar);
        tool.button->click();
        QCOMPARE(tool.button->text(), u"Tool 1\nrunning..."_s);
        QTRY_COMPARE(tool.button->text(), u"Tool 1\n34 of 151"_s);
        bar = &controlCalled<QProgressBar>(*page.holder, u"Progress of Tool 1"_s);
        QCOMPARE(bar->value(), 34);
        QCOMPARE(bar->maximum(), 151);
        QVERIFY(tool.button->geometry().contains(bar->geometry()));
        page.write(u"tool1.go"_s, "");
        QTRY_COMPARE(tool.button->text(), u"Tool 1\n151 of 151"_s);
        page.write(u"tool1.end"_s, "");
        QTRY_COMPARE(tool.button->text(), u"Tool\n1"_s);
        QVERIFY(!bar->isVisible());
    }

    void stopsOnTheButton()
    {
        const LauncherPage page({"print [1/3] a; hang"});
        RunAppData& tool = page.tool(1);
        tool.button->click();
        QTRY_COMPARE(tool.button->text(), u"Tool 1\n1 of 3"_s);
        auto& stop = controlCalled<QPushButton>(*page.holder, u"Stop Tool 1"_s);
        QVERIFY(tool.button->geometry().contains(stop.geometry()));
        // A grey button's tool can be stopped as well.
        tool.button->setEnabled(false);
        QVERIFY(stop.isEnabled());
        // Reached by Tab from its button, pressed by the space bar.
        QCOMPARE(tool.button->nextInFocusChain(), &stop);
        stop.setFocus();
        QTest::keyClick(&stop, Qt::Key_Space);
        QCOMPARE(tool.button->text(), u"Tool 1\nstopping..."_s);
        QVERIFY(!stop.isEnabled());
        QTRY_COMPARE(tool.button->text(), u"Tool\n1"_s);
        QVERIFY(!stop.isVisible());
    }

    void showsItInTheBusyWindow()
    {
        const LauncherPage page({"print-error [1/3] first.c; await $0.go; print-error [2/3] second.c; hang"},
                                "<displayoutput>text</displayoutput>");
        RunAppData& tool = page.tool(1);
        tool.button->click();
        const auto busy = [] { return qobject_cast<BusyDialog*>(QApplication::activeWindow()); };
        QTRY_VERIFY(busy());
        const auto says = [&busy](const QString& text) {
            const auto labels = busy()->findChildren<QLabel*>();
            return std::ranges::any_of(labels, [&text](const QLabel* label) { return label->text() == text; });
        };
        const auto* bar = busy()->findChild<QProgressBar*>();
        QTRY_COMPARE(bar->value(), 1);
        QTRY_VERIFY(says(u"first.c"_s));
        page.write(u"tool1.go"_s, "");
        QTRY_COMPARE(bar->text(), u"2 of 3"_s);
        QTRY_VERIFY(says(u"second.c"_s));
        controlCalled<QPushButton>(*busy(), u"&Stop"_s).click();
        QTRY_VERIFY(!tool.isRunning());
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(appRegistry->openDialogs.isEmpty());
    }

    void tellsManyFailuresInOneBox()
    {
        const LauncherPage page(QByteArrayList(14, "await $0.go; print-error reason of $0; exit 7"));
        for (int number = 1; number <= 14; ++number) {
            page.tool(number).button->click();
            page.write(u"tool%1.go"_s.arg(number), "");
        }
        QStringList texts;
        QString additions;
        QString details;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box && box->detailedText().count(u"reason of "_s) == 14) {
                texts += box->text();
                additions = box->informativeText();
                details = box->detailedText();
                box->accept();
            }
        });
        watch.start(10);
        QTRY_COMPARE_WITH_TIMEOUT(texts, QStringList{u"Process Failed [7]"_s}, 20000);
        QVERIFY2(additions.count(u"Process Failed [7]"_s) == 12, qPrintable(additions));
        QVERIFY2(additions.endsWith("... and 1 more"_L1), qPrintable(additions));
        // The next failure is a new one.
        BoxAnswers boxes({QMessageBox::Ok});
        watch.stop();
        page.tool(1).button->click();
        QTRY_COMPARE(boxes.texts, QStringList{u"Tool 1|Process Failed [7]"_s});
        QCOMPARE(boxes.details.value(0).count(u"reason of "_s), 1);
    }

    void givesUsableButtons()
    {
        const auto size = [](const QByteArray& ofPage, const QByteArray& more = {}) {
            return LauncherPage({""}, more, ofPage).tool(1).button->size();
        };
        const QByteArray tooLarge = "<buttonwidth>99999999</buttonwidth>";
        QCOMPARE(size("<buttonwidth>100</buttonwidth>"), QSize(100, 50));
        QCOMPARE(size({}, "<buttonwidth>90</buttonwidth>"), QSize(90, 50));
        QCOMPARE(size({}, "<buttonwidth>-5</buttonwidth>"), QSize(180, 50));
        QCOMPARE(size({}, tooLarge), QSize(1000, 50));
        QCOMPARE(size("<buttonwidth>-1</buttonwidth><buttonheight>-1</buttonheight>"), QSize(180, 50));
        QCOMPARE(size("<buttonwidth>x</buttonwidth><buttonheight>x</buttonheight>"), QSize(180, 50));
        QCOMPARE(size(tooLarge + "<buttonheight>99999999</buttonheight>"), QSize(1000, 1000));
        QCOMPARE(size("<horizontalspacing>-900</horizontalspacing>", "<columnspan>3</columnspan>"), QSize(540, 50));
    }

    void canBeRead_data()
    {
        const TestRows<QByteArray, QColor, Qt::LayoutDirection> row("colour", "window", "direction");
        row("usual", "", QColor(40, 40, 40), Qt::LeftToRight);
        row("dark", "navy", Qt::white, Qt::LeftToRight);
        row("neither dark nor light", "red", Qt::black, Qt::RightToLeft);
        row("grey", "#7c7c7c", QColor(40, 40, 40), Qt::RightToLeft);
    }

    // On any desktop; and the arrow beside it points the way that is read.
    void canBeRead()
    {
        const auto [colour, window, direction] =
            fetched<QByteArray, QColor, Qt::LayoutDirection>("colour", "window", "direction");
        const LauncherPage page({""}, "<colour>" + colour + "</colour><leftimage>arrow</leftimage>");
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(QPalette(window));
        QApplication::setLayoutDirection(direction);
        // Windows learn of their palette as of any event.
        QCoreApplication::processEvents();
        QPushButton& button = *page.tool(1).button;
        const double contrast = paintedContrast(button);
        button.setEnabled(false);
        const double greyContrast = paintedContrast(button);
        const QImage arrow = page.holder->findChild<QLabel*>()->pixmap().toImage();
        const QColor text = QApplication::palette().color(QPalette::WindowText);
        QApplication::setPalette(usual);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY2(contrast >= Contrast::least, qPrintable(QString::number(contrast)));
        QVERIFY2(greyContrast >= Contrast::least, qPrintable(QString::number(greyContrast)));
        QCOMPARE(arrow.pixelColor(arrow.rect().center()), text);
        // Its head is where most of its ink is.
        qsizetype ink[2] = {};
        for (int x = 0; x < arrow.width(); ++x) {
            for (int y = 0; y < arrow.height(); ++y) {
                ink[x < arrow.width() / 2 ? 0 : 1] += arrow.pixelColor(x, y).alpha() > 0 ? 1 : 0;
            }
        }
        QCOMPARE(ink[0] > ink[1], direction == Qt::LeftToRight);
    }
};

KOVRA_TEST(LauncherProgressTest)
#include "LauncherProgressTest.moc"
