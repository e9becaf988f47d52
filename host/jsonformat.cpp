#include "lessonformats.h"

LessonFormat jsonFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("json");
    return format;
}
