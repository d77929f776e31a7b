// SPDX-License-Identifier: MIT
#pragma once

struct Arguments;
struct ProjectTree;

/// Writes the project file and, where there are include folders or defines, the configuration file beside it that holds
/// them. Both or none: throws Failure and leaves what was there.
void writeProject(const ProjectTree& tree, const Arguments& arguments);
