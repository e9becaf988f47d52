#include "command/command.h"

#include "batch/batch.h"
#include "command/lessoninfo.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/terminal.h"
#include "files/lessonerror.h"
#include "files/packagetarget.h"
#include "formats/conversion.h"
#include "losses/lossreport.h"
#include "render/rendering.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QThread>

namespace lessonhost {

namespace {

enum ExitCode { Done = 0, DoneWithLosses = 1, NotDone = 2 };

constexpr int mostJobs = 256;
constexpr int mostSeconds = 24 * 60 * 60;

QCommandLineOption option(const char *name, const char *description, const char *value = nullptr)
{
    return QCommandLineOption(QLatin1String(name), QLatin1String(description), QLatin1String(value ? value : ""));
}

const char *const usage = R"(Converts lessons of interactive whiteboards and tells what is in them.

  lessonconv convert INPUT OUTPUT   converts a lesson; the names say the formats
  lessonconv convert INPUTS... --to FORMAT --out-dir FOLDER
                                    converts many lessons, or all in a folder
  lessonconv render INPUT OUTPUT    draws the slides as .html, .pdf, .svg or .png
  lessonconv render --diff A B OUTPUT.html
                                    two lessons side by side, and what B lacks
  lessonconv info INPUT             page size, slides, items, missing files
  lessonconv formats                the formats and their file names

Examples:
  lessonconv convert lesson.zqtx lesson.iwb
  lessonconv convert lesson.json lesson.zqtx --report losses.json
  lessonconv convert lessons/ --to iwb --out-dir converted/ --resume
  lessonconv render lesson.zqtx lesson.html
  lessonconv render lesson.zqtx slide%d.png --slides 2-5 --size 1280x720
  lessonconv render --diff lesson.zqtx lesson.iwb difference.html
  lessonconv info lesson.zqtx

The lesson that is read is never changed. What the other format can't hold is
named, by slide and item. Exit code: 0 done, 1 done with losses and --strict,
2 not done.)";

void writeReport(const QString &path, const QJsonObject &report)
{
    PackageTarget target(path);
    QFile file(target.file());
    const QByteArray text = QJsonDocument(report).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        throw LessonError(QStringLiteral("The report can't be written: %1").arg(file.errorString())).in(path);
    }
    target.commitFile();
}

} // namespace

Command::Command(const QStringList &arguments)
{
    m_parser.setApplicationDescription(QLatin1String(usage));
    m_parser.addVersionOption();
    m_parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("convert, render, info or formats"));
    m_parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("the lessons"),
                                   QStringLiteral("[files...]"));
    m_parser.addOption(
        QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this text.")));
    m_parser.addOptions({
        option("from", "The format of the input, where its name doesn't tell.", "format"),
        option("to", "The format of the output, where its name doesn't tell.", "format"),
        option("out-dir", "Convert many: the folder for the results.", "folder"),
        option("jobs", "Convert many: this many at the same time; as many as the machine has cores otherwise.",
               "number"),
        option("lesson-timeout", "Convert many: give up a lesson that takes longer.", "seconds"),
        option("resume", "Convert many: leave out what is done and unchanged."),
        option("report", "Write everything that was lost or kept aside into this file, as JSON.", "file"),
        option("strict", "Treat losses as a failure: exit code 1."),
        option("no-check", "Don't read back what was written. Faster, but losses stay unnoticed."),
        option("ink", "What becomes of handwriting in IWB: polyline (the default) or drop.", "choice"),
        option("size", "With render: the size of a picture or page in pixels.", "widthxheight"),
        option("slides", "With render: only these slides, such as 2-5 or 1,4.", "slides"),
        option("diff", "With render: two lessons side by side, with the values that the second lacks."),
        option("json", "Print JSON, also for a failure."),
        option("quiet", "No progress bar, no list of losses, no summary."),
        option("verbose", "Print what the libraries log."),
        option("plugin", "The plug-in's file, where it is in an unusual place.", "file"),
    });
    m_isUnderstood = m_parser.parse(arguments);
}

bool Command::measuresText() const
{
    const QStringList words = m_isUnderstood ? m_parser.positionalArguments() : QStringList();
    const QString command = words.value(0);
    try {
        if (command == QLatin1String("serve")) {
            // What lessons will come isn't known.
            return !isSet("from") || inputFormat({}).measuresText || outputFormat({}).measuresText;
        }
        if (command == QLatin1String("info")) {
            return inputFormat(words.value(1)).measuresText;
        }
        if (command == QLatin1String("convert") && words.size() == 3) {
            return !isSet("out-dir")
                && (inputFormat(words.at(1)).measuresText || outputFormat(words.at(2)).measuresText);
        }
    } catch (const LessonError &) {
        return false; // told when it is tried
    }
    return command == QLatin1String("render");
}

