// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

/// What a Condition may ask for.
struct ConditionContext
{
    /// May leave marks for unknown macros: they count as empty in a comparison.
    std::function<QString(const QString&)> expand;
    std::function<bool(const QString&)> exists;
};

/// True or false for a condition; an empty one is true. Nothing when it is written wrongly or asks for something
/// unknown that decides.
std::optional<bool> evaluateCondition(const QString& text, const ConditionContext& context);
