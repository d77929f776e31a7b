// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Notices;

/// A build that is recorded while it runs.
struct MakeRequest
{
    /// Divided into words as a shell does, but no shell runs it; "make" when empty.
    QString command = {};
    QString folder = {};
    /// NAME=VALUE, one a line or between semicolons.
    QString environment = {};
};

/// Runs the build under bear and gives the compilation database that results. Throws Failure when the build fails, is
/// stopped or compiles nothing; then no half record stays behind.
QString recordMake(const MakeRequest& request, const QString& projectFile, Notices& notices);