int Command::run()
{
    if (!m_isUnderstood) {
        throw LessonError(m_parser.errorText(), QStringLiteral("See lessonconv --help"));
    }
    if (isSet("version")) {
        m_parser.showVersion();
    }
    if (isSet("verbose")) {
        qInstallMessageHandler(nullptr);
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    }
    const QStringList words = m_parser.positionalArguments();
    if (isSet("help") || words.isEmpty() || words.first() == QLatin1String("help")) {
        print(m_parser.helpText());
        return words.isEmpty() && !isSet("help") ? NotDone : Done;
    }
    const QString &command = words.first();
    const QStringList files = words.mid(1);
    if (command == QLatin1String("formats") && files.isEmpty()) {
        return formats();
    }
    if (command == QLatin1String("info") && files.size() == 1) {
        return info(files.first());
    }
    if (command == QLatin1String("convert") && !files.isEmpty()) {
        return convert(files);
    }
    if (command == QLatin1String("serve") && files.isEmpty()) {
        return serve();
    }
    if (command == QLatin1String("render") && files.size() == (isSet("diff") ? 3 : 2)) {
        return render(files);
    }
    throw LessonError(
        QStringLiteral("The command \"%1\" isn't complete or isn't known").arg(words.join(QLatin1Char(' '))),
        QStringLiteral("See lessonconv --help"));
}

const LessonFormat &Command::inputFormat(const QString &input) const
{
    return isSet("from") ? lessonFormatByName(value("from")) : lessonFormatOfInput(input);
}

const LessonFormat &Command::outputFormat(const QString &output) const
{
    return isSet("to") ? lessonFormatByName(value("to")) : lessonFormatOfOutput(output);
}

QString Command::inkChoice() const
{
    const QString choice = isSet("ink") ? value("ink") : QStringLiteral("polyline");
    if (choice != QLatin1String("polyline") && choice != QLatin1String("drop")) {
        throw LessonError(QStringLiteral("Ink can't be treated as \"%1\"").arg(choice),
                          QStringLiteral("Say --ink polyline or --ink drop"));
    }
    return choice;
}

int Command::jobs() const
{
    const int number = isSet("jobs") ? value("jobs").toInt() : QThread::idealThreadCount();
    if (isSet("jobs") && (number < 1 || number > mostJobs)) {
        throw LessonError(QStringLiteral("\"%1\" is no number of jobs").arg(value("jobs")),
                          QStringLiteral("Give a number from 1 to %1, such as --jobs 4").arg(mostJobs));
    }
    return qBound(1, number, mostJobs);
}

int Command::lessonSeconds() const
{
    const int seconds = value("lesson-timeout").toInt();
    if (isSet("lesson-timeout") && (seconds < 1 || seconds > mostSeconds)) {
        throw LessonError(QStringLiteral("\"%1\" is no number of seconds").arg(value("lesson-timeout")),
                          QStringLiteral("Give a number from 1 to %1, such as --lesson-timeout 600").arg(mostSeconds));
    }
    return seconds;
}

int Command::formats() const
{
    for (const LessonFormat &format : lessonFormats()) {
        const QString use = format.canRead() && format.canWrite() ? QStringLiteral("read, written")
            : format.canRead()                                    ? QStringLiteral("read")
                                                                  : QStringLiteral("written");
        print(QStringLiteral("%1 %2 %3 %4\n")
                  .arg(format.name, -8)
                  .arg(QLatin1Char('.') + format.extensions.join(QLatin1String(" .")), -8)
                  .arg(use, -14)
                  .arg(format.description));
    }
    return Done;
}

