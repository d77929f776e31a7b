// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// A folder of settings files for one input. It is new each time: QSettings keeps what it has read of a path.
class StoreFolder
{
public:
    /// The text of each application's store.
    explicit StoreFolder(const QMap<QString, QByteArray>& stores);
    ~StoreFolder();
    StoreFolder(const StoreFolder&) = delete;
    StoreFolder& operator=(const StoreFolder&) = delete;

    /// Whether a store holds values in Qt's binary form other than the empty map. Qt takes the counts of its lists on
    /// trust and ends the process when there is no memory for them.
    static bool holdsBinaryValues(const QByteArray& store);

private:
    const QString name;
};
