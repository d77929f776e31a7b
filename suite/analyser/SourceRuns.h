// SPDX-License-Identifier: MIT
#pragma once

#include "AnalyserRun.h"
#include "Job.h"

#include <vector>

class OptionSet;

/// Runs of cppcheck over sources whose jobs' folders exist; its records lie there afterwards.
namespace SourceRuns {

struct Task
{
    Job::Order order;
    const OptionSet* options;
};

AnalyserRun alone(const Task& task);

/// What alone() gives for each, by one process, whose start costs as much as analysing a small source. All have the
/// same OptionSet::sharedArguments(), and each its own source. Nothing where the process does not end well or what it
/// says can not be told apart: then each has to be analysed alone.
std::vector<AnalyserRun> together(const std::vector<Task>& tasks);

/// The files that cppcheck does not find for the includes in quotes which the options let it reach, as they are named
/// there. Takes a run that only preprocesses.
QStringList missingIncludes(const Task& task);

} // namespace SourceRuns
