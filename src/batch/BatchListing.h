// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <vector>

struct ProjectCreatorData;

/// What the definitions offer, for people and for programs.
namespace BatchListing {

/// One conversion type a line, or a JSON array of objects.
QString types(const std::vector<std::unique_ptr<ProjectCreatorData>>& creators, bool json);

/// The inputs of a type with their kind, filter, placeholder, defaults and rules, and the options for the configuration
/// files that it asks for.
QString inputs(const ProjectCreatorData& creator, bool json);

} // namespace BatchListing
