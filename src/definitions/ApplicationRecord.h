// SPDX-License-Identifier: MIT
#pragma once

#include "definitions/TextExpander.h"

#include <QString>
#include <QStringList>

class QXmlStreamReader;

/// What runs when a launcher is started, without its button.
struct ApplicationRecord
{
    /// As on the button; may hold line breaks.
    QString name;
    QString cExe;
    QString cppExe;
    QStringList exeargs;
    bool runFromExeDir = false;
    /// Programs that must be there as well.
    QStringList dependency;
    /// Where the element begins in the definitions file.
    qint64 line = 0;

    /// The name in one line.
    QString title() const { return QString(name).replace(u'\n', u' '); }
};

/// Takes what the start element of an application says.
void startApplication(QXmlStreamReader& xml, ApplicationRecord& application);

/// Reads a child of an application; false, with nothing read, when it is none of the record's.
bool readApplicationItem(QXmlStreamReader& xml, ApplicationRecord& application, QStringView name,
                         const TextExpander& expand);
