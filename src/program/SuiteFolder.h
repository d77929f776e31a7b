// SPDX-License-Identifier: MIT
#pragma once

/// The folder that the suite is installed in.
namespace SuiteFolder {

/// Sets ORVCPATH and ORVCPPPATH, where they are not set, to the open analysers beside the bin folder, so that they
/// serve where no others are recorded. On other systems the command that starts the program does so.
void offerAnalysers();

} // namespace SuiteFolder
