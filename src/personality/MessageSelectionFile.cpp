// SPDX-License-Identifier: MIT
#include "personality/MessageSelectionFile.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

Result<void> writeMessageSelectionFile(const QStringList& messages, const QString& fileName)
{
    if (messages.isEmpty() || fileName.isEmpty()) {
        return {};
    }
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return {file.errorString()};
    }
    const QString rule(32, u'*');
    QTextStream stream(&file);
    stream.setEncoding(QStringConverter::System);
    stream << rule << "\n* REMOVE ANY PREVIOUS SETTINGS *\n"
           << rule << "\n-forgetall only\n-forgetall nomsg\n-forgetall su\n"
           << rule << '\n'
           << rule << "\n-only ";
    for (qsizetype i = 0; i < messages.size(); ++i) {
        stream << messages[i];
        if (i + 1 < messages.size()) {
            // The first line holds eleven, the others ten.
            stream << (i > 0 && i % 10 == 0 ? "\n-only " : ",");
        }
    }
    stream << '\n';
    stream.flush();
    const bool isComplete = file.flush() && file.error() == QFile::NoError;
    return {isComplete ? QString() : file.errorString()};
}
