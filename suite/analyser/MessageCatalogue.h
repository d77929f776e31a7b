// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

/// What the analyser tells about its messages in general.
struct MessageKind
{
    QString description;
    QString details;
    /// Number of the weakness in the common list; 0: none.
    int weakness = 0;
};

/// All messages that the installed analyser knows, by id; empty when it can not be asked.
QHash<QString, MessageKind> messageCatalogue();
