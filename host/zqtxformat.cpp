#include "lessonformats.h"

LessonFormat zqtxFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("zqtx");
    return format;
}
