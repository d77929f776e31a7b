// SPDX-License-Identifier: MIT
#include "SarifReport.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"
#include "MessageCatalogue.h"
#include "Reports.h"

#include <QCryptographicHash>
#include <QHash>
#include <QStringList>
#include <QUrl>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const char* levelOf(Severity severity)
{
    return severity == Severity::Error ? "error" : severity == Severity::Warning ? "warning" : "note";
}

/// What is told of the run, not of a place in the code.
struct Notification
{
    const char* level;
    QString text;
    QStringList files;
};

/// Writes objects whose text is ours and values that come from anywhere.
class SarifWriter
{
public:
    SarifWriter(const AnalysisPlan& wholePlan, const AnalysisResults& allFindings)
        : plan(wholePlan)
        , findings(allFindings)
    {
    }

    QByteArray write()
    {
        object([this] {
            member("$schema", "https://json.schemastore.org/sarif-2.1.0.json");
            member("version", "2.1.0");
            key("runs");
            json.StartArray();
            object([this] { writeRun(); });
            json.EndArray();
        });
        return {buffer.GetString(), qsizetype(buffer.GetSize())};
    }

private:
    void key(const char* name) { json.Key(name); }
    void string(const QByteArray& text) { json.String(text.constData(), rapidjson::SizeType(text.size())); }

    void member(const char* name, const char* value)
    {
        key(name);
        json.String(value);
    }

    void member(const char* name, const QString& value)
    {
        key(name);
        string(value.toUtf8());
    }

    void member(const char* name, int value)
    {
        key(name);
        json.Int(value);
    }

    template <typename Fill>
    void object(Fill&& fill)
    {
        json.StartObject();
        fill();
        json.EndObject();
    }

    template <typename Fill>
    void object(const char* name, Fill&& fill)
    {
        key(name);
        object(fill);
    }

    template <typename Items, typename Fill>
    void array(const char* name, const Items& items, Fill&& fill)
    {
        key(name);
        json.StartArray();
        for (const auto& item : items) {
            object([&] { fill(item); });
        }
        json.EndArray();
    }

    void writeRun()
    {
        object("tool", [this] { object("driver", [this] { writeDriver(); }); });
        array("invocations", QList<int>{0}, [this](int) { writeInvocation(); });
        if (!plan.sourceFolder.isEmpty()) {
            object("originalUriBaseIds", [this] {
                object("SRCROOT", [this] {
                    member("uri", QString::fromLatin1(QUrl::fromLocalFile(plan.sourceFolder + u'/').toEncoded()));
                });
            });
        }
        member("columnKind", "utf16CodeUnits");
        array("results", findings.findings, [this](const SeenFinding& seen) { writeResult(seen); });
    }

    void writeDriver()
    {
        member("name", "Cppcheck");
        const QString version = plan.lastAnalysis.section(u' ', -1);
        if (!version.isEmpty()) {
            member("version", version);
        }
        member("informationUri", "https://cppcheck.sourceforge.io");
        QStringList ids;
        for (const SeenFinding& seen : findings.findings) {
            if (!ruleIndex.contains(seen.finding.id)) {
                ruleIndex.insert(seen.finding.id, int(ids.size()));
                ids += seen.finding.id;
            }
        }
        const QHash<QString, MessageKind> catalogue = messageCatalogue();
        array("rules", ids, [&](const QString& id) { writeRule(id, catalogue.value(id)); });
    }

    void writeRule(const QString& id, const MessageKind& kind)
    {
        member("id", id);
        if (!kind.description.isEmpty()) {
            object("shortDescription", [&] { member("text", kind.description); });
            object("fullDescription", [&] { member("text", kind.details); });
        }
        if (kind.weakness > 0) {
            object("properties", [&] {
                key("tags");
                json.StartArray();
                string("external/cwe/cwe-" + QByteArray::number(kind.weakness));
                json.EndArray();
            });
        }
    }

    void writeInvocation()
    {
        key("executionSuccessful");
        json.Bool(findings.notAnalysed.empty());
        std::vector<Notification> notifications;
        for (const NotAnalysed& source : findings.notAnalysed) {
            notifications.push_back({"error", u"Not analysed: "_s + source.reason, {source.source}});
        }
        if (!findings.unreadHeaders.empty()) {
            notifications.push_back({"warning", Reports::unreadHeaders(findings), {}});
        }
        array("toolExecutionNotifications", notifications, [this](const Notification& notification) {
            member("level", notification.level);
            object("message", [&] { member("text", notification.text); });
            array("locations", notification.files, [&](const QString& file) { writePlace(file, 0, 0); });
        });
    }

    void writeResult(const SeenFinding& seen)
    {
        const Finding& finding = seen.finding;
        member("ruleId", finding.id);
        member("ruleIndex", ruleIndex.value(finding.id));
        member("level", levelOf(finding.severity));
        object("message", [&] { member("text", finding.text.isEmpty() ? finding.id : finding.text); });
        array("locations", QList<int>{0}, [&](int) { writePlace(finding.file, finding.line, finding.column); });
        object("partialFingerprints", [&] { member("orvFinding/v1", fingerprint(finding)); });
        object("properties", [&] {
            member("severity", severityName(finding.severity));
            member("sources", seen.sources);
        });
    }

    void writePlace(const QString& file, int line, int column)
    {
        object("physicalLocation", [&] {
            object("artifactLocation", [&] {
                const QString shown = plan.shownName(file);
                const QUrl url = shown == file ? QUrl::fromLocalFile(file) : relativeUrl(shown);
                member("uri", QString::fromLatin1(url.toEncoded()));
                if (shown != file) {
                    member("uriBaseId", "SRCROOT");
                }
            });
            if (line > 0) {
                object("region", [&] {
                    member("startLine", line);
                    if (column > 0) {
                        member("startColumn", column);
                    }
                });
            }
        });
    }

    static QUrl relativeUrl(const QString& path)
    {
        QUrl url;
        // A colon in the first part of a relative name would begin a scheme.
        url.setPath(path.section(u'/', 0, 0).contains(u':') ? u"./"_s + path : path);
        return url;
    }

    /// Stays the same when lines move.
    QString fingerprint(const Finding& finding)
    {
        const QString place = plan.shownName(finding.file) + u'\n' + finding.id + u'\n' + finding.text;
        const int number = ++sameTexts[place];
        const QString key = place + u'\n' + QString::number(number);
        return QString::fromLatin1(QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1).toHex().first(16));
    }

    const AnalysisPlan& plan;
    const AnalysisResults& findings;
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> json{buffer};
    QHash<QString, int> ruleIndex;
    QHash<QString, int> sameTexts;
};

} // namespace

QByteArray sarifReport(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    return SarifWriter(plan, findings).write();
}
