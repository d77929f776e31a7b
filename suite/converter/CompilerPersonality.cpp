// SPDX-License-Identifier: MIT
#include "CompilerPersonality.h"
#include "OptionsText.h"
#include "Paths.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString CompilerPersonality::text() const
{
    QString result = u"*orv compiler=\"%1\"\n"_s.arg(
        QDir::toNativeSeparators(program.isEmpty() ? setup.program : program).simplified());
    for (const QString& folder : folders) {
        result += u"*orv builtin=\"%1\"\n"_s.arg(QDir::toNativeSeparators(folder));
    }
    for (const QString& macro : macros) {
        result += OptionsText::define(macro);
    }
    return result;
}

QString CompilerPersonality::label() const
{
    static const QRegularExpression odd(u"[^A-Za-z0-9.+-]"_s);
    QString name = Paths::nameOf(setup.program).toString() + (setup.isC ? u"-c"_s : u"-c++"_s);
    if (!setup.standard.isEmpty()) {
        name += u'-' + setup.standard;
    }
    return name.replace(odd, u"_"_s).left(60);
}
