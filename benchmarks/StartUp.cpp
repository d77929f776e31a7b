// SPDX-License-Identifier: MIT
// From nothing to the first painted page, against a bare QWizard with six empty pages; and the memory that it takes.
#include "app/AppRegistry.h"
#include "launchers/PageReader.h"
#include "Ratio.h"
#include "Sandbox.h"
#include "wizard/ApplicationWindow.h"

#include <QApplication>
#include <QProcess>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

class PaintWatch : public QObject
{
public:
    bool painted = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted |= event->type() == QEvent::Paint;
        return false;
    }
};

// Ends the process when the page is painted: what comes after is no part of a start.
[[noreturn]] void showUntilPainted(QWizard& wizard)
{
    PaintWatch watch;
    wizard.show();
    wizard.currentPage()->installEventFilter(&watch);
    while (!watch.painted) {
        QApplication::processEvents();
    }
    std::printf("%ld\n", Ratio::residentBytes());
    std::fflush(stdout);
    std::_Exit(0);
}

[[noreturn]] void startWizard(int argc, char** argv)
{
    QApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    registry.readPage = readLauncherPage;
    registry.Init(&application, {u"ProjectCreation"_s, u"-file"_s, QString::fromLocal8Bit(argv[2])}, u"t"_s, 650, 430,
                  {});
    ApplicationWindow window(u"t"_s, u"projectCreation.htm"_s, {u"ProjectCreation"_s});
    showUntilPainted(window);
}

[[noreturn]] void startBareWizard(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWizard wizard;
    for (int i = 0; i < 6; ++i) {
        wizard.setPage(i, new QWizardPage);
    }
    wizard.resize(650, 430);
    showUntilPainted(wizard);
}

// Both sides are processes of their own: starting is what is measured, with all libraries.
class Starts
{
public:
    Starts(const char* self, const char* settings)
        : program(QString::fromLocal8Bit(self))
        , definitions(QString::fromLocal8Bit(settings))
    {
    }

    /// The memory in use when the page was painted, in MiB; 0 when it did not come to that.
    double run(const QString& side)
    {
        QProcess process;
        process.start(program, {side, definitions});
        process.waitForFinished(-1);
        const QByteArray bytes = process.readAllStandardOutput();
        haveWorked = haveWorked && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        return double(bytes.trimmed().toLongLong()) / (1 << 20);
    }

    bool haveWorked = true;

private:
    QString program;
    QString definitions;
};

int reportMemory(Starts& starts)
{
    constexpr double mostMiB = 40;
    const double ours = starts.run(u"ours"_s);
    const double bare = starts.run(u"bare"_s);
    const bool kept = ours > 0 && ours <= mostMiB;
    std::printf("memory of the window after its start: %.1f MiB (at most %.0f), of a bare wizard %.1f MiB %s\n", ours,
                mostMiB, bare, kept ? "ok" : "MISSED");
    return kept ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2) {
        qstrcmp(argv[1], "bare") == 0 ? startBareWizard(argc, argv) : startWizard(argc, argv);
    }
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_start_up settings.xml\n");
        return 2;
    }
    const Sandbox sandbox;
    Starts starts(argv[0], argv[1]);
    int missed = Ratio::report(
        "start to first painted page", 1.25, [&] { starts.run(u"ours"_s); }, [&] { starts.run(u"bare"_s); }, 41);
    missed += reportMemory(starts);
    return starts.haveWorked ? missed : 1;
}
