// SPDX-License-Identifier: MIT
#include "command/infowords.h"

#include "command/call.h"
#include "command/completion.h"
#include "command/lessoninfo.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/terminal.h"
#include "formats/slidesahead.h"

#include <QJsonArray>
#include <QJsonObject>

namespace lessonhost {

bool infoMeasuresText(const Call &call, const QStringList &files)
{
    return call.inputFormat(files.first()).measuresText;
}

int tellInfo(const Call &call, const QStringList &files)
{
    const QString &input = files.first();
    const LessonFormat &format = call.inputFormat(input);
    call.tellName(input, format);
    const PluginHost host(call.value("plugin"));
    ProgressBar bar(!call.isSet("quiet"));
    const auto reader = openLesson(format, call.inputFile(input), call.readingContext(host));
    const LessonInfo info = lessonInfo(*reader, [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    if (call.isSet("json")) {
        printJson(info.toJson());
    } else {
        print(info.toText());
    }
    return Done;
}

int tellFormats(const Call &call, const QStringList &)
{
    if (call.isSet("json")) {
        QJsonArray list;
        for (const LessonFormat &format : lessonFormats()) {
            list.append(QJsonObject{{QStringLiteral("name"), format.name},
                                    {QStringLiteral("extensions"), QJsonArray::fromStringList(format.extensions)},
                                    {QStringLiteral("read"), format.canRead()},
                                    {QStringLiteral("written"), format.canWrite()},
                                    {QStringLiteral("description"), format.description.english()}});
        }
        printJson({{QStringLiteral("formats"), list}});
        return Done;
    }
    for (const LessonFormat &format : lessonFormats()) {
        const Sentence use = format.canRead() && format.canWrite() ? say("read, written")
            : format.canRead()                                     ? say("read")
                                                                   : say("written");
        print(QStringLiteral("%1 %2 %3 %4\n")
                  .arg(format.name, -8)
                  .arg(QLatin1Char('.') + format.extensions.join(QLatin1String(" .")), -8)
                  .arg(padded(use.local(), 14), format.description.local()));
    }
    return Done;
}

int tellCompletion(const Call &, const QStringList &shells)
{
    print(completionScript(shells.first()));
    return Done;
}

} // namespace lessonhost
