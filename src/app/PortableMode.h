// SPDX-License-Identifier: MIT
#pragma once

/// Settings in a folder in place of the system's stores, so that a program on a stick, and a test, leave no traces.
namespace PortableMode {

/// Takes the folder that KOVRA_SETTINGS names, else one called "settings" beside the program's bin folder on Windows,
/// where the archive brings it. After the application object, before a store is opened.
void enter();

} // namespace PortableMode
