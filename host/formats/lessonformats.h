#ifndef LESSONFORMATS_H
#define LESSONFORMATS_H

#include "lesson/lesson.h"

namespace lessonhost {

// The rows of lessonFormats(), one function each in the file of its format.
LessonFormat jsonFormat();
LessonFormat zqtxFormat();
LessonFormat rawXmlFormat();
LessonFormat iwbFormat();

//! Slides that take more bytes in a file are neither read nor written: a slide is in memory as a whole, in several
//! forms.
constexpr qint64 maximumSlideSize = qint64(32) * 1024 * 1024;

//! Throws LessonError for a slide that is too large. number: of the slide, from 1; file: where it stands.
void checkSlideSize(qint64 size, int number, const QString &file);

} // namespace lessonhost

#endif // LESSONFORMATS_H
