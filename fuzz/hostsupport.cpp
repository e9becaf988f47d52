// SPDX-License-Identifier: MIT
#include "hostsupport.h"

#include "files/lessonerror.h"
#include "formats/conversion.h"
#include "fuzzsupport.h"
#include "losses/lossreport.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

using namespace lessonhost;

void startApplication()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static const auto *const application = new QGuiApplication(argc, argv);
    Q_UNUSED(application)
}

void readLesson(const QString &format, const QString &path)
{
    LossReport losses;
    LessonContext context;
    context.plugin = &plugin();
    context.losses = &losses;
    try {
        const auto reader = lessonFormatByName(format).open(path, context);
        reader->presentation();
        reader->resources();
        for (int i = 0; i < reader->slideCount(); ++i) {
            reader->slide(i);
        }
    } catch (const LessonError &) {
        return;
    }
}

void convert(const QString &fromFormat, const QString &input, const QString &toFormat, const QString &output)
{
    LossReport losses;
    LessonContext context;
    context.plugin = &plugin();
    context.losses = &losses;
    try {
        convertLesson(lessonFormatByName(fromFormat), input, lessonFormatByName(toFormat), output, context,
                      [](int, int) {});
    } catch (const LessonError &error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.message().english()));
        std::exit(1);
    }
}
