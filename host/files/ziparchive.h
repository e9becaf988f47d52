#ifndef ZIPARCHIVE_H
#define ZIPARCHIVE_H

#include <QString>

namespace lessonhost {

//! Unpacks a zip archive into an empty directory, after checking every entry: relative path inside, no link, no device,
//! no name twice, no encryption, at most 100,000 entries, 2 GiB, and a
//! ratio of compression that lessons reach. Throws LessonError.
void unpackZip(const QString &archive, const QString &directory);

//! Packs all files below a directory, in ascending order. Throws LessonError.
void packZip(const QString &directory, const QString &archive);

} // namespace lessonhost

#endif // ZIPARCHIVE_H
