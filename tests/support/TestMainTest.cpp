// SPDX-License-Identifier: MIT
#include "TestMain.h"
#include "Installation.h"
#include "TestRows.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QLabel>

#include <memory>

using namespace Qt::StringLiterals;

class TestMainTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWhatNobodyAnswers_data()
    {
        const TestRows<int, QString> row("status", "says");
        row("box", -1, u"(box): nobody answers the dialog \"Box title\": box text\n"_s);
        row("answered box", 0, u"PASS   : TestMainTest::endsWhatNobodyAnswers(answered box)"_s);
        row("file", -1, u"(file): nobody answers the dialog \"File title\": "_s);
        row("own", -1, u"(own): nobody answers the dialog \"Own title\": own %s text\n"_s);
    }

    void endsWhatNobodyAnswers()
    {
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        if (qEnvironmentVariableIsSet("OPENS_DIALOG")) {
            open(row);
            return;
        }
        QFETCH(const QString, says);
        const ProgramResult result = runProgram(QCoreApplication::applicationFilePath(),
                                                {u"-nocrashhandler"_s, u"endsWhatNobodyAnswers:"_s + row},
                                                {{u"QT_QPA_PLATFORM"_s, u"offscreen"_s}, {u"OPENS_DIALOG"_s, u"1"_s}});
        QTEST(result.status, "status");
        QVERIFY2(result.output.contains(says), qPrintable(result.output));
    }

private:
    /// Opens a dialog, as a program under test would that fails in an unexpected way.
    static void open(const QString& kind)
    {
        if (kind == "file"_L1) {
            QFileDialog(nullptr, u"File title"_s).exec();
        } else if (kind == "own"_L1) {
            QDialog dialog;
            dialog.setWindowTitle(u"Own title"_s);
            new QLabel(u"own %s text"_s, &dialog);
            dialog.exec();
        } else {
            const auto boxes = kind == "box"_L1 ? nullptr : std::make_unique<BoxAnswers>(QList{QMessageBox::Ok});
            QMessageBox::warning(nullptr, u"Box title"_s, u"box text"_s);
        }
    }
};

KOVRA_TEST(TestMainTest)
#include "TestMainTest.moc"
