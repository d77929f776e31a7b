// SPDX-License-Identifier: MIT
#include "MessageCatalogue.h"
#include "AnalyserRun.h"

#include <QProcess>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

QHash<QString, MessageKind> messageCatalogue()
{
    QHash<QString, MessageKind> kinds;
    QProcess analyser;
    analyser.start(QLatin1StringView(Analyser::program), {u"--errorlist"_s});
    if (!analyser.waitForFinished()) {
        return kinds;
    }
    QXmlStreamReader xml(analyser.readAllStandardOutput());
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "error"_L1) {
            const QXmlStreamAttributes values = xml.attributes();
            kinds.insert(values.value("id"_L1).toString(),
                         {values.value("msg"_L1).toString(), values.value("verbose"_L1).toString(),
                          values.value("cwe"_L1).toInt()});
        }
    }
    return kinds;
}
