// SPDX-License-Identifier: MIT
#pragma once

#include "OptionPool.h"

/// What sets of options have in common and what each has of its own.
namespace SharedOptions {

/// What can stand before the rest of every one of these sets without a change of meaning. Folders and files are shared
/// from the first as long as all agree, so that their order stays; all else where it is in every set.
OptionPool::Set of(const OptionPool& pool, const QList<int>& sets);

/// What is left of a set without the shared options.
OptionPool::Set rest(const OptionPool::Set& set, const OptionPool::Set& shared);

} // namespace SharedOptions
