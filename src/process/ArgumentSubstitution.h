// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct WizardState;

/// Replaces placeholder by value in every argument that contains it. A prefix goes before such an argument as one of
/// its own, unless the argument became empty. With quote a result with white space is put between double quotes.
void SubstituteArgument(QStringList& arguments, const QString& placeholder, const QString& value,
                        const QString& prefix = {}, bool quote = false);

/// The conversion program's arguments for what the pages collected: the conversion type's templates with the fixed
/// placeholders and those of its input fields replaced.
QStringList conversionArguments(const WizardState& state);

/// A sentence for each value that holds a placeholder which is replaced after it: the program gets another text than
/// the user gave.
QStringList placeholdersInValues(const WizardState& state);
