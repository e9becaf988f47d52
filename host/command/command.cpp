// SPDX-License-Identifier: MIT
#include "command/command.h"

#include "batch/batch.h"
#include "batch/batchjournal.h"
#include "batch/batchreport.h"
#include "command/browser.h"
#include "command/completion.h"
#include "command/lessoncheck.h"
#include "command/lessoninfo.h"
#include "command/pluginhost.h"
#include "command/progressbar.h"
#include "command/standardstreams.h"
#include "command/terminal.h"
#include "files/inputfile.h"
#include "files/inputguard.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagetarget.h"
#include "formats/conversion.h"
#include "lesson/isoneof.h"
#include "losses/lossreport.h"
#include "losses/plainlosses.h"
#include "render/pagefiles.h"
#include "render/rendering.h"
#include "render/slideitempainter.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <thread>

namespace lessonhost {

namespace {

enum ExitCode { Done = 0, DoneWithLosses = 1, NotDone = 2 };

constexpr int anyNumber = std::numeric_limits<int>::max();

const char *const usageBegin = TO_SAY("Converts lessons of interactive whiteboards and tells what is in them.");

const char *const usageExamples = R"(
  lessonconv convert lesson.zqtx lesson.iwb
  lessonconv convert lesson.json lesson.zqtx --report losses.json
  lessonconv convert lessons/ --to iwb --out-dir converted/ --resume
  lessonconv render lesson.zqtx lesson.html
  lessonconv render lesson.zqtx slide%02d.png --slides 2-5 --width 1280
  lessonconv render lessons/ --to pdf --out-dir paper/ --resume
  lessonconv convert lessons/ --to iwb --out-dir converted/ --shard 3/16
  lessonconv report reports/*.json --report all.json
  lessonconv render --diff lesson.zqtx lesson.iwb difference.html
  lessonconv info lesson.zqtx
  lessonconv check lesson.zqtx

)";

const char *const usageEnd = TO_SAY("The lesson that is read is never changed. What the other format can't hold is\n"
                                    "named, by slide and item. Exit code: 0 done, 1 done with losses and --strict,\n"
                                    "or something is wrong that check looks for, 2 not done.");

const char *const serveWord = "serve";
const char *const servePicturesWord = "serve-pictures";
const char *const serveChecksWord = "serve-checks";
const char *const serveWords[] = {serveWord, servePicturesWord, serveChecksWord};
const char *const manyOption = "out-dir";

// What stands before a purpose in the help.
constexpr int purposeColumn = 36;

Sentence usage()
{
    Sentence text = say(usageBegin) + Sentence(QStringLiteral("\n\n"));
    for (const Command::Word &word : Command::words()) {
        if (!word.purpose) {
            continue;
        }
        const QString call =
            QStringLiteral("  lessonconv %1 %2").arg(QLatin1String(word.word), QLatin1String(word.arguments));
        text = text
            + Sentence(call.size() < purposeColumn - 1
                           ? call.leftJustified(purposeColumn)
                           : QString(call + QLatin1Char('\n') + QString(purposeColumn, QLatin1Char(' '))))
            + say(word.purpose) + Sentence(QStringLiteral("\n"));
    }
    return text + Sentence(QStringLiteral("\n")) + say("Examples:") + Sentence(QString::fromLatin1(usageExamples))
        + say(usageEnd);
}

// "convert, render, info or formats"
Sentence wordList()
{
    QStringList words;
    for (const Command::Word &word : Command::words()) {
        if (word.purpose && !words.contains(QLatin1String(word.word))) {
            words.append(QLatin1String(word.word));
        }
    }
    return listedWithOr(words);
}

/*!
 * The file for what was lost, if one is asked for. That it can't be written is found before anything else is.
 */
class ReportFile
{
public:
    explicit ReportFile(const QString &path)
        : m_target(path.isNull() ? nullptr : std::make_unique<PackageTarget>(path))
    {
    }

    void put(const QByteArray &piece)
    {
        if (m_target) {
            m_target->file().put(piece);
        }
    }

    void commit()
    {
        if (m_target) {
            m_target->commit();
        }
    }

