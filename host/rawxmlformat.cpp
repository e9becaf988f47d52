#include "lessonformats.h"

LessonFormat rawXmlFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("rawxml");
    return format;
}
