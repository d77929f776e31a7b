// SPDX-License-Identifier: MIT
// From nothing to the first painted page, against a bare QWizard with six empty pages.
#include "app/AppRegistry.h"
#include "Ratio.h"
#include "wizard/ApplicationWindow.h"

#include <QApplication>
#include <QTemporaryDir>

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

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "TMPDIR"}) {
        qputenv(name, home.path().toLocal8Bit());
    }
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    const QString definitions = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"settings.xml"_s;
    const auto ours = [&] {
        AppRegistry registry;
        appRegistry = &registry;
        registry.Init(&application, {u"ProjectCreation"_s, u"-file"_s, definitions}, u"t"_s, 650, 430, {});
        ApplicationWindow window(u"t"_s, u"projectCreation.htm"_s, {u"ProjectCreation"_s});
        showUntilPainted(window);
    };
    const auto bare = [] {
        QWizard wizard;
        for (int i = 0; i < 6; ++i) {
            wizard.setPage(i, new QWizardPage);
        }
        wizard.resize(650, 430);
        showUntilPainted(wizard);
    };
    return Ratio::report("start to first painted page", 1.5, ours, bare);
}
