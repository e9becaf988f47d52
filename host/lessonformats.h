#ifndef LESSONFORMATS_H
#define LESSONFORMATS_H

#include "lesson.h"

// The rows of lessonFormats(), one function each in the file of its format.
LessonFormat jsonFormat();
LessonFormat zqtxFormat();
LessonFormat rawXmlFormat();
LessonFormat iwbFormat();

#endif // LESSONFORMATS_H
