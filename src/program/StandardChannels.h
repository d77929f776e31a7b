// SPDX-License-Identifier: MIT
#pragma once

/// Standard input, output and error as they were given to the program.
namespace StandardChannels {

/// Takes the place of those that are closed, so that no file gets their numbers and with them what is printed; writing
/// to them fails. A pipe that nobody reads makes writing fail, too, instead of ending the program.
void reserve();

} // namespace StandardChannels
