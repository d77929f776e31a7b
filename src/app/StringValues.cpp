// SPDX-License-Identifier: MIT
#include "app/StringValues.h"
#include "app/AppRegistry.h"
#include "definitions/PathHelpers.h"
#include "definitions/XmlBounds.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

void StringValues::ReadFile(const QString& name)
{
    const QString located = LocateFile(name, appRegistry->values.xmlArea);
    appRegistry->Trace(u"StringValues::ReadFile="_s, located);
    QFile file(located);
    if (QFileInfo(located).isFile() && file.open(QIODevice::ReadOnly)) {
        readDocument(file.readAll());
    }
}

void StringValues::readDocument(const QByteArray& document)
{
    const QHash<QString, QString StringValues::*> texts = {
        {u"wendleHelpDir"_s, &StringValues::helpDir},
        {u"wendleHelpFile"_s, &StringValues::helpFile},
        {u"helpProfileStr"_s, &StringValues::helpProfileStr},
        {u"installerFile"_s, &StringValues::installerFile},
        {u"setupFileReplaceStr"_s, &StringValues::setupFileReplaceStr},
        {u"issFilename"_s, &StringValues::issFilename},
        {u"tarFilename"_s, &StringValues::tarFilename},
        {u"unzipFile"_s, &StringValues::unzipFile},
    };
    const QHash<QString, QStringList StringValues::*> lists = {
        {u"zipFileExts"_s, &StringValues::zipFileExts},
        {u"tarFileExts"_s, &StringValues::tarFileExts},
    };
    if (!XmlBounds::check(document).reason.isEmpty()) {
        return;
    }
    QXmlStreamReader xml(document);
    while (!xml.atEnd() && !xml.hasError()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QString name = xml.name().toString();
        const auto text = texts.constFind(name);
        const auto list = lists.constFind(name);
        if (text == texts.cend() && list == lists.cend()) {
            continue;
        }
        const QString value = xml.readElementText();
        if (xml.hasError()) {
            break;
        }
        if (text != texts.cend()) {
            this->*text.value() = value;
        } else {
            this->*list.value() = {value};
        }
    }
}
