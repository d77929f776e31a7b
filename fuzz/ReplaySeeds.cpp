// SPDX-License-Identifier: MIT
// Stands in for libFuzzer where that is not built in: reads each file given, or each file below a folder given, once.
#include "Sandbox.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char** argv)
{
    QStringList files;
    for (int i = 1; i < argc; ++i) {
        const QFileInfo given(QFile::decodeName(argv[i]));
        if (given.isFile()) {
            files += given.absoluteFilePath();
        }
        QDirIterator below(given.absoluteFilePath(), QDir::Files, QDirIterator::Subdirectories);
        while (below.hasNext()) {
            files += below.next();
        }
    }
    LLVMFuzzerInitialize(&argc, &argv);
    for (const QString& name : std::as_const(files)) {
        QFile file(name);
        Sandbox::require(file.open(QIODevice::ReadOnly), "a seed can not be read");
        const QByteArray seed = file.readAll();
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(seed.constData()), std::size_t(seed.size()));
    }
    Sandbox::require(!files.isEmpty(), "there are no seeds");
    return 0;
}
