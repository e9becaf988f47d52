// SPDX-License-Identifier: MIT
#ifndef PACKAGENAMES_H
#define PACKAGENAMES_H

#include "sentences/sentence.h"

#include <QString>
#include <QStringList>

namespace lessonhost {

//! A reference as a path inside a package is written: "/" between the parts, no "./" in front.
QString plainPath(QString reference);

//! Why a name in an archive or document can't be a path inside a package, as a clause such as "it leads out of the
//! package"; empty for a good one. Good: relative, "/" between parts, no "." or ".." part, no backslash, drive letter,
//! control character or name that a system keeps for devices, at most 1024 characters.
Sentence problemWithPackagePath(const QString &path);

//! The same for a single part, such as the identifier of a slide that names a file.
Sentence problemWithFileName(const QString &name);

//! The one folder that everything in an archive lies in, with "/" at its end; empty where there is none. Folders that
//! some systems add for themselves don't count.
QString outerFolder(const QStringList &files);

} // namespace lessonhost

#endif // PACKAGENAMES_H
