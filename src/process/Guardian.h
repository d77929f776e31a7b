// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QProcessEnvironment;

/// A small process beside this one that cleans up when this one is killed and can not do so itself: it kills what
/// carries our mark in its environment, brings an old project file back, and removes the temporary files. Linux only;
/// elsewhere all of it does nothing. It does not reach a process that detached itself and cleared its environment.
namespace Guardian {

/// Starts it. Once, before the program has threads and children.
void start();

/// Marks the environment of a child, so that what it starts is found.
void mark(QProcessEnvironment& environment);

/// From now on a half-made project file is to be removed, the old one, if any, to be renamed back from where it waits
/// aside, and the lock removed.
void watch(const QString& projectFile, const QString& aside, const QString& lock);

/// No project file is in the making any more.
void forget();

/// The file that names the temporary files, one a line.
void listsTemporaryFiles(const QString& list);

/// Lets it go without a deed. A program that ends before was killed.
void dismiss();

} // namespace Guardian
