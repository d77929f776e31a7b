// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// What installers record where this program does not look by itself.
namespace InstallerRecords {

/// The "Path" of a product's last version, as an installer of the other word size recorded it on Windows: the registry
/// keeps such records in a view of their own. Empty when there is none, and on other systems.
QString otherView(const QString& product);

} // namespace InstallerRecords
