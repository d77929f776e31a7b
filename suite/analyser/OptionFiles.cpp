// SPDX-License-Identifier: MIT
#include "OptionFiles.h"

#include <QFile>
#include <QProcess>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

class Reader
{
public:
    ToolOptions options;

    void take(const QStringList& words, bool isList)
    {
        for (qsizetype i = 0; i < words.size(); ++i) {
            const QString& word = words[i];
            const auto value = [&] { return i + 1 < words.size() ? words[++i] : QString(); };
            if (word == "-via"_L1 || word == "-list"_L1) {
                readFile(value(), word == "-list"_L1);
            } else if (word == "-prj"_L1) {
                options.projectFile = value();
            } else if (word == "-outputpath"_L1) {
                options.outputFolder = value();
            } else if (word == "-i"_L1) {
                addTo(options.includeFolders, value());
            } else if (word == "-d"_L1) {
                addTo(options.defines, value());
            } else if (word == "-cmaf"_L1) {
                options.crossModuleFile = value();
            } else if (isList && !word.startsWith(u'-')) {
                options.sources += {word, options.outputFolder};
            }
        }
    }

private:
    static void addTo(QStringList& list, const QString& value)
    {
        if (!value.isEmpty()) {
            list += value;
        }
    }

    void readFile(const QString& name, bool isList)
    {
        if (seen.contains(name)) {
            return;
        }
        seen.insert(name);
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            throw QString(name + u": "_s + file.errorString());
        }
        while (!file.atEnd()) {
            const QString line = QString::fromLocal8Bit(file.readLine()).trimmed();
            if (!line.isEmpty() && !line.startsWith(u'*')) {
                take(words(line), isList);
            }
        }
    }

    static bool isQuoted(const QString& text)
    {
        return text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
    }

    // An option and its value, which is quoted when it is a path.
    static QStringList words(const QString& line)
    {
        if (!line.startsWith(u'-')) {
            return {isQuoted(line) ? line.sliced(1, line.size() - 2) : line};
        }
        const QString option = line.section(u' ', 0, 0);
        const QString value = line.section(u' ', 1).trimmed();
        return {option, isQuoted(value) ? value.sliced(1, value.size() - 2) : value};
    }

    QSet<QString> seen;
};

} // namespace

ToolOptions readOptions(const QStringList& arguments)
{
    Reader reader;
    reader.take(arguments, false);
    return reader.options;
}
