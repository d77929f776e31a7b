// SPDX-License-Identifier: MIT
// The longest time the window does not answer while a text of 50 MB is shown.
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "Sandbox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    QApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    const QString text = u"one line of a long report about a large code base\n"_s.repeated(1'000'000);
    DisplayDialog dialog(registry, u"Report"_s, DisplayDialog::Text, 600, 600);
    dialog.show();
    QApplication::processEvents();

    QElapsedTimer clock;
    clock.start();
    qint64 last = 0;
    qint64 longest = 0;
    QTimer pulse;
    const auto* view = dialog.findChild<QPlainTextEdit*>();
    QObject::connect(&pulse, &QTimer::timeout, [&] {
        longest = std::max(longest, clock.elapsed() - last);
        last = clock.elapsed();
        if (view->document()->characterCount() > text.size()) {
            QCoreApplication::quit();
        }
    });
    dialog.SetText(text);
    longest = clock.elapsed();
    last = longest;
    pulse.start(1);
    QApplication::exec();
    const bool kept = longest <= 200;
    std::printf("longest stall while showing 50 MB: %lld ms (at most 200), complete after %lld ms %s\n",
                static_cast<long long>(longest), static_cast<long long>(clock.elapsed()), kept ? "ok" : "MISSED");
    return kept ? 0 : 1;
}
