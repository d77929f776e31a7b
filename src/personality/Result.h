// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What an operation gives, with what went wrong beside it: problem is a sentence for the user, and empty on success.
template <typename Value>
struct Result
{
    Value value = {};
    QString problem = {};

    bool ok() const { return problem.isEmpty(); }
};

/// The same for an operation that gives nothing else.
template <>
struct Result<void>
{
    QString problem = {};

    bool ok() const { return problem.isEmpty(); }
};
