// SPDX-License-Identifier: MIT
#include "Reports.h"
#include "OptionFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

QStringList messagesOf(const ToolOptions::Source& source)
{
    QFile file(source.outputFolder + u'/' + QFileInfo(source.path).fileName() + u".err"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                          : QStringList();
}

} // namespace

QString htmlReport(const ToolOptions& options)
{
    QString rows;
    qsizetype total = 0;
    for (const ToolOptions::Source& source : options.sources) {
        const QStringList messages = messagesOf(source);
        total += messages.size();
        rows += u"<h3>%1 (%2)</h3>\n<ul>\n"_s.arg(source.path.toHtmlEscaped(), QString::number(messages.size()));
        for (const QString& message : messages) {
            rows += u"<li>"_s + message.toHtmlEscaped() + u"</li>\n"_s;
        }
        rows += u"</ul>\n"_s;
    }
    return u"<html><head><title>Results</title></head><body>\n<h1>Results</h1>\n<p>%1 messages in %2 "
           u"files</p>\n%3</body>"
           "</html>\n"_s.arg(total)
               .arg(options.sources.size())
               .arg(rows);
}

QString crossModuleReport(const ToolOptions& options)
{
    static const QRegularExpression identifier(u"\\[(\\w+)\\]$"_s);
    QMap<QString, int> messages;
    QMap<QString, QStringList> names;
    for (const ToolOptions::Source& source : options.sources) {
        names[QFileInfo(source.path).fileName()] += source.path;
        const QStringList lines = messagesOf(source);
        for (const QString& line : lines) {
            ++messages[identifier.match(line).captured(1)];
        }
    }
    QString text = u"Messages by kind\n"_s;
    for (auto message = messages.cbegin(); message != messages.cend(); ++message) {
        text += u"%1  %2\n"_s.arg(message.value(), 6).arg(message.key());
    }
    QString namesakes;
    for (const QStringList& paths : std::as_const(names)) {
        if (paths.size() > 1) {
            namesakes += paths.join(u"  "_s) + u'\n';
        }
    }
    text += u"\nSources with the same name\n"_s + (namesakes.isEmpty() ? u"none\n"_s : namesakes);
    if (options.crossModuleFile.isEmpty()) {
        return text;
    }
    QDir().mkpath(QFileInfo(options.crossModuleFile).absolutePath());
    QSaveFile file(options.crossModuleFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        throw QString(options.crossModuleFile + u": "_s + file.errorString());
    }
    return text;
}

QString messageCount(const ToolOptions& options)
{
    qsizetype total = 0;
    for (const ToolOptions::Source& source : options.sources) {
        total += messagesOf(source).size();
    }
    return u"%1 messages in %2 analysed files"_s.arg(total).arg(options.sources.size());
}
