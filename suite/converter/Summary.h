// SPDX-License-Identifier: MIT
#pragma once

#include "CompilerPersonality.h"

#include <QHash>

struct Arguments;
struct ProjectSources;
struct ProjectTree;
struct Sources;
struct WrittenProject;

/// What a conversion tells at its end.
class Summary
{
public:
    Summary(const Sources& from, const ProjectSources& chosen, const Arguments& wanted)
        : sources(from)
        , kept(chosen)
        , arguments(wanted)
    {
    }

    void print(const ProjectTree& tree, const QHash<int, CompilerPersonality>& compilers,
               const WrittenProject& written) const;

private:
    void printFiles() const;
    void printLog(const WrittenProject& written) const;
    void printTotals(const ProjectTree& tree) const;

    const Sources& sources;
    const ProjectSources& kept;
    const Arguments& arguments;
};
