// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QTemporaryDir& folder()
{
    static QTemporaryDir temporary;
    return temporary;
}

// Qt's warnings about odd input would be most of what the fuzzer does.
void beSilent(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

} // namespace

QString Sandbox::path(const QString& name)
{
    return folder().filePath(name);
}

QString Sandbox::write(const QString& name, const QByteArray& contents)
{
    const QString path = Sandbox::path(name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush(),
            "an input can not be written");
    return path;
}

void Sandbox::require(bool claim, const char* reason)
{
    if (!claim) {
        std::fprintf(stderr, "wrong: %s\n", reason);
        std::abort();
    }
}

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    Sandbox::require(folder().isValid(), "no temporary folder");
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "TMPDIR"}) {
        const QString place = Sandbox::path(QString::fromLatin1(name).toLower());
        QDir().mkpath(place);
        qputenv(name, QFile::encodeName(place));
    }
    for (const char* name : {"ORVCPATH", "ORVCPPPATH", "ORVCPERSONALITIES", "ORVCPPPERSONALITIES"}) {
        qunsetenv(name);
    }
    QDir::setCurrent(folder().path());
    qInstallMessageHandler(beSilent);
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const QCoreApplication application(count, arguments);
    return 0;
}
