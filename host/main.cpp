// SPDX-License-Identifier: MIT
#include "command/command.h"
#include "command/terminal.h"
#include "files/lessonerror.h"
#include "sentences/language.h"

#include <QGuiApplication>
#include <QJsonObject>
#include <QLoggingCategory>

#include <clocale>
#include <cstdlib>
#include <memory>
#include <new>

#include <fcntl.h>
#include <unistd.h>

#ifdef WITH_MIMALLOC
#include <mimalloc.h>
#endif

using namespace lessonhost;

namespace {

constexpr int notDone = 2;

// The plug-in logs whole items while it writes.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        complain(text);
    }
}

void tell(const LessonError &error, bool asJson)
{
    complain(error.message());
    if (asJson) {
        try {
            printJson({{QStringLiteral("error"), error.toJson()}});
        } catch (const LessonError &unprinted) {
            if (unprinted.message().english() != error.message().english()) {
                complain(unprinted.message());
            }
        }
    }
}

// A file must not get the number of a standard stream that is closed: what is printed would go into it. To write to
// what takes the number fails.
void occupyStandardStreams()
{
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(number, F_GETFD) < 0) {
            ::open("/dev/null", O_RDONLY);
        }
    }
}

// Pictures are large pieces of memory, one after the other. What one leaves is kept for the next, and not given back at
// once: to ask the system for it again takes a sixth of the time of a lesson with many.
void keepMemoryForAWhile()
{
#ifdef WITH_MIMALLOC
    constexpr long milliseconds = 500;
#if MI_MALLOC_VERSION < 210
    mi_option_set(mi_option_decommit_delay, milliseconds);
#else
    mi_option_set(mi_option_purge_delay, milliseconds);
#endif
#endif
}

using Application = std::unique_ptr<QCoreApplication, void (*)(QCoreApplication *)>;

// Screens and fonts take half as much memory again as all the rest, so they come only where text is measured or drawn.
// They stay to the end of the process: as the application goes, it loads what is known of fonts, if only to give it
// back.
Application applicationFor(const Command &command, int &argc, char **argv)
{
    if (!command.measuresText()) {
        return {new QCoreApplication(argc, argv), [](QCoreApplication *application) { delete application; }};
    }
    // It draws without a display, whatever the desktop's programs are told to take.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    if (!command.drawsForPeople()) {
        qputenv("FC_LANG", "en"); // or fontconfig would choose by the locale what goes into lessons
    }
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // points are as large as in browsers
    return {new QGuiApplication(argc, argv), [](QCoreApplication *) {}};
}

} // namespace

#ifdef WITH_MIMALLOC
// Where no memory is left, the allocator's own would end the process.
void *operator new(std::size_t size)
{
    if (void *const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void *operator new[](std::size_t size)
{
    return operator new(size);
}
#endif

int main(int argc, char **argv)
{
    keepMemoryForAWhile();
    occupyStandardStreams();
    qInstallMessageHandler(keepQuiet);
    // What nobody prints needn't be put into words.
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    // The same lesson gives the same bytes, whichever run writes it.
    qSetGlobalQHashSeed(0);
    takeEncodingOfEnvironment();
    speak(languageOfEnvironment());
    // Qt's own options, "--plugin" among them, are not for it to take.
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    int applicationArguments = 1;
    Command command(arguments);
    const auto application = applicationFor(command, applicationArguments, argv);
    // Which it has set as the environment says: numbers in files have points, and what libraries say goes into reports.
    std::setlocale(LC_NUMERIC, "C");
    std::setlocale(LC_MESSAGES, "C");
    QCoreApplication::setApplicationName(QStringLiteral("lessonconv"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LESSONCONV_VERSION));
    const bool asJson = arguments.contains(QLatin1String("--json"));
    try {
        const int code = command.run();
        endPrinting();
        return code;
    } catch (const LessonError &error) {
        tell(error, asJson);
    } catch (const std::exception &error) {
        tell(unexpected(error), asJson);
    }
    return notDone;
}
