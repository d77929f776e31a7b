// SPDX-License-Identifier: MIT
#include "app/OwnEnvironment.h"

#include <QSet>

namespace {

bool isFaithful(const QString& name)
{
    const QByteArray bytes = qgetenv(name.toLocal8Bit().constData());
    return QString::fromLocal8Bit(bytes).toLocal8Bit() == bytes;
}

} // namespace

// A variable of the user's that did not change keeps its bytes, whatever their encoding.
void OwnEnvironment::set(const QStringList& environment, const QStringList& before)
{
    for (const QString& entry : environment) {
        const qsizetype separator = entry.indexOf(u'=');
        if (separator <= 0 || before.contains(entry)) {
            continue;
        }
        const QByteArray name = entry.first(separator).toLocal8Bit();
        const QString old = qEnvironmentVariable(name.constData());
        const QString value = entry.sliced(separator + 1);
        // What was there before is kept as it is, and only what was added is encoded.
        const bool isExtended = !old.isEmpty() && value.startsWith(old);
        qputenv(name.constData(),
                isExtended ? qgetenv(name.constData()) + value.sliced(old.size()).toLocal8Bit() : value.toLocal8Bit());
    }
}

// The system's text of a variable may not give its bytes back, so what did not change is left alone.
QProcessEnvironment OwnEnvironment::forChild(const QStringList& environment, const QStringList& before)
{
    QProcessEnvironment inherited = QProcessEnvironment::systemEnvironment();
    QSet<QString> names;
    for (const QString& entry : environment) {
        const qsizetype separator = entry.indexOf(u'=');
        names.insert(entry.first(qMax<qsizetype>(0, separator)));
        // A value that the text does not give back stays, as the program's own environment has it.
        if (separator > 0 && !before.contains(entry) && isFaithful(entry.first(separator))) {
            inherited.insert(entry.first(separator), entry.sliced(separator + 1));
        }
    }
    // A name that came out in another letter case.
    const QStringList inheritedNames = inherited.keys();
    for (const QString& name : inheritedNames) {
        if (!names.contains(name)) {
            inherited.remove(name);
        }
    }
    return inherited;
}
