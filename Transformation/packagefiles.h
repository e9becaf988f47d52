// SPDX-License-Identifier: MIT
#ifndef PACKAGEFILES_H
#define PACKAGEFILES_H

#include <QString>

// Files that move between packages. All of it is best effort: nothing is reported, printed or waited for. Names may
// come from anywhere; one that is empty or has a null character in it names nothing.

//! Whether a regular file is there: no directory, pipe or device.
bool isFile(const QString &path);

//! Makes a directory if it isn't there. Its parent must exist.
void makeDirectory(const QString &path);

//! Copies a regular file. What is at the target already stays.
void copyFile(const QString &source, const QString &target);

#endif // PACKAGEFILES_H
