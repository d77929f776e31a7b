// SPDX-License-Identifier: MIT
#pragma once

struct Arguments;

/// Reads the build description, writes the project and tells on standard output what became of it. Throws Failure.
void convert(const Arguments& arguments);
