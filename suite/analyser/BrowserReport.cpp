// SPDX-License-Identifier: MIT
#include "BrowserReport.h"
#include "AnalysisPlan.h"
#include "AnalysisResults.h"
#include "Failure.h"
#include "MessageCatalogue.h"
#include "ResultFile.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamWriter>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <shellapi.h>
#endif

using namespace Qt::StringLiterals;

namespace {

void writeError(QXmlStreamWriter& writer, const Finding& finding, const MessageKind& kind)
{
    writer.writeStartElement("error"_L1);
    writer.writeAttribute("id"_L1, finding.id);
    writer.writeAttribute("severity"_L1, QLatin1StringView(severityName(finding.severity)));
    writer.writeAttribute("msg"_L1, finding.text);
    writer.writeAttribute("verbose"_L1, finding.text);
    if (kind.weakness > 0) {
        writer.writeAttribute("cwe"_L1, QString::number(kind.weakness));
    }
    writer.writeEmptyElement("location"_L1);
    writer.writeAttribute("file"_L1, finding.file);
    writer.writeAttribute("line"_L1, QString::number(finding.line));
    writer.writeAttribute("column"_L1, QString::number(finding.column));
    writer.writeEndElement();
}

} // namespace

QByteArray BrowserReport::xml(const AnalysisPlan& plan, const AnalysisResults& findings)
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement("results"_L1);
    writer.writeAttribute("version"_L1, "2"_L1);
    writer.writeEmptyElement("cppcheck"_L1);
    writer.writeAttribute("version"_L1, plan.lastAnalysis.section(u' ', -1));
    writer.writeStartElement("errors"_L1);
    const QHash<QString, MessageKind> catalogue = messageCatalogue();
    for (const SeenFinding& seen : findings.findings) {
        // Without a file there is no page to show it on.
        if (QFileInfo(seen.finding.file).isFile()) {
            writeError(writer, seen.finding, catalogue.value(seen.finding.id));
        }
    }
    writer.writeEndDocument();
    return text;
}

QString BrowserReport::write(const AnalysisPlan& plan, const AnalysisResults& findings, const QString& folder)
{
    const QString messages = plan.workFolder() + u"/messages.xml"_s;
    ResultFile::write(messages, xml(plan, findings));
    QDir(folder).removeRecursively();
    QProcess maker;
    maker.setProcessChannelMode(QProcess::MergedChannels);
    maker.start(u"cppcheck-htmlreport"_s,
                {u"--title="_s + plan.name, u"--file="_s + messages, u"--report-dir="_s + folder,
                 u"--source-dir="_s + plan.sourceFolder, u"--source-encoding=utf-8"_s});
    if (!maker.waitForFinished(-1) || maker.exitStatus() != QProcess::NormalExit || maker.exitCode() != 0) {
        const QString said = QString::fromUtf8(maker.readAll()).trimmed().section(u'\n', -1);
        throw Failure{
            u"cppcheck-htmlreport can not make the report: %1."_s.arg(said.isEmpty() ? maker.errorString() : said)};
    }
    return folder + u"/index.html"_s;
}

bool BrowserReport::open(const QString& page)
{
#ifdef Q_OS_WIN
    // Above 32 says that it has worked.
    const std::wstring file = QDir::toNativeSeparators(page).toStdWString();
    return reinterpret_cast<INT_PTR>(::ShellExecuteW(nullptr, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL)) >
           32;
#else
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    return !opener.isEmpty() && QProcess::startDetached(opener, {page});
#endif
}
