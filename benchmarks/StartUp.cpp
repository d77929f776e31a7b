// SPDX-License-Identifier: MIT
// From nothing to the first painted page, against a bare QWizard with six empty pages.
#include "app/AppRegistry.h"
#include "launchers/PageReader.h"
#include "Ratio.h"
#include "Sandbox.h"
#include "wizard/ApplicationWindow.h"

#include <QApplication>
#include <QProcess>

#include <cstdio>

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

void showUntilPainted(QWizard& wizard)
{
    PaintWatch watch;
    wizard.show();
    wizard.currentPage()->installEventFilter(&watch);
    while (!watch.painted) {
        QApplication::processEvents();
    }
}

int startWizard(int argc, char** argv)
{
    QApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    registry.readPage = readLauncherPage;
    registry.Init(&application, {u"ProjectCreation"_s, u"-file"_s, QString::fromLocal8Bit(argv[2])}, u"t"_s, 650, 430,
                  {});
    ApplicationWindow window(u"t"_s, u"projectCreation.htm"_s, {u"ProjectCreation"_s});
    showUntilPainted(window);
    return 0;
}

int startBareWizard(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWizard wizard;
    for (int i = 0; i < 6; ++i) {
        wizard.setPage(i, new QWizardPage);
    }
    wizard.resize(650, 430);
    showUntilPainted(wizard);
    return 0;
}

} // namespace

// Both sides are processes of their own: starting is what is measured, with all libraries.
int main(int argc, char** argv)
{
    if (argc > 2) {
        return qstrcmp(argv[1], "bare") == 0 ? startBareWizard(argc, argv) : startWizard(argc, argv);
    }
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_start_up settings.xml\n");
        return 2;
    }
    const Sandbox sandbox;
    const QString self = QString::fromLocal8Bit(argv[0]);
    const QString definitions = QString::fromLocal8Bit(argv[1]);
    bool started = true;
    const auto start = [&](const QString& side) {
        started = started && QProcess::execute(self, {side, definitions}) == 0;
    };
    const int result = Ratio::report(
        "start to first painted page", 1.5, [&] { start(u"ours"_s); }, [&] { start(u"bare"_s); }, 11);
    return started ? result : 1;
}
