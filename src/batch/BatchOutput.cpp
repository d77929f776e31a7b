// SPDX-License-Identifier: MIT
#include "batch/BatchOutput.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(BatchOutput)
};

bool broken = false;

bool write(std::FILE* channel, const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    const bool taken = std::fwrite(bytes.constData(), 1, size_t(bytes.size()), channel) == size_t(bytes.size());
    return std::fflush(channel) == 0 && taken;
}

} // namespace

void BatchOutput::print(const QString& text)
{
    if (!write(stdout, text) && !broken) {
        broken = true;
        complain(Text::tr("standard output can not be written"));
    }
}

void BatchOutput::printError(const QString& text)
{
    write(stderr, text);
}

void BatchOutput::complain(const QString& text)
{
    printError(u"ProjectCreation: "_s + text + u'\n');
}

void BatchOutput::warn(const QString& text)
{
    complain(Text::tr("warning: %1").arg(text));
}

bool BatchOutput::isBroken()
{
    return broken;
}
