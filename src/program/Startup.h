// SPDX-License-Identifier: MIT
#pragma once

/// The whole run of the program: creates the application and the registry, opens the wizard, runs the event loop.
namespace Startup {

/// The exit status: the event loop's; 0 after -ver and -help; 1 when there is no display.
int run(int argc, char** argv);

} // namespace Startup
