// SPDX-License-Identifier: MIT
// Opening a page of 60 launchers whose programs must be looked up, against the same page with absolute paths.
#include "app/AppRegistry.h"
#include "launchers/PageData.h"
#include "launchers/PageReader.h"
#include "process/ExecutableLookup.h"
#include "Ratio.h"
#include "Sandbox.h"

#include <QApplication>
#include <QGridLayout>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

void open(const QByteArray& program)
{
    KOVRASettingsFile settings;
    QByteArray text = "<s><applicationPage>";
    for (int i = 0; i < 60; ++i) {
        text += "<application name='n'><exe>" + program + "</exe><colour>lightblue</colour></application>";
    }
    settings.readDocument(text + "</applicationPage></s>", {.readPage = readLauncherPage});
    QWidget page;
    settings.applicationPages.at(0)->BuildButtons(new QGridLayout(&page));
    page.show();
    QApplication::processEvents();
}

} // namespace

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    const QApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    const QByteArray absolute = FindExecutable(u"cmake"_s, {}).toLocal8Bit();
    return Ratio::report(
        "page of 60 launchers by name", 1.5, [] { open("cmake"); }, [&] { open(absolute); }, 15);
}
