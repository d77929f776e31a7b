// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// In the order of their weight.
enum class Severity { Debug, Information, Portability, Performance, Style, Warning, Error };

/// "warning" for Severity::Warning; all are lower case.
const char* severityName(Severity severity);
/// False when no severity has this name.
bool readSeverity(QStringView name, Severity& severity);

/// A message of the analyser.
struct Finding
{
    QString file;
    int line = 0;
    int column = 0;
    Severity severity = Severity::Error;
    QString text;
    QString id;

    bool operator==(const Finding&) const = default;

    /// file:line:column: severity: text [id]
    QString toLine() const;
    /// False when the line is not of this form.
    bool fromLine(const QString& line);
    /// The analyser gives up on a source with such a message, so what follows it was not looked at.
    bool isGivingUp() const;
    /// This system's own message about a run that did not end well; the next run tries again.
    bool isFailedRun() const;
};

size_t qHash(const Finding& finding, size_t seed = 0);

/// The ids of this system's own messages about sources that could not be analysed.
namespace FailedRun {

inline constexpr char crashed[] = "analyserCrashed";
inline constexpr char timedOut[] = "analyserTimedOut";
inline constexpr char failed[] = "analyserFailed";
inline constexpr char missing[] = "missingSource";

} // namespace FailedRun
