// SPDX-License-Identifier: MIT
#pragma once

class QPixmap;
class QString;

/// The images that are compiled in as XPM. To read an image file of any format Qt looks into all of its image plugins
/// first, with which the window would wait.
namespace XpmImage {

/// Null where there is none of that name. The resource is one of this program's own.
QPixmap load(const QString& resource);

} // namespace XpmImage
