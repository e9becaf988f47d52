// SPDX-License-Identifier: MIT
#include "command/commandline.h"

#include "files/lessonerror.h"
#include "lesson/isoneof.h"
#include "sentences/language.h"
#include "threads/cores.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>

namespace lessonhost {

namespace {

constexpr int mostJobs = 256;
constexpr int mostShards = 100000;
constexpr int mostSeconds = 24 * 60 * 60;

// What the values of options are called that name something on the disk.
const char *const valuesThatAreNames[] = {"file", "folder"};

// What the parser says itself.
constexpr const char *parserContext = "QCommandLineParser";
[[maybe_unused]] constexpr const char *parserTexts[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "[options]"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Arguments:"),
};

class ParserTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isParsers = QLatin1String(context) == QLatin1String(parserContext);
        return isParsers ? translated(spokenLanguage(), text, -1, parserContext) : QString();
    }
};

} // namespace

const std::vector<CommandOption> &commandOptions()
{
    using Option = CommandOption;
    static const std::vector<Option> options{
        {"from", "format", Option::OnResults, "convert render show info check",
         TO_SAY("The format of the input, where its name doesn't tell.")},
        {"to", "format", Option::OnResults, "convert render: render:out-dir check",
         TO_SAY("The format of the output, where its name doesn't tell; with check, the only one to try.")},
        {"out-dir", "folder", Option::OnTheRun, "convert:out-dir render:out-dir check:out-dir",
         TO_SAY("Many: the folder for the results.")},
        {"jobs", "number", Option::OnTheRun, "convert:out-dir render:out-dir check:out-dir",
         TO_SAY("Many: this many at the same time; otherwise one for each core that may be used.")},
        {"lesson-timeout", "seconds", Option::OnTheRun, "convert:out-dir render:out-dir check:out-dir",
         TO_SAY("Many: give up a lesson that takes longer.")},
        {"resume", nullptr, Option::OnTheRun, "convert:out-dir render:out-dir check:out-dir",
         TO_SAY("Many: leave out what is done and unchanged.")},
        {"shard", "number", Option::OnTheRun, "convert:out-dir render:out-dir check:out-dir",
         TO_SAY("Many: take a part of the lessons, such as 3/16 for the third of 16. Each falls to one by its path.")},
        {"report", "file", Option::OnTheRun, "convert render: render:out-dir check report",
         TO_SAY("Write everything that was lost or kept aside, what is wrong, or how it was drawn, into this file, "
                "as JSON.")},
        {"strict", nullptr, Option::OnTheRun, "convert check report", TO_SAY("Treat losses as a failure: exit code 1.")},
        {"no-check", nullptr, Option::OnResults, "convert check",
         TO_SAY("Don't read back what was written, nor try formats. Faster, but losses stay unnoticed.")},
        {"no-clobber", nullptr, Option::OnTheRun, "convert render check:out-dir report",
         TO_SAY("Replace nothing: what is there already makes the run fail, and of many those lessons.")},
        {"ink", "choice", Option::OnAFormat, "convert",
         TO_SAY("What becomes of handwriting in IWB: polyline (the default) or drop."), "polyline", "polyline drop"},
        {"plain", nullptr, Option::OnAFormat, "convert",
         TO_SAY("Leave out of IWB what other boards pass over: the lesson itself, from which all of it comes back.")},
        {"items", "choice", Option::OnAFormat, "convert",
         TO_SAY("What becomes of items that IWB has no form for: picture (the default) or drop."), "picture",
         "picture drop"},
        {"slides", "slides", Option::OnResults, "render",
         TO_SAY("With render: only these slides, such as 2-5 or 1,4.")},
        {"width", "pixels", Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: how wide pictures and pages are; their height follows.")},
        {"height", "pixels", Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: how high pictures and pages are; their width follows.")},
        {"size", "widthxheight", Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: as large as fits into so many pixels.")},
        {"pad", nullptr, Option::OnResults, "render: render:out-dir",
         TO_SAY("With --size: just this size, with borders where a slide is narrower or lower.")},
        {"scale", "factor", Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: so many times the size of the slide.")},
        {"dpi", "number", Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: dots per inch of pictures; 96 is the size of the slide.")},
        {"background", "colour", Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: this colour in place of the slides' own, such as \"#ffffe0\", or transparent.")},
        {"embed", nullptr, Option::OnResults, "render: render:out-dir",
         TO_SAY("With render: sounds, films and other files go into the page, not into a folder beside it.")},
        {"diff", nullptr, Option::OnTheRun, "render:diff",
         TO_SAY("With render: two lessons side by side, with the values that the second lacks.")},
        {"json", nullptr, Option::OnTheRun, "", TO_SAY("Print JSON, also for a failure.")},
        {"quiet", nullptr, Option::OnTheRun, "convert render report show info check",
         TO_SAY("No progress bar, no list of losses, no summary.")},
        {"verbose", nullptr, Option::OnTheRun, "", TO_SAY("Print what the libraries log.")},
        {"plugin", "file", Option::OnTheRun, "convert render show info check",
         TO_SAY("The plug-in's file, where it is in an unusual place.")},
    };
    return options;
}

bool isFor(const CommandOption &option, const QString &word)
{
    const QStringList takers = QString::fromLatin1(option.words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return takers.isEmpty() || std::any_of(takers.cbegin(), takers.cend(), [&word](const QString &taker) {
               return taker.section(QLatin1Char(':'), 0, 0) == word;
           });
}

bool isFor(const CommandOption &option, const QString &word, const QString &wordsOption)
{
    const QStringList takers = QString::fromLatin1(option.words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return takers.isEmpty() || takers.contains(word) || takers.contains(word + QLatin1Char(':') + wordsOption);
}

CommandLine::CommandLine(const QStringList &arguments, const Sentence &usage, const Sentence &wordList)
{
    m_parser.setApplicationDescription(usage.local());
    m_parser.addPositionalArgument(QStringLiteral("command"), wordList.local());
    m_parser.addPositionalArgument(QStringLiteral("files"), say("the lessons").local(), QStringLiteral("[files...]"));
    m_parser.addOption(QCommandLineOption({QStringLiteral("v"), QStringLiteral("version")},
                                          say("Print the versions of the command and of the plug-in.").local()));
    m_parser.addOption(
        QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")}, say("Print this text.").local()));
    for (const CommandOption &option : commandOptions()) {
        m_parser.addOption(QCommandLineOption(QLatin1String(option.name), say(option.description).local(),
                                              QLatin1String(option.value ? option.value : ""),
                                              QLatin1String(option.standard)));
    }
    m_isUnderstood = m_parser.parse(arguments);
}

Sentence CommandLine::problem() const
{
    const QStringList unknown = m_parser.unknownOptionNames();
    if (unknown.size() == 1) {
        return say("Unknown option '%1'.").arg(unknown.first());
    }
    if (!unknown.isEmpty()) {
        return say("Unknown options: %1.").arg(listed(unknown));
    }
    const QString text = m_parser.errorText();
    for (const char *known : {TO_SAY("Missing value after '%1'."), TO_SAY("Unexpected value after '%1'.")}) {
        const QString name = text.section(QLatin1Char('\''), 1, 1);
        if (text == QString::fromLatin1(known).arg(name)) {
            return say(known).arg(name);
        }
    }
    return Sentence(text);
}

QString CommandLine::help() const
{
    ParserTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const QString text = m_parser.helpText();
    QCoreApplication::removeTranslator(&translator);
    return text;
}

void CommandLine::checkNames() const
{
    const QStringList given = words();
    bool isEmpty = std::any_of(given.cbegin(), given.cend(), [](const QString &name) { return name.isEmpty(); });
    for (const CommandOption &option : commandOptions()) {
        const bool isName = isOneOf(valuesThatAreNames, QLatin1String(option.value));
        isEmpty |= isName && isSet(option.name) && value(option.name).isEmpty();
    }
    if (isEmpty) {
        throw LessonError(say("A name in this call is empty"),
                          say("Check what was to stand in its place, such as a variable of the shell"));
    }
}

QStringList CommandLine::givenFormatOptions() const
{
    QStringList names;
    for (const CommandOption &option : commandOptions()) {
        if (option.effect == CommandOption::OnAFormat && isSet(option.name)) {
            names.append(QLatin1String(option.name));
        }
    }
    return names;
}

int CommandLine::jobs() const
{
    const int number = isSet("jobs") ? value("jobs").toInt() : usableCores();
    if (isSet("jobs") && (number < 1 || number > mostJobs)) {
        throw LessonError(say("\"%1\" is no number of jobs").arg(value("jobs")),
                          say("Give a number from 1 to %1, such as --jobs 4").arg(mostJobs));
    }
    return qBound(1, number, mostJobs);
}

int CommandLine::lessonSeconds() const
{
    const int seconds = value("lesson-timeout").toInt();
    if (isSet("lesson-timeout") && (seconds < 1 || seconds > mostSeconds)) {
        throw LessonError(say("\"%1\" is no number of seconds").arg(value("lesson-timeout")),
                          say("Give a number from 1 to %1, such as --lesson-timeout 600").arg(mostSeconds));
    }
    return seconds;
}

BatchShard CommandLine::shard() const
{
    const QStringList parts = value("shard").split(QLatin1Char('/'));
    const BatchShard shard{parts.value(0).toInt(), parts.value(1).toInt()};
    if (isSet("shard")
        && (parts.size() != 2 || shard.number < 1 || shard.count < shard.number || shard.count > mostShards)) {
        throw LessonError(say("\"%1\" is no shard").arg(value("shard")),
                          say("Give its number and that of all, at most %1, such as --shard 3/16").arg(mostShards));
    }
    return shard;
}

void CommandLine::checkChoices() const
{
    for (const CommandOption &option : commandOptions()) {
        const QStringList choices = QString::fromLatin1(option.choices).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString given = value(option.name);
        if (!choices.isEmpty() && !choices.contains(given)) {
            throw LessonError(say("--%1 knows no \"%2\"").arg(QLatin1String(option.name), given),
                              say("Say --%1 %2").arg(QLatin1String(option.name), listedWithOr(choices)));
        }
    }
}

QStringList CommandLine::resultArguments(const QString &word, const QString &wordsOption) const
{
    checkChoices();
    QStringList arguments;
    for (const CommandOption &option : commandOptions()) {
        const QString given = value(option.name);
        if (option.effect != CommandOption::OnTheRun && isFor(option, word, wordsOption)
            && (isSet(option.name) || !given.isEmpty())) {
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
        if (option.effect == CommandOption::OnAFormat && (option.value || isSet(option.name))) {
            values.insert(QLatin1String(option.name), value(option.name));
        }
    }
    return values;
}

} // namespace lessonhost