    void write(const QJsonObject &report)
    {
        if (m_target) {
            put(QJsonDocument(report).toJson());
            commit();
        }
    }

private:
    std::unique_ptr<PackageTarget> m_target;
};

// The guard knows of the report from then on.
void checkReport(const QString &report, InputGuard &inputs, const QStringList &outputs)
{
    if (StandardStreams::isStandardOutput(report)) {
        throw LessonError(say("Standard output takes no report"), say("Give the report a name, or say --json"));
    }
    inputs.check(report);
    inputs.addReport(report);
    for (const QString &output : outputs) {
        inputs.checkReport(output);
    }
}

// hasFolders: of files beside pages.
QStringList outputsOf(const BatchPlan &plan, const QString &folder, bool hasFolders)
{
    QStringList outputs{BatchJournal::fileIn(folder, plan.shard)};
    for (const BatchPlan::Lesson &lesson : plan.lessons) {
        if (lesson.problem.isEmpty()) {
            const QString output = folder + QLatin1Char('/') + lesson.output;
            outputs.append(output);
            if (hasFolders) {
                outputs.append(QFileInfo(output).path() + QLatin1Char('/') + filesFolderOfPage(output));
            }
        }
    }
    return outputs;
}

} // namespace

const std::vector<Command::Word> &Command::words()
{
    static const std::vector<Word> words{
        {"convert", nullptr, "INPUT OUTPUT", TO_SAY("converts a lesson; the names say the formats"), 1, anyNumber,
         &Command::convertMeasuresText, &Command::convertOne},
        {"convert", "out-dir", "INPUTS... --to FORMAT --out-dir FOLDER",
         TO_SAY("converts many lessons, or all in a folder"), 1, anyNumber, &Command::never, &Command::convertMany},
        {"render", nullptr, "INPUT OUTPUT", TO_SAY("draws the slides as .html, .pdf, .svg, .png, .jpg or .webp"), 2, 2,
         &Command::always, &Command::render},
        {"render", "out-dir", "INPUTS... --to FORM --out-dir FOLDER", TO_SAY("draws many lessons, or all in a folder"),
         1, anyNumber, &Command::never, &Command::renderMany},
        {"render", "diff", "--diff A B OUTPUT.html", TO_SAY("two lessons side by side, and what B lacks"), 3, 3,
         &Command::always, &Command::renderDifference},
        {"report", nullptr, "REPORTS...", TO_SAY("what became of all lessons, by the reports of many runs"), 1,
         anyNumber, &Command::never, &Command::mergeMany},
        {"show", nullptr, "INPUT", TO_SAY("opens a lesson in the browser"), 1, 1, &Command::always, &Command::show},
        {"info", nullptr, "INPUT", TO_SAY("page size, slides, items, missing files"), 1, 1, &Command::infoMeasuresText,
         &Command::info},
        {"check", nullptr, "INPUT", TO_SAY("is it whole, and what would other formats lose"), 1, 1,
         &Command::checkMeasuresText, &Command::check},
        {"check", "out-dir", "INPUTS... --out-dir FOLDER", TO_SAY("checks many lessons, or all in a folder"), 1,
         anyNumber, &Command::never, &Command::checkMany},
        {"formats", nullptr, "", TO_SAY("the formats and their file names"), 0, 0, &Command::never, &Command::formats},
        // For those who install the command.
        {"completion", nullptr, "SHELL", nullptr, 1, 1, &Command::never, &Command::completion},
        // What worker processes of convertMany(), renderMany() and checkMany() do.
        {serveWord, nullptr, "", nullptr, 0, 0, &Command::serveMeasuresText, &Command::serve},
        {servePicturesWord, nullptr, "", nullptr, 0, 0, &Command::always, &Command::servePictures},
        {serveChecksWord, nullptr, "", nullptr, 0, 0, &Command::serveChecksMeasureText, &Command::serveChecks},
    };
    return words;
}

Command::Command(const QStringList &arguments)
    : m_line(arguments, usage(), wordList())
    , m_streams(std::make_unique<StandardStreams>())
{
}

Command::~Command() = default;

// The row for the line, or null. The rows of a word for options come behind the one without.
const Command::Word *Command::word() const
{
    const QStringList given = m_line.words();
    const int files = given.size() - 1;
    const Word *found = nullptr;
    for (const Word &word : words()) {
        if (given.value(0) == QLatin1String(word.word) && (!word.option || m_line.isSet(word.option))) {
            found = &word;
        }
    }
    return found && files >= found->leastFiles && files <= found->mostFiles ? found : nullptr;
}

bool Command::measuresText() const
{
    const Word *found = word();
    try {
        return found && (this->*found->measuresText)(m_line.words().mid(1));
    } catch (const LessonError &) {
        return false; // told when it is tried
    }
}

bool Command::drawsForPeople() const
{
    const Word *found = word();
    return found && found->measuresText == &Command::always;
}

bool Command::infoMeasuresText(const QStringList &files) const
{
    return inputFormat(files.first()).measuresText;
}

bool Command::convertMeasuresText(const QStringList &files) const
{
    return files.size() == 2 && (inputFormat(files.first()).measuresText || outputFormat(files.last()).measuresText);
}

bool Command::serveMeasuresText(const QStringList &) const
{
    // What lessons will come isn't known.
    return !m_line.isSet("from") || inputFormat({}).measuresText || outputFormat({}).measuresText;
}

bool Command::checkMeasuresText(const QStringList &files) const
{
    const LessonFormat &from = inputFormat(files.first());
    const auto tried = triedFormats(&from);
    return from.measuresText
        || std::any_of(tried.cbegin(), tried.cend(), [](const LessonFormat *format) { return format->measuresText; });
}

bool Command::serveChecksMeasureText(const QStringList &) const
{
    const auto tried = triedFormats(nullptr);
    return !isSet("from") || inputFormat({}).measuresText
        || std::any_of(tried.cbegin(), tried.cend(), [](const LessonFormat *format) { return format->measuresText; });
}

int Command::run()
{
    if (!m_line.isUnderstood()) {
        throw LessonError(m_line.problem(), say("See lessonconv --help"));
    }
    if (m_line.isSet("version")) {
        print(QLatin1String("lessonconv ") + QCoreApplication::applicationVersion() + QLatin1Char('\n'));
        const PluginHost host(value("plugin"));
        print(say("plug-in %1, %2").arg(host.version(), host.fileName()));
        return Done;
    }
    if (m_line.isSet("verbose")) {
        qInstallMessageHandler(nullptr);
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    }
    const QStringList given = m_line.words();
    if (m_line.isSet("help") || given.isEmpty() || given.first() == QLatin1String("help")) {
        print(m_line.help());
        return given.isEmpty() && !m_line.isSet("help") ? NotDone : Done;
    }
    const Word *found = word();
    if (!found) {
        tellWhatIsMissing();
    }
    checkOptions(*found);
    m_line.checkNames();
    try {
        const int code = (this->*found->run)(given.mid(1));
        m_streams->send();
        return code;
    } catch (const LessonError &error) {
        throw m_streams->named(error);
    }
}

// Why no row fits the line.
void Command::tellWhatIsMissing() const
{
    const QString given = m_line.words().value(0);
    const int files = m_line.words().size() - 1;
    const Word *fitting = nullptr;
    for (const Word &word : words()) {
        if (word.purpose && given == QLatin1String(word.word) && (!word.option || m_line.isSet(word.option))) {
            fitting = &word;
        }
    }
    if (!fitting) {
        throw LessonError(say("There is no command \"%1\"").arg(given),
                          say("Say %1; lessonconv --help tells more").arg(wordList()));
    }
    const QString call = QStringLiteral("lessonconv %1 %2").arg(given, QLatin1String(fitting->arguments)).trimmed();
    const bool isTooMuch = files > fitting->mostFiles;
    const Sentence problem = isTooMuch && fitting->mostFiles == 0 ? say("%1 takes no files")
        : isTooMuch && fitting->mostFiles == 1                    ? say("%1 takes a single file")
        : isTooMuch                                               ? say("%1 takes no more files than %2")
        : files > 0                                               ? say("%1 needs a name for the result as well")
        : fitting->run == &Command::mergeMany                     ? say("%1 needs the reports of runs over many lessons")
                                                                  : say("%1 needs a lesson");
    const bool hasNumber = isTooMuch && fitting->mostFiles > 1;
    throw LessonError(hasNumber ? problem.arg(given, fitting->mostFiles) : problem.arg(given),
                      say("The call is: %1").arg(call));
}

// Who gives an option expects something of it.
void Command::checkOptions(const Word &word) const
{
    for (const CommandOption &option : commandOptions()) {
        if (!m_line.isSet(option.name) || !word.purpose
            || isFor(option, QLatin1String(word.word), QLatin1String(word.option))) {
            continue;
        }
        QStringList takers;
        for (const Word &other : words()) {
            if (other.purpose && isFor(option, QLatin1String(other.word), QLatin1String(other.option))) {
                takers.append(
                    QStringLiteral("\"%1 %2\"").arg(QLatin1String(other.word), QLatin1String(other.arguments)));
            }
        }
        throw LessonError(
            say("This call of %1 makes no use of --%2").arg(QLatin1String(word.word), QLatin1String(option.name)),
            say("Leave it out; it is for %1").arg(listedWithAnd(takers)));
    }
}

QString Command::inputFile(const QString &input) const
{
    return m_streams->input(input);
}

const LessonFormat &Command::inputFormat(const QString &input) const
{
    return isSet("from") ? lessonFormatByName(value("from")) : lessonFormatOfInput(inputFile(input));
}

const LessonFormat &Command::outputFormat(const QString &output) const
{
    if (isSet("to")) {
        return lessonFormatByName(value("to"));
    }
    checkIsTold(output);
    if (isPictureName(output)) {
        throw LessonError(say("This is the name of a picture or a page, which convert doesn't make"),
                          say("Say lessonconv render instead of lessonconv convert"))
            .in(output);
    }
    return lessonFormatOfOutput(output);
}

const PictureForm &Command::pictureForm(const QString &output) const
{
    if (isSet("to")) {
        return pictureFormByName(value("to"));
    }
    if (isSet("diff") && StandardStreams::isStandardOutput(output)) {
        return pictureFormByName(QStringLiteral("html"));
    }
    checkIsTold(output);
    return pictureFormOfOutput(output);
}

void Command::checkIsTold(const QString &output) const
{
    if (StandardStreams::isStandardOutput(output)) {
        throw LessonError(say("It isn't said what is to come out"),
                          say("Say the format, such as --to %1")
                              .arg(QLatin1String(word()->run == &Command::convertOne ? "json" : "pdf")));
    }
}

// What stands there already is replaced otherwise.
void Command::checkOutput(const QString &output) const
{
    if (StandardStreams::isStandardOutput(output)) {
        if (isSet("json")) {
            throw LessonError(say("Standard output can't take the result and what --json tells of it"),
                              say("Leave out --json, or give the result a name"));
        }
    } else if (isSet("no-clobber")) {
        refuseToReplace(output);
    }
}

void Command::tellName(const QString &input, const LessonFormat &format) const
{
    const Sentence remark = isSet("quiet") || isSet("from") ? Sentence() : remarkOnName(input, format);
    if (!remark.isEmpty()) {
        complain(remark);
    }
}

int Command::formats(const QStringList &) const
{
    if (isSet("json")) {
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

int Command::completion(const QStringList &shells) const
{
    print(completionScript(shells.first()));
    return Done;
}

int Command::info(const QStringList &files) const
{
    const QString &input = files.first();
    const LessonFormat &format = inputFormat(input);
    tellName(input, format);
    const PluginHost host(value("plugin"));
    ProgressBar bar(!isSet("quiet"));
    const auto reader = format.open(inputFile(input), readingContext(host));
    const LessonInfo info = lessonInfo(*reader, [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    if (isSet("json")) {
        printJson(info.toJson());
    } else {
        print(info.toText());
    }
    return Done;
}

// What a lesson would become. Its own format holds what the reader holds.
QVector<const LessonFormat *> Command::triedFormats(const LessonFormat *from) const
{
    if (isSet("to")) {
        const LessonFormat &to = lessonFormatByName(value("to"));
        checkCanWrite(to, QString());
        return {&to};
    }
    QVector<const LessonFormat *> tried;
    for (const LessonFormat &format : lessonFormats()) {
        if (!isSet("no-check") && format.canWrite() && !format.isModel && (!from || format.name != from->name)) {
            tried.append(&format);
        }
    }
    return tried;
}

LessonCheck Command::checked(const LessonFormat &from, const QString &input, const PluginHost &host,
                             const Progress &progress) const
{
    return checkLesson(from, input, triedFormats(&from), conversionContext(host, nullptr), progress);
}

int Command::check(const QStringList &files) const
{
    const QString &input = files.first();
    const LessonFormat &from = inputFormat(input);
    tellName(input, from);
    if (isSet("report")) {
        InputGuard inputs;
        inputs.addLesson(input, from.folderBeside);
        checkReport(value("report"), inputs, {});
    }
    ReportFile report(isSet("report") ? value("report") : QString());
    const PluginHost host(value("plugin"));
    ProgressBar bar(!isSet("quiet"));
    const LessonCheck check =
        checked(from, inputFile(input), host, [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    QJsonObject result = check.toJson();
    result.insert(QStringLiteral("input"), input);
    report.write(result);
    if (isSet("json")) {
        printJson(result);
    } else if (!isSet("quiet") || !check.isWhole()) {
        print(onLines(check.words(m_streams->shownName(input))));
    }
    return check.isWhole() && !(isSet("strict") && check.lossCount() > 0) ? Done : DoneWithLosses;
}

int Command::checkMany(const QStringList &inputs) const
{
    const PluginHost host(value("plugin"));
    triedFormats(nullptr); // whether what is asked for can be told
    return runMany(inputs, QStringLiteral("json"), batchSettings(host, BatchWork::checking));
}

// The result of a lesson is also a file: what is there need not be checked again.
int Command::serveChecks(const QStringList &) const
{
    const PluginHost host(value("plugin"));
    serveBatch([&](const QString &input, const QString &output) -> BatchAnswer {
        const QJsonObject result = checked(inputFormat(input), input, host, [](int, int) {}).toJson();
        ReportFile file(output);
        QJsonObject named = result;
        named.insert(QStringLiteral("input"), input);
        file.write(named);
        return {result, {}};
    });
    return Done;
}

// The workers of a batch have a core each.
bool Command::hasIdleCores() const
{
    return !isOneOf(serveWords, m_line.words().first()) && std::thread::hardware_concurrency() > 1;
}

LessonContext Command::readingContext(const PluginHost &host) const
{
    LessonContext context;
    context.plugin = host.plugin();
    context.verify = false;
    context.readsAhead = hasIdleCores();
    return context;
}

LessonContext Command::conversionContext(const PluginHost &host, LossReport *losses) const
{
    LessonContext context;
    context.plugin = host.plugin();
    context.losses = losses;
    context.verify = !isSet("no-check");
    context.readsAhead = hasIdleCores();
    context.options = m_line.formatOptions();
    if (value("items") != QLatin1String("drop")) {
        context.makePainter = [plugin = context.plugin](LessonReader &reader, bool isTrial) {
            return std::make_unique<SlideItemPainter>(reader, plugin, isTrial);
        };
    }
    return context;
}

int Command::convertOne(const QStringList &files) const
{
    if (files.size() != 2) {
        throw LessonError(say("It isn't said where the result goes"),
                          say("Give a lesson and the name of the result, or many lessons with --to FORMAT "
                              "--out-dir FOLDER"));
    }
    const QString &input = files.first();
    const QString &output = files.last();
    const LessonFormat &from = inputFormat(input);
    const LessonFormat &to = outputFormat(output);
    checkUseOf(m_line.givenFormatOptions(), to);
    tellName(input, from);
    checkOutput(output);
    InputGuard inputs;
    inputs.addLesson(input, from.folderBeside);
    inputs.check(output);
    if (isSet("report")) {
        checkReport(value("report"), inputs, {output});
    }
    ReportFile report(isSet("report") ? value("report") : QString());
    const PluginHost host(value("plugin"));
    LossReport losses;
    ProgressBar bar(!isSet("quiet"));
    convertLesson(from, inputFile(input), to, m_streams->output(output, to.extensions.first()),
                  conversionContext(host, &losses), [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    // Which takes a while where there are many.
    QJsonObject result = isSet("report") || isSet("json") ? losses.toJson() : QJsonObject();
    report.write(result);
    if (isSet("json")) {
        result.insert(QStringLiteral("input"), input);
        result.insert(QStringLiteral("output"), output);
        result.insert(QStringLiteral("from"), from.name);
        result.insert(QStringLiteral("to"), to.name);
        printJson(result);
    } else if (!losses.isEmpty() && !isSet("quiet")) {
        complain(onLines(plainSummary(losses, isSet("report"))));
    }
    return isSet("strict") && losses.lossCount() > 0 ? DoneWithLosses : Done;
}

BatchSettings Command::batchSettings(const PluginHost &host, const BatchWork &work) const
{
    const char *const serving = &work == &BatchWork::conversion ? serveWord
        : &work == &BatchWork::drawing                           ? servePicturesWord
                                                                 : serveChecksWord;
    BatchSettings settings;
    settings.work = &work;
    settings.outputFolder = QDir::cleanPath(value(manyOption));
    settings.jobs = m_line.jobs();
    settings.lessonSeconds = m_line.lessonSeconds();
    settings.resume = isSet("resume");
    settings.keepsOutputs = isSet("no-clobber");
    const QStringList arguments = m_line.resultArguments(m_line.words().first(), QLatin1String(manyOption));
    settings.workerArguments = QStringList{QLatin1String(serving),
                                           QStringLiteral("--plugin"), host.fileName()}
        + arguments;
    QCryptographicHash plugin(QCryptographicHash::Sha1);
    InputFile file(host.fileName());
    plugin.addData(&file);
    file.check();
    settings.fingerprint = arguments.join(QLatin1Char(' ')).toUtf8() + ' '
        + QCoreApplication::applicationVersion().toUtf8() + ' ' + plugin.result().toHex();
    return settings;
}

int Command::convertMany(const QStringList &inputs) const
{
    if (!isSet("to")) {
        throw LessonError(say("It isn't said what the lessons are to become"), say("Say the format, such as --to iwb"));
    }
    const LessonFormat &to = lessonFormatByName(value("to"));
    checkCanWrite(to, value(manyOption));
    checkUseOf(m_line.givenFormatOptions(), to);
    const PluginHost host(value("plugin"));
    return runMany(inputs, to.extensions.first(), batchSettings(host, BatchWork::conversion));
}

int Command::renderMany(const QStringList &inputs) const
{
    if (!isSet("to")) {
        throw LessonError(say("It isn't said what the lessons are to be drawn as"), say("Say it, such as --to pdf"));
    }
    const RenderSettings settings = manyRenderSettings();
    const PluginHost host(value("plugin"));
    return runMany(inputs, settings.isFolder ? QString() : settings.form->extensions.first(),
                   batchSettings(host, BatchWork::drawing));
}

int Command::runMany(const QStringList &inputs, const QString &extension, const BatchSettings &settings) const
{
    StandardStreams::refuse(inputs + QStringList{settings.outputFolder});
    const LessonFormat *from = isSet("from") ? &lessonFormatByName(value("from")) : nullptr;
    const BatchPlan plan = planBatch(inputs, from, extension, settings.outputFolder, m_line.shard());
    if (isSet("report")) {
        InputGuard inputs = plan.inputs;
        const bool hasFolders = extension == QLatin1String("html") && !isSet("embed");
        checkReport(value("report"), inputs, outputsOf(plan, settings.outputFolder, hasFolders));
    }
    errno = 0;
    if (!QDir().mkpath(settings.outputFolder)) {
        throw LessonError(say("The folder for the results can't be made: %1").arg(systemReason(errno)),
                          say("Check the path and that you may write there"))
            .in(settings.outputFolder);
    }
    ReportFile report(isSet("report") ? value("report") : QString());
    ProgressBar bar(!isSet("quiet"));
    BatchWatcher watcher;
    watcher.progress = [&bar](int done, int total, const QString &name) {
        bar.show(done, total, TO_SAY("%1 of %2 lessons"), name);
    };
    watcher.failure = [&bar](const Sentence &message) {
        bar.clear();
        complain(message);
    };
    std::unique_ptr<BatchRecords> records;
    if (isSet("report") || isSet("json")) {
        records = std::make_unique<BatchRecords>(plan);
        watcher.told = [&records, &settings](int index, BatchTotals::State state, const QJsonObject &result,
                                             const Sentence &message) {
            records->put(index, state, result, message, *settings.work);
        };
    }
    const BatchResult result = runBatch(plan, settings, watcher);
    bar.clear();
    if (isSet("report")) {
        records->write(result.totals, [&report](const QByteArray &piece) { report.put(piece); });
        report.commit();
    }
    if (isSet("json")) {
        records->write(result.totals, [](const QByteArray &piece) { print(QString::fromUtf8(piece)); });
    } else if (!isSet("quiet")) {
        print(result.totals.summary(isSet("report") ? say("the report") : say("--report FILE")));
    }
    return result.hasJournalFailed ? NotDone : exitCodeOf(result.totals);
}

int Command::exitCodeOf(const BatchTotals &totals) const
{
    if (totals.isInterrupted || totals.count(BatchTotals::Failed) > 0 || totals.count(BatchTotals::Open) > 0) {
        return NotDone;
    }
    return totals.foundCount() > 0 || (isSet("strict") && totals.lossCount() > 0) ? DoneWithLosses : Done;
}

int Command::mergeMany(const QStringList &reports) const
{
    InputGuard inputs;
    QStringList files;
    for (const QString &report : reports) {
        inputs.add(report);
        files.append(inputFile(report));
    }
    if (isSet("report")) {
        checkReport(value("report"), inputs, {});
        checkOutput(value("report"));
    }
    ReportFile report(isSet("report") ? value("report") : QString());
    QStringList failures;
    const BatchTotals totals = mergeReports(
        files,
        [this, &report](const QByteArray &piece) {
            report.put(piece);
            if (isSet("json")) {
                print(QString::fromUtf8(piece));
            }
        },
        &failures);
    report.commit();
    if (!isSet("json") && !isSet("quiet")) {
        Sentences lines{totals.summary(say("the report of its run"))};
        if (const Sentence shards = totals.shardSummary(); !shards.isEmpty()) {
            lines.append(shards);
        }
        lines += totals.kinds.summary();
        const qint64 failed = totals.count(BatchTotals::Failed);
        if (failed > 0) {
            lines.append(failed > failures.size() ? sayNumber(totals.work->someUndone, failed).arg(failures.size())
                                                  : say(totals.work->undone));
            for (const QString &failure : qAsConst(failures)) {
                lines.append(Sentence(failure));
            }
        }
        print(onLines(lines));
    }
    return totals.notTaken() > 0 || !totals.missingShards().isEmpty() ? NotDone : exitCodeOf(totals);
}

int Command::serve(const QStringList &) const
{
    const PluginHost host(value("plugin"));
    const LessonFormat &to = lessonFormatByName(value("to"));
    serveBatch([&](const QString &input, const QString &output) {
        LossReport losses;
        convertLesson(inputFormat(input), input, to, output, conversionContext(host, &losses), [](int, int) {});
        return BatchAnswer{losses.toJson(), {}};
    });
    return Done;
}

int Command::servePictures(const QStringList &) const
{
    const PluginHost host(value("plugin"));
    const LessonContext context = readingContext(host);
    const RenderSettings settings = manyRenderSettings();
    serveBatch([&](const QString &input, const QString &output) {
        const auto reader = inputFormat(input).open(input, context);
        const Rendered rendered = renderLesson(*reader, context, output, settings, [](int, int) {});
        return BatchAnswer{rendered.report, rendered.notes};
    });
    return Done;
}

int Command::render(const QStringList &files) const
{
    const QString &input = files.first();
    const QString &output = files.last();
    RenderSettings settings = renderSettings(pictureForm(output), {input});
    // Nothing lies beside what is printed.
    settings.isEmbedded |= StandardStreams::isStandardOutput(output);
    const LessonFormat &format = inputFormat(input);
    tellName(input, format);
    checkOutput(output);
    if (isSet("report")) {
        checkReport(value("report"), settings.inputs, {output});
    }
    ReportFile report(isSet("report") ? value("report") : QString());
    const PluginHost host(value("plugin"));
    const LessonContext context = readingContext(host);
    ProgressBar bar(!isSet("quiet"));
    const auto reader = format.open(inputFile(input), context);
    const Rendered rendered =
        renderLesson(*reader, context, m_streams->output(output, settings.form->extensions.first()), settings,
                     [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    report.write(rendered.report);
    tellNotes(rendered.notes);
    if (!StandardStreams::isStandardOutput(output)) {
        tellRendered(rendered.report);
    }
    return Done;
}

int Command::renderDifference(const QStringList &files) const
{
    const RenderSettings settings = renderSettings(pictureForm(files.last()), files.mid(0, files.size() - 1));
    const PluginHost host(value("plugin"));
    const LessonContext context = readingContext(host);
    ProgressBar bar(!isSet("quiet"));
    checkOutput(files.last());
    const auto first = inputFormat(files.first()).open(inputFile(files.first()), context);
    const auto second = lessonFormatOfInput(inputFile(files.at(1))).open(inputFile(files.at(1)), context);
    const QString output = m_streams->output(files.last(), settings.form->extensions.first());
    const Rendered rendered =
        lessonhost::renderDifference(*first, files.first(), *second, files.at(1), context, output, settings,
                                     [&bar](int done, int total) { bar.show(done, total); });
    bar.clear();
    tellNotes(rendered.notes);
    if (!StandardStreams::isStandardOutput(files.last())) {
        tellRendered(rendered.report);
    }
    return Done;
}

int Command::show(const QStringList &files) const
{
    const QByteArray path = QFileInfo(files.first()).absoluteFilePath().toUtf8();
    const QByteArray name = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
    const QString page = pageFolder() + QStringLiteral("/%1.html").arg(QLatin1String(name));
    try {
        const LessonFormat &format = inputFormat(files.first());
        const PluginHost host(value("plugin"));
        const LessonContext context = readingContext(host);
        ProgressBar bar(!isSet("quiet"));
        const auto reader = format.open(inputFile(files.first()), context);
        renderLesson(*reader, context, page, renderSettings(pictureFormOfOutput(page), files),
                     [&bar](int done, int total) { bar.show(done, total); });
        bar.clear();
    } catch (const LessonError &error) {
        writeFailurePage(page, m_streams->named(error).message());
        openInBrowser(page);
        throw;
    }
    openInBrowser(page);
    return Done;
}

RenderSettings Command::renderSettings(const PictureForm &form, const QStringList &inputs) const
{
    RenderSettings settings = lessonhost::renderSettings(form, [this](const char *option) {
        const QString text = value(option);
        return !isSet(option) ? QString() : text.isNull() ? QStringLiteral("") : text;
    });
    settings.isKept = isSet("no-clobber");
    for (const QString &input : inputs) {
        const LessonFormat &format =
            input == inputs.first() ? inputFormat(input) : lessonFormatOfInput(inputFile(input));
        settings.inputs.addLesson(input, format.folderBeside);
    }
    return settings;
}

// A lesson has a file or, where its slides have one each and all are wanted, a folder.
RenderSettings Command::manyRenderSettings() const
{
    RenderSettings settings = renderSettings(pictureFormByName(value("to")), {});
    settings.isFolder = settings.form->isPerSlide && settings.slides.size() != 1;
    return settings;
}

void Command::tellNotes(const Sentences &notes) const
{
    for (const Sentence &note : notes) {
        if (!isSet("quiet") && !isSet("json")) {
            complain(say("Note: %1").arg(note));
        }
    }
}

void Command::tellRendered(const QJsonObject &report) const
{
    if (isSet("json")) {
        printJson(report);
    } else if (!isSet("quiet")) {
        const int slides = report.value(QLatin1String("slides")).toInt();
        const int named = report.value(QLatin1String("named")).toArray().size();
        print(named > 0 ? say("Slides drawn: %1. Items shown by their name: %2.").arg(slides, named)
                        : say("Slides drawn: %1.").arg(slides));
    }
}

} // namespace lessonhost
