// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "console/Console.h"
#include "Failure.h"
#include "ToolFolders.h"
#include "Tools.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    Console::open();
    const QCoreApplication application(argc, argv);
    ToolFolders::appendToPath();
    try {
        const CommandLine line = CommandLine::read(QCoreApplication::arguments());
        return line.tool == Tool::Job ? runJob(line) : runTool(line);
    } catch (const Failure& failure) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(failure.text));
        return 2;
    }
}
