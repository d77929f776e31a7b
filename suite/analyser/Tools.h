// SPDX-License-Identifier: MIT
#pragma once

struct CommandLine;

/// Both give the exit status and throw a Failure when they can not do their work.
int runTool(const CommandLine& line);
int runJob(const CommandLine& line);
