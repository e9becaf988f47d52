// SPDX-License-Identifier: MIT
#include "command/pluginhost.h"
#include "files/lessonerror.h"
#include "formats/conversion.h"
#include "losses/lossreport.h"
#include "threads/cores.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>

#ifdef WITH_MIMALLOC
#include <mimalloc.h>
#endif

// Converts a lesson into IWB as lessonconv does, checked, but draws nothing: an item that the format has no form for is
// left out. What that takes less than lessonconv is what drawings cost.
//
//   undrawniwb LESSON OUTPUT

using namespace lessonhost;

int main(int argc, char **argv)
{
#ifdef WITH_MIMALLOC
    mi_version(); // or the linker would leave the allocator out
#endif
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QGuiApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3) {
        std::fputs("undrawniwb LESSON OUTPUT\n", stderr);
        return 2;
    }
    try {
        const PluginHost host;
        LossReport losses;
        LessonContext context;
        context.plugin = host.plugin();
        context.losses = &losses;
        context.readsAhead = usableCores() > 1;
        convertLesson(lessonFormatOfInput(words.at(1)), words.at(1), lessonFormatByName(QStringLiteral("iwb")),
                      words.at(2), context, [](int, int) {});
        return 0;
    } catch (const LessonError &error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.message().english()));
        return 2;
    }
}
