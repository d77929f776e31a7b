// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The fixed names of one analyser.
struct ProductNames
{
    QString displayName;
    QString exeName;
    QString shortName;
    QString binVariable;
    QString personalitiesVariable;
    QString helpFilesVariable;
    QString messageFile;
    QString userFile;

    /// The names of the C analyser, or of the C++ analyser.
    static const ProductNames& of(bool isC);
};
