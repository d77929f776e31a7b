// SPDX-License-Identifier: MIT
// Find over 1,000,000 files in the dialog, against `find DIR -name PATTERN`.
#include "dialogs/FindDialog.h"
#include "Ratio.h"
#include "Sandbox.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    const QApplication application(argc, argv);
    const QString tree = sandbox.path(u"tree"_s);
    const int files = Ratio::sizeFrom(argc, argv, 1'000'000);
    for (int i = 0; i < files; ++i) {
        const QString folder = tree + u"/part%1/module%2"_s.arg(i % 20).arg(i % 1000);
        if (i < 1000) {
            QDir().mkpath(folder);
        }
        QFile file(folder + u"/file%1.%2"_s.arg(i).arg(i % 2 == 0 ? u"c"_s : u"h"_s));
        if (!file.open(QIODevice::WriteOnly)) {
            return 1;
        }
    }
    FindDialog dialog{QString()};
    dialog.Setup(u"Find"_s, u"*.c"_s);
    dialog.findChild<QLineEdit*>()->setText(tree);
    dialog.show();
    qint64 found = 0;
    const auto bare = [&] {
        QProcess find;
        find.start(u"find"_s, {tree, u"-name"_s, u"*.c"_s});
        find.waitForFinished(-1);
        found = find.readAllStandardOutput().count('\n');
    };
    const QByteArray name = "find over " + QByteArray::number(files) + " files";
    const auto ours = [&] { dialog.findButtonClicked(); };
    const long bytes = Ratio::bytesOf(ours);
    const Ratio::Outcome outcome = Ratio::measure(name.constData(), 1.25, ours, bare);
    Ratio::reportCost(files, outcome, bytes);
    return found == files / 2 && dialog.findChild<QListWidget*>()->count() == found ? outcome.missed : 1;
}
