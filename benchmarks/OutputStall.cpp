// SPDX-License-Identifier: MIT
// The longest time the window does not answer while a conversion program prints 1,000,000 lines.
#include "app/AppRegistry.h"
#include "Ratio.h"
#include "Sandbox.h"
#include "wizard/ActionPage.h"
#include "wizard/ApplicationWindow.h"
#include "wizard/PageSequence.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

long residentKilobytes()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const qsizetype at = text.indexOf("VmHWM:");
    return text.mid(at + 6, 12).trimmed().split(' ').first().toLong();
}

} // namespace

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    AppRegistry registry;
    appRegistry = &registry;
    ProjectCreatorData& creator =
        *registry.definitions.projectCreators.emplace_back(std::make_unique<ProjectCreatorData>());
    creator.name = u"Flood"_s;
    creator.exe = u"sh"_s;
    creator.exeArgs = {
        u"-c"_s, u"seq -f 'line %.0f of the output of a talkative conversion program' 1 1000000; echo x > \"$0\""_s,
        u"%PF"_s};
    creator.inputData.emplace_back(std::make_unique<ArgumentDefinition>());
    registry.windowSize = QSize(650, 430);
    ApplicationWindow window(u"Flood"_s, {}, {u"flood"_s});
    window.projectCreator = &creator;
    window.fileDir = sandbox.folder.path();
    window.fileName = u"p"_s;
    window.setStartId(ActionPageId);

    QElapsedTimer clock;
    qint64 last = 0;
    qint64 longest = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, &pulse, [&] {
        const qint64 now = clock.elapsed();
        longest = std::max(longest, now - last);
        last = now;
    });
    window.show();
    QApplication::processEvents();
    const long before = residentKilobytes();
    clock.start();
    pulse.start(1);
    auto* page = qobject_cast<ActionPage*>(window.page(ActionPageId));
    QObject::connect(page, &QWizardPage::completeChanged, &application, [page, &application] {
        if (page->isComplete()) {
            QTimer::singleShot(200, &application, &QCoreApplication::quit);
        }
    });
    QApplication::exec();
    const bool kept = longest <= 50;
    std::printf("longest stall under 1000000 lines: %lld ms (at most 50), whole run %lld ms, memory +%ld KiB %s\n",
                static_cast<long long>(longest), static_cast<long long>(clock.elapsed()), residentKilobytes() - before,
                kept ? "ok" : "MISSED");
    return kept ? 0 : 1;
}
