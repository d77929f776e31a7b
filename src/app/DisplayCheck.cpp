// SPDX-License-Identifier: MIT
#include "app/DisplayCheck.h"

#include <QApplication>
#include <QMutex>
#include <QString>

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
std::vector<Message> heldBack;

void holdBack(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtFatalMsg) {
        heldBack.push_back({type, text});
        return;
    }
    const QString reason = heldBack.empty() ? text : heldBack.front().text;
    const QByteArray display = qgetenv("DISPLAY");
    std::fprintf(
        stderr, "ProjectCreation: no display to open a window on (%s; DISPLAY is %s). Start it in a desktop session.\n",
        qUtf8Printable(reason.simplified()), display.isEmpty() ? "not set" : display.constData());
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

void replay()
{
    for (const Message& message : std::exchange(heldBack, {})) {
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
