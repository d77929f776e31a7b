// SPDX-License-Identifier: MIT
#include "XmlElement.h"
#include "../Failure.h"
#include "../SourceLists.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

// What is nested deeper would exhaust the stack of everything that walks it.
constexpr std::size_t deepest = 100;

class TreeReader
{
public:
    TreeReader(const QByteArray& contents, const QString& name)
        : reader(contents)
        , path(name)
    {
    }

    XmlElement read()
    {
        while (!reader.atEnd()) {
            switch (reader.readNext()) {
            case QXmlStreamReader::StartElement:
                begin();
                break;
            case QXmlStreamReader::Characters:
                if (!open.empty()) {
                    open.back().text += reader.text();
                }
                break;
            case QXmlStreamReader::EndElement:
                end();
                break;
            case QXmlStreamReader::DTD:
                throw failure(u"a document type declaration has no place here. Take it out"_s);
            default:
                break;
            }
        }
        if (reader.hasError()) {
            QString reason = reader.errorString();
            if (reason.endsWith(u'.')) {
                reason.chop(1);
            }
            throw failure(reason + u". Mend the file or write it again"_s);
        }
        return std::move(root);
    }

private:
    void begin()
    {
        if (open.size() == deepest) {
            throw failure(u"elements are nested too deeply"_s);
        }
        XmlElement element{.name = reader.name().toString(),
                           .attributes = {},
                           .text = {},
                           .children = {},
                           .line = reader.lineNumber()};
        const QXmlStreamAttributes given = reader.attributes();
        for (const QXmlStreamAttribute& attribute : given) {
            element.attributes.emplaceBack(attribute.name().toString(), attribute.value().toString());
        }
        open.push_back(std::move(element));
    }

    void end()
    {
        XmlElement element = std::move(open.back());
        open.pop_back();
        if (open.empty()) {
            root = std::move(element);
        } else {
            open.back().children.push_back(std::move(element));
        }
    }

    Failure failure(const QString& reason) const
    {
        return {u"%1:%2:%3: %4."_s.arg(path).arg(reader.lineNumber()).arg(reader.columnNumber() + 1).arg(reason)};
    }

    QXmlStreamReader reader;
    QString path;
    std::vector<XmlElement> open;
    XmlElement root;
};

} // namespace

QString XmlElement::attribute(const QString& wanted) const
{
    for (const auto& [key, value] : attributes) {
        if (key == wanted) {
            return value;
        }
    }
    return {};
}

const XmlElement& XmlFiles::load(const QString& path, const QString& what)
{
    std::shared_ptr<const XmlElement>& element = files[path];
    if (!element) {
        QFile file(path);
        openText(file, what);
        element = std::make_shared<XmlElement>(TreeReader(file.readAll(), path).read());
    }
    return *element;
}
