// SPDX-License-Identifier: MIT
#pragma once

#include "BuildCommand.h"
#include "Sources.h"

#include <QHash>

#include <array>

struct Arguments;

/// Gathers what a reader of a build description finds.
class SourceCollector
{
public:
    explicit SourceCollector(const Arguments& wanted);

    /// Names the file that the commands come from.
    void setDescription(const QString& absolutePath) { sources.description = absolutePath; }
    void add(const BuildCommand& command);
    /// A source of which nothing but its absolute path is known.
    void addFile(const QString& path);
    /// Several sources with one command: what the first of them is compiled with, for the others.
    int settingsOf(const BuildCommand& command, QString* output = nullptr);
    void add(const QString& path, int settings, int target);
    int targetNumber(const QString& name);
    /// Notes what is left out, and where; the text is one line.
    void complain(const QString& text, const QString& place) { sources.log.count(text, place); }

    Sources take() { return std::move(sources); }

private:
    int compilerNumber(const CompilerSetup& setup);

    const Arguments& arguments;
    Sources sources;
    QHash<CompilerSetup, int> compilers;
    QHash<QString, int> targets;
    /// Of files without a command, by their language.
    std::array<int, 16> plain;
};
