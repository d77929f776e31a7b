// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What kind of file a compiler takes a file for.
enum class SourceLanguage : quint8 { C, Cpp, Unknown, Header, Assembler, Resource, Cuda, ObjectiveC, Other };

/// Whether an analyser can take it: C, C++ or a file of which nothing is known.
bool isSource(SourceLanguage language);

/// What the ending of a file name says. The case of C tells C++ from C, except where file names have none.
SourceLanguage languageOfFile(QStringView fileName, bool windows);

/// What a GNU -x option names; Unknown for "none".
SourceLanguage languageOfName(QStringView name);

/// What such a file is called in a summary, "header", "assembler source" …, its plural with an s.
QString nameOf(SourceLanguage language);
