// SPDX-License-Identifier: MIT
// The longest time the window does not answer while long texts are shown: 50 MB of lines, and a line of 100 MB.
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "Sandbox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 limitMs = 50;

int report(AppRegistry& registry, const char* name, const QString& text)
{
    DisplayDialog dialog(registry, u"Report"_s, DisplayDialog::Text, 600, 600);
    dialog.show();
    QApplication::processEvents();

    QElapsedTimer clock;
    clock.start();
    qint64 last = 0;
    qint64 longest = 0;
    QTimer pulse;
    const auto& document = *dialog.findChild<QPlainTextEdit*>()->document();
    QObject::connect(&pulse, &QTimer::timeout, &pulse, [&] {
        longest = std::max(longest, clock.elapsed() - last);
        last = clock.elapsed();
        if (document.characterCount() > text.size() || document.lastBlock().text().contains("only its beginning"_L1)) {
            QCoreApplication::quit();
        }
    });
    dialog.SetText(text);
    longest = clock.elapsed();
    last = longest;
    pulse.start(1);
    QApplication::exec();
    const bool kept = longest <= limitMs;
    std::printf("longest stall while showing %s: %lld ms (at most %lld), complete after %lld ms %s\n", name,
                static_cast<long long>(longest), static_cast<long long>(limitMs),
                static_cast<long long>(clock.elapsed()), kept ? "ok" : "MISSED");
    std::fflush(stdout);
    return kept ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    QApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    int missed = report(registry, "50 MB of lines",
                        u"one line of a long report about a large code base\n"_s.repeated(1'000'000));
    missed += report(registry, "a line of 100 MB", u"x"_s.repeated(100'000'000));
    missed += report(registry, "1,000,000 empty lines", u"\n"_s.repeated(1'000'000));
    return missed;
}
