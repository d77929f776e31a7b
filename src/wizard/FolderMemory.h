// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QSettings;

/// The folder in which something was chosen last for one field, kept with the wizard's other values.
class FolderMemory : public QObject
{
    Q_OBJECT

public:
    /// Fields of one name share it.
    explicit FolderMemory(const QString& field);

    void choose(const QString& folder) { chosen = folder; }
    /// Empty when there is none, or it is not there any more.
    QString last() const;

private:
    void store(QSettings* settings) const;

    QString key;
    QString chosen;
};
