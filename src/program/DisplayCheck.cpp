// SPDX-License-Identifier: MIT
#include "program/DisplayCheck.h"
#include "app/Translations.h"

#include <QApplication>
#include <QString>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

struct Message
{
    QtMsgType type;
    QString text;
};

// Qt tells of a missing display in several messages and then aborts; they are held back until it is known which.
std::vector<Message>& heldBack()
{
    static std::vector<Message> messages;
    return messages;
}

// There is no application yet that could hold a catalogue.
QString translated(const char* text)
{
    QTranslator translator;
    Translations::load(translator, Translations::userLocale());
    const QString translation = translator.translate("DisplayCheck", text);
    return translation.isEmpty() ? QString::fromUtf8(text) : translation;
}

void holdBack(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtFatalMsg) {
        heldBack().push_back({type, text});
        return;
    }
    const QString reason = heldBack().empty() ? text : heldBack().front().text;
    const QString display = qEnvironmentVariable("DISPLAY");
    const QString line =
        translated(QT_TRANSLATE_NOOP("DisplayCheck", "no display to open a window on (%1; DISPLAY is %2). Start it in "
                                                     "a desktop session, or convert without a window: -batch -help "
                                                     "tells how."))
            .arg(reason.simplified(),
                 display.isEmpty() ? translated(QT_TRANSLATE_NOOP("DisplayCheck", "not set")) : display);
    std::fprintf(stderr, "ProjectCreation: %s\n", qUtf8Printable(line));
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

void replay()
{
    for (const Message& message : std::exchange(heldBack(), {})) {
        if (message.type == QtDebugMsg || message.type == QtInfoMsg) {
            qDebug("%s", qUtf8Printable(message.text));
        } else {
            qWarning("%s", qUtf8Printable(message.text));
        }
    }
}

} // namespace

std::unique_ptr<QApplication> DisplayCheck::createApplication(int& argc, char** argv)
{
    const QtMessageHandler previous = qInstallMessageHandler(holdBack);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(previous);
    replay();
    return application;
}
