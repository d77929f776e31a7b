// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"

#include <QSet>
#include <QStringList>

/// Which messages a message personality shows. Its options, in this system's meaning:
///   -only IDS           show just these; several lines add up
///   -nomsg IDS          never show these
///   -forgetall only|nomsg|su   drop what earlier files said with that option ("su" has nothing to drop)
///   -threshold N        1: everything, 2: from portability on, 3: from warnings on, 4: errors
///   *orv errors=IDS     show these as errors
/// IDS are separated by commas; each is a message id, a severity, or the beginning of an id followed by "*".
class MessageSelection
{
public:
    /// Takes one option; false when it does not concern messages.
    bool take(const QString& option, const QString& value);
    /// *orv errors=
    void takeErrors(const QString& ids);

    /// True when the message is to be shown; one that says why a source was not analysed always is.
    bool shows(const Finding& finding) const;
    /// The message with the severity that it is shown with.
    Finding shown(Finding finding) const;

private:
    QStringList only;
    QStringList hidden;
    QStringList errors;
    int threshold = 1;
};
