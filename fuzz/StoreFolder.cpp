// SPDX-License-Identifier: MIT
#include "StoreFolder.h"
#include "Sandbox.h"

#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

QString newName()
{
    static qint64 number = 0;
    return u"stores%1"_s.arg(++number);
}

} // namespace

StoreFolder::StoreFolder(const QMap<QString, QByteArray>& stores)
    : name(newName())
{
    for (auto store = stores.cbegin(); store != stores.cend(); ++store) {
        Sandbox::write(u"%1/user/KOVRA/%2.conf"_s.arg(name, store.key()), store.value());
    }
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Sandbox::path(name + u"/user"_s));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, Sandbox::path(name + u"/system"_s));
}

StoreFolder::~StoreFolder()
{
    QDir(Sandbox::path(name)).removeRecursively();
}

bool StoreFolder::holdsBinaryValues(const QByteArray& store)
{
    return QByteArray(store).replace("@Variant(\\0\\0\\0\\b\\0\\0\\0\\0)", "").contains("Variant(");
}
