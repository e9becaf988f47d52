#include "command/commandline.h"

#include "files/lessonerror.h"

#include <QThread>

namespace lessonhost {

namespace {

constexpr int mostJobs = 256;
constexpr int mostSeconds = 24 * 60 * 60;

} // namespace

const std::vector<CommandOption> &commandOptions()
{
    using Option = CommandOption;
    static const std::vector<Option> options{
        {"from", "format", Option::OnResults, "", "The format of the input, where its name doesn't tell."},
        {"to", "format", Option::OnResults, "convert", "The format of the output, where its name doesn't tell."},
        {"out-dir", "folder", Option::OnTheRun, "convert", "Convert many: the folder for the results."},
        {"jobs", "number", Option::OnTheRun, "convert",
         "Convert many: this many at the same time; as many as the machine has cores otherwise."},
        {"lesson-timeout", "seconds", Option::OnTheRun, "convert", "Convert many: give up a lesson that takes longer."},
        {"resume", nullptr, Option::OnTheRun, "convert", "Convert many: leave out what is done and unchanged."},
        {"report", "file", Option::OnTheRun, "convert",
         "Write everything that was lost or kept aside into this file, as JSON."},
        {"strict", nullptr, Option::OnTheRun, "convert", "Treat losses as a failure: exit code 1."},
        {"no-check", nullptr, Option::OnResults, "convert",
         "Don't read back what was written. Faster, but losses stay unnoticed."},
        {"no-clobber", nullptr, Option::OnTheRun, "convert render",
         "Replace nothing: what is there already makes the run fail, or is left out of many."},
        {"ink", "choice", Option::OnAFormat, "convert",
         "What becomes of handwriting in IWB: polyline (the default) or drop.", "polyline", "polyline drop"},
        {"size", "widthxheight", Option::OnTheRun, "render", "With render: the size of a picture or page in pixels."},
        {"slides", "slides", Option::OnTheRun, "render", "With render: only these slides, such as 2-5 or 1,4."},
        {"diff", nullptr, Option::OnTheRun, "render",
         "With render: two lessons side by side, with the values that the second lacks."},
        {"json", nullptr, Option::OnTheRun, "", "Print JSON, also for a failure."},
        {"quiet", nullptr, Option::OnTheRun, "", "No progress bar, no list of losses, no summary."},
        {"verbose", nullptr, Option::OnTheRun, "", "Print what the libraries log."},
        {"plugin", "file", Option::OnTheRun, "", "The plug-in's file, where it is in an unusual place."},
    };
    return options;
}

CommandLine::CommandLine(const QStringList &arguments, const QString &usage, const QString &wordList)
{
    m_parser.setApplicationDescription(usage);
    m_parser.addPositionalArgument(QStringLiteral("command"), wordList);
    m_parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("the lessons"),
                                   QStringLiteral("[files...]"));
    m_parser.addVersionOption();
    m_parser.addOption(
        QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this text.")));
    for (const CommandOption &option : commandOptions()) {
        m_parser.addOption(QCommandLineOption(QLatin1String(option.name), QLatin1String(option.description),
                                              QLatin1String(option.value ? option.value : ""),
                                              QLatin1String(option.standard)));
    }
    m_isUnderstood = m_parser.parse(arguments);
}

int CommandLine::jobs() const
{
    const int number = isSet("jobs") ? value("jobs").toInt() : QThread::idealThreadCount();
    if (isSet("jobs") && (number < 1 || number > mostJobs)) {
        throw LessonError(QStringLiteral("\"%1\" is no number of jobs").arg(value("jobs")),
                          QStringLiteral("Give a number from 1 to %1, such as --jobs 4").arg(mostJobs));
    }
    return qBound(1, number, mostJobs);
}

int CommandLine::lessonSeconds() const
{
    const int seconds = value("lesson-timeout").toInt();
    if (isSet("lesson-timeout") && (seconds < 1 || seconds > mostSeconds)) {
        throw LessonError(QStringLiteral("\"%1\" is no number of seconds").arg(value("lesson-timeout")),
                          QStringLiteral("Give a number from 1 to %1, such as --lesson-timeout 600").arg(mostSeconds));
    }
    return seconds;
}

void CommandLine::checkChoices() const
{
    for (const CommandOption &option : commandOptions()) {
        const QStringList choices = QString::fromLatin1(option.choices).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString given = value(option.name);
        if (!choices.isEmpty() && !choices.contains(given)) {
            throw LessonError(
                QStringLiteral("--%1 knows no \"%2\"").arg(QLatin1String(option.name), given),
                QStringLiteral("Say --%1 %2").arg(QLatin1String(option.name), choices.join(QStringLiteral(" or "))));
        }
    }
}

QStringList CommandLine::resultArguments() const
{
    checkChoices();
    QStringList arguments;
    for (const CommandOption &option : commandOptions()) {
        const QString given = value(option.name);
        if (option.effect != CommandOption::OnTheRun && (isSet(option.name) || !given.isEmpty())) {
            arguments << QLatin1String("--") + QLatin1String(option.name);
            if (option.value) {
                arguments << given;
            }
        }
    }
    return arguments;
}

QHash<QString, QString> CommandLine::formatOptions() const
{
    checkChoices();
    QHash<QString, QString> values;
    for (const CommandOption &option : commandOptions()) {
        if (option.effect == CommandOption::OnAFormat) {
            values.insert(QLatin1String(option.name), value(option.name));
        }
    }
    return values;
}

} // namespace lessonhost
