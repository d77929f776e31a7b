// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "console/Console.h"
#include "Conversion.h"
#include "Failure.h"
#include "Output.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    Console::open();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"prjconv"_s);
    QCoreApplication::setApplicationVersion(u"1.0"_s);
    try {
        convert(Arguments::parse(QCoreApplication::arguments()));
        return 0;
    } catch (const Failure& failure) {
        print(stderr, u"prjconv: "_s + failure.text);
        return int(failure.kind);
    }
}
