// SPDX-License-Identifier: MIT
#include "formats/lessonformats.h"

#include "iwb/iwbpackage.h"
#include "iwb/iwbreader.h"
#include "iwb/iwbwriter.h"

namespace lessonhost {

namespace {

bool holdsIwb(const LessonContent &content)
{
    return content.names.contains(QLatin1String("content.xml")) || content.rootTag == QLatin1String("iwb");
}

} // namespace

LessonFormat iwbFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("iwb");
    format.extensions = QStringList{QStringLiteral("iwb")};
    format.description = say("interactive whiteboard package: a folder with content.xml, or the same zipped as .iwb");
    format.recognizes = isIwbFolder;
    format.holds = holdsIwb;
    format.measuresText = true;
    format.takesPictures = true;
    format.options = QStringList{QStringLiteral("ink"), QStringLiteral("plain"), QStringLiteral("items")};
    format.open = [](const QString &path, const LessonContext &context) -> std::unique_ptr<LessonReader> {
        return std::make_unique<IwbReader>(path, context);
    };
    format.create = [](const QString &path, const LessonContext &context) -> std::unique_ptr<LessonWriter> {
        return std::make_unique<IwbWriter>(path, context);
    };
    return format;
}

} // namespace lessonhost