int Command::info(const QString &input) const
{
    const LessonFormat &format = inputFormat(input);
    const PluginHost host(value("plugin"));
    LessonContext context;
    context.plugin = host.plugin();
    context.verify = false;
    ProgressBar bar(!isSet("quiet"));
    const auto reader = format.open(input, context);
    const LessonInfo info = lessonInfo(*reader, [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    if (isSet("json")) {
        printJson(info.toJson());
    } else {
        print(info.toText());
    }
    return Done;
}

int Command::convert(const QStringList &files) const
{
    if (isSet("out-dir")) {
        return convertMany(files);
    }
    if (files.size() == 2) {
        return convertOne(files.first(), files.last());
    }
    throw LessonError(
        QStringLiteral("It isn't said where the result goes"),
        QStringLiteral("Give a lesson and the name of the result, or many lessons with --to FORMAT --out-dir FOLDER"));
}

LessonContext Command::conversionContext(const PluginHost &host, LossReport *losses) const
{
    LessonContext context;
    context.plugin = host.plugin();
    context.losses = losses;
    context.verify = !isSet("no-check");
    context.options.insert(QStringLiteral("ink"), inkChoice());
    return context;
}

int Command::convertOne(const QString &input, const QString &output) const
{
    const LessonFormat &from = inputFormat(input);
    const LessonFormat &to = outputFormat(output);
    const PluginHost host(value("plugin"));
    LossReport losses;
    ProgressBar bar(!isSet("quiet"));
    convertLesson(from, input, to, output, conversionContext(host, &losses),
                  [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    if (isSet("report")) {
        writeReport(value("report"), losses.toJson());
    }
    if (isSet("json")) {
        QJsonObject result = losses.toJson();
        result.insert(QStringLiteral("input"), input);
        result.insert(QStringLiteral("output"), output);
        result.insert(QStringLiteral("from"), from.name);
        result.insert(QStringLiteral("to"), to.name);
        printJson(result);
    } else if (!losses.isEmpty() && !isSet("quiet")) {
        complain(losses.summary());
    }
    return isSet("strict") && losses.lossCount() > 0 ? DoneWithLosses : Done;
}

BatchSettings Command::batchSettings(const PluginHost &host, const LessonFormat &to) const
{
    BatchSettings settings;
    settings.outputFolder = QDir::cleanPath(value("out-dir"));
    settings.jobs = jobs();
    settings.lessonSeconds = lessonSeconds();
    settings.resume = isSet("resume");
    settings.workerArguments =
        QStringList{QStringLiteral("serve"),    QStringLiteral("--to"), to.name, QStringLiteral("--ink"), inkChoice(),
                    QStringLiteral("--plugin"), host.fileName()};
    if (isSet("from")) {
        settings.workerArguments << QStringLiteral("--from") << value("from");
    }
    if (isSet("no-check")) {
        settings.workerArguments << QStringLiteral("--no-check");
    }
    QCryptographicHash plugin(QCryptographicHash::Sha1);
    QFile file(host.fileName());
    if (file.open(QIODevice::ReadOnly)) {
        plugin.addData(&file);
    }
    settings.fingerprint = m_parser.isSet(QStringLiteral("from")) ? value("from").toUtf8() : QByteArray();
    settings.fingerprint += ' ' + to.name.toUtf8() + ' ' + inkChoice().toUtf8() + (isSet("no-check") ? " 0 " : " 1 ")
        + LESSONCONV_VERSION + ' ' + plugin.result().toHex();
    return settings;
}

int Command::convertMany(const QStringList &inputs) const
{
    if (!isSet("to")) {
        throw LessonError(QStringLiteral("It isn't said what the lessons are to become"),
                          QStringLiteral("Say the format, such as --to iwb"));
    }
    const LessonFormat &to = lessonFormatByName(value("to"));
    const LessonFormat *from = isSet("from") ? &lessonFormatByName(value("from")) : nullptr;
    checkCanWrite(to, value("out-dir"));
    const PluginHost host(value("plugin"));
    const BatchSettings settings = batchSettings(host, to);
    const BatchPlan plan = planBatch(inputs, from, to, settings.outputFolder);
    if (!QDir().mkpath(settings.outputFolder)) {
        throw LessonError(QStringLiteral("The folder for the results can't be made"),
                          QStringLiteral("Check the path and that you may write there"))
            .in(settings.outputFolder);
    }
    ProgressBar bar(!isSet("quiet"));
    BatchWatcher watcher;
    watcher.progress = [&bar](int done, int total, const QString &name) { bar.show(done, total, "lessons", name); };
    watcher.failure = [&bar](const QString &message) {
        bar.clear();
        complain(message);
    };
    const BatchResult result = runBatch(plan, settings, watcher);
    bar.clear();
    if (isSet("report")) {
        writeReport(value("report"), result.toJson(plan));
    }
    if (isSet("json")) {
        printJson(result.toJson(plan));
    } else if (!isSet("quiet")) {
        print(result.summary(plan, isSet("report")));
    }
    if (result.isInterrupted || result.count(BatchResult::Failed) > 0) {
        return NotDone;
    }
    return isSet("strict") && result.lossCount() > 0 ? DoneWithLosses : Done;
}

// What a worker process of convertMany() does; not for people.
int Command::serve() const
{
    const PluginHost host(value("plugin"));
    const LessonFormat &to = lessonFormatByName(value("to"));
    serveBatch([&](const QString &input, const QString &output) {
        LossReport losses;
        convertLesson(inputFormat(input), input, to, output, conversionContext(host, &losses), [](int, int) {});
        return losses.toJson();
    });
    return Done;
}

int Command::render(const QStringList &files) const
{
    RenderSettings settings;
    settings.size = sizeFromText(value("size"));
    settings.slides = slidesFromText(value("slides"));
    const PluginHost host(value("plugin"));
    LessonContext context;
    context.plugin = host.plugin();
    context.verify = false;
    ProgressBar bar(!isSet("quiet"));
    const auto progress = [&bar](int done, int total) { bar.show(done, total); };
    const auto reader = inputFormat(files.first()).open(files.first(), context);
    QJsonObject result;
    if (isSet("diff")) {
        const auto second = lessonFormatOfInput(files.at(1)).open(files.at(1), context);
        result =
            renderDifference(*reader, files.first(), *second, files.at(1), context, files.last(), settings, progress);
    } else {
        result = renderLesson(*reader, context, files.last(), settings, progress);
    }
    bar.clear();
    if (isSet("json")) {
        printJson(result);
    } else if (!isSet("quiet")) {
        const int named = result.value(QLatin1String("named")).toArray().size();
        print(QStringLiteral("Slides drawn: %1.%2\n")
                  .arg(result.value(QLatin1String("slides")).toInt())
                  .arg(named ? QStringLiteral(" Items shown by their name: %1.").arg(named) : QString()));
    }
    return Done;
}

} // namespace lessonhost
