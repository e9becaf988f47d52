#ifndef LESSONFORMATS_H
#define LESSONFORMATS_H

#include "lesson/lesson.h"

namespace lessonhost {

// The rows of lessonFormats(), one function each in the file of its format.
LessonFormat jsonFormat();
LessonFormat zqtxFormat();
LessonFormat rawXmlFormat();
LessonFormat iwbFormat();

} // namespace lessonhost

#endif // LESSONFORMATS_H
