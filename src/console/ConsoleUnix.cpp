// SPDX-License-Identifier: MIT
#include "console/Console.h"

void Console::open() {}

QStringList Console::arguments(int argc, char** argv)
{
    QStringList texts;
    for (int i = 0; i < argc; ++i) {
        texts += QString::fromLocal8Bit(argv[i]);
    }
    return texts;
}
