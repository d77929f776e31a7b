// SPDX-License-Identifier: MIT
#include "Analysis.h"
#include "OptionFiles.h"
#include "Reports.h"

#include "project/Project.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

int run(const QString& tool, const ToolOptions& options)
{
    if (tool == "orvc"_L1 || tool == "orvcpp"_L1) {
        const int failed = analyseSources(options, tool == "orvc"_L1);
        return failed == 0 ? 0 : 3;
    }
    if (tool == "orvstatus"_L1) {
        print(Project(options.projectFile).statusText + u'\n');
    } else if (tool == "orvreport"_L1) {
        print(htmlReport(options));
    } else if (tool == "orvcount"_L1) {
        print(messageCount(options));
    } else if (tool == "orvcma"_L1) {
        print(crossModuleReport(options));
    } else {
        std::fprintf(stderr, "start this program as orvc, orvcpp, orvstatus, orvreport, orvcount or orvcma\n");
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        return run(QFileInfo(arguments.first()).baseName(), readOptions(arguments.mid(1)));
    } catch (const QString& problem) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
}
