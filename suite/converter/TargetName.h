// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The target that an object file is made for, as the folders of CMake (CMakeFiles/T.dir/…) and Meson (T.p/…) tell;
/// empty when they do not.
QString targetOfOutput(QString output);
