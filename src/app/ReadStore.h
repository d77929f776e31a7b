// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

#ifdef Q_OS_WIN

/// A store that is only read: the key of the registry that QSettings makes for it goes again if it was not there
/// before.
class ReadStore : public QSettings
{
public:
    ReadStore(Format format, Scope scope, const QString& organisation, const QString& application);
    ~ReadStore() override;
    Q_DISABLE_COPY_MOVE(ReadStore)

private:
    ReadStore(const QStringList& missingKeys, Format format, Scope scope, const QString& organisation,
              const QString& application);

    /// From the inner to the outer.
    QStringList missing;
};

#else

using ReadStore = QSettings;

#endif
