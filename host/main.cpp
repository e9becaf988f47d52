#include "conversion.h"
#include "lessonerror.h"
#include "lessoninfo.h"
#include "lossreport.h"
#include "packagetarget.h"
#include "pluginhost.h"
#include "progressbar.h"
#include "rendering.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QTextStream>

namespace {

enum ExitCode { Done = 0, DoneWithLosses = 1, NotDone = 2 };

// Names come from files of strangers; what they hold must not move a terminal's cursor.
QString printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control && c != QLatin1Char('\n')) {
            c = QChar::ReplacementCharacter;
        }
    }
    return text;
}

void print(const QString &text)
{
    QTextStream(stdout) << printable(text);
}

void complain(const QString &text)
{
    QTextStream(stderr) << "lessonconv: " << printable(text) << '\n';
}

// The plug-in logs whole items while it writes.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        complain(text);
    }
}

QCommandLineOption option(const char *name, const char *description, const char *value = nullptr)
{
    return QCommandLineOption(QLatin1String(name), QLatin1String(description), QLatin1String(value ? value : ""));
}

const char *const usage = R"(Converts lessons of interactive whiteboards and tells what is in them.

  lessonconv convert INPUT OUTPUT   converts a lesson; the names say the formats
  lessonconv render INPUT OUTPUT    draws the slides as .html, .pdf, .svg or .png
  lessonconv info INPUT             page size, slides, items, missing files
  lessonconv formats                the formats and their file names

Examples:
  lessonconv convert lesson.zqtx lesson.json
  lessonconv convert lesson.json lesson.zqtx --report losses.json
  lessonconv convert lesson.zqtx lesson.iwb
  lessonconv render lesson.zqtx lesson.html
  lessonconv render lesson.zqtx slide%d.png --slides 2-5 --size 1280x720
  lessonconv render --diff lesson.zqtx lesson.iwb difference.html
  lessonconv info lesson.zqtx

Exit code: 0 done, 1 done with losses and --strict, 2 not done.)";

class Command
{
public:
    Command()
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
            option("report", "Write everything that was lost or kept aside into this file, as JSON.", "file"),
            option("strict", "Treat losses as a failure: exit code 1."),
            option("no-check", "Don't read back what was written. Faster, but losses stay unnoticed."),
            option("ink", "What becomes of handwriting in IWB: polyline (the default) or drop.", "choice"),
            option("size", "With render: the size of a picture or page in pixels.", "widthxheight"),
            option("slides", "With render: only these slides, such as 2-5 or 1,4.", "slides"),
            option("diff", "With render: two lessons side by side, with the values that the second lacks."),
            option("json", "With info and render: print JSON."),
            option("quiet", "No progress bar and no list of losses."),
            option("verbose", "Print what the libraries log."),
            option("plugin", "The plug-in's file, where it is in an unusual place.", "file"),
        });
    }

    int run(const QStringList &arguments)
    {
        if (!m_parser.parse(arguments)) {
            throw LessonError(m_parser.errorText(), QStringLiteral("See lessonconv --help"));
        }
        if (isSet("version")) {
            m_parser.showVersion();
        }
        if (isSet("verbose")) {
            qInstallMessageHandler(nullptr);
        }
        const QStringList words = m_parser.positionalArguments();
        if (isSet("help") || words.isEmpty()) {
            print(m_parser.helpText());
            return words.isEmpty() && !isSet("help") ? NotDone : Done;
        }
        const QString command = words.first();
        const QStringList files = words.mid(1);
        if (command == QLatin1String("formats") && files.isEmpty()) {
            return formats();
        }
        if (command == QLatin1String("info") && files.size() == 1) {
            return info(files.first());
        }
        if (command == QLatin1String("convert") && files.size() == 2) {
            return convert(files.first(), files.last());
        }
        if (command == QLatin1String("render") && files.size() == (isSet("diff") ? 3 : 2)) {
            return render(files);
        }
        throw LessonError(
            QStringLiteral("The command \"%1\" isn't complete or isn't known").arg(words.join(QLatin1Char(' '))),
            QStringLiteral("See lessonconv --help"));
    }

private:
    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }
    QString value(const char *name) const { return m_parser.value(QLatin1String(name)); }

    const LessonFormat &inputFormat(const QString &input) const
    {
        return isSet("from") ? lessonFormatByName(value("from")) : lessonFormatOfInput(input);
    }

    QString inkChoice() const
    {
        const QString choice = isSet("ink") ? value("ink") : QStringLiteral("polyline");
        if (choice != QLatin1String("polyline") && choice != QLatin1String("drop")) {
            throw LessonError(QStringLiteral("Ink can't be treated as \"%1\"").arg(choice),
                              QStringLiteral("Say --ink polyline or --ink drop"));
        }
        return choice;
    }

    int formats() const
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

    int info(const QString &input) const
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
        print(isSet("json") ? QString::fromUtf8(QJsonDocument(info.toJson()).toJson()) : info.toText());
        return Done;
    }

    int convert(const QString &input, const QString &output) const
    {
        const LessonFormat &from = inputFormat(input);
        const LessonFormat &to = isSet("to") ? lessonFormatByName(value("to")) : lessonFormatOfOutput(output);
        const PluginHost host(value("plugin"));
        LossReport losses;
        LessonContext context;
        context.plugin = host.plugin();
        context.losses = &losses;
        context.verify = !isSet("no-check");
        context.options.insert(QStringLiteral("ink"), inkChoice());
        ProgressBar bar(!isSet("quiet"));
        convertLesson(from, input, to, output, context, [&bar](int done, int total) { bar.show(done, total); });
        bar.clear();
        if (isSet("report")) {
            writeReport(value("report"), losses);
        }
        if (!losses.isEmpty() && !isSet("quiet")) {
            complain(losses.summary());
        }
        return isSet("strict") && losses.lossCount() > 0 ? DoneWithLosses : Done;
    }

    int render(const QStringList &files) const
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
            result = renderDifference(*reader, files.first(), *second, files.at(1), context, files.last(), settings,
                                      progress);
        } else {
            result = renderLesson(*reader, context, files.last(), settings, progress);
        }
        bar.clear();
        if (isSet("json")) {
            print(QString::fromUtf8(QJsonDocument(result).toJson()));
        } else if (!isSet("quiet")) {
            const int named = result.value(QLatin1String("named")).toArray().size();
            print(QStringLiteral("Slides drawn: %1.%2\n")
                      .arg(result.value(QLatin1String("slides")).toInt())
                      .arg(named ? QStringLiteral(" Items shown by their name: %1.").arg(named) : QString()));
        }
        return Done;
    }

    static void writeReport(const QString &path, const LossReport &losses)
    {
        PackageTarget target(path);
        QFile file(target.file());
        const QByteArray text = QJsonDocument(losses.toJson()).toJson();
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
            throw LessonError(QStringLiteral("The report can't be written: %1").arg(file.errorString())).in(path);
        }
        target.commitFile();
    }

    QCommandLineParser m_parser;
};

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(keepQuiet);
    // The same lesson gives the same bytes, whichever run writes it.
    qSetGlobalQHashSeed(0);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Qt's own options, "--plugin" among them, are not for it to take.
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    int applicationArguments = 1;
    QGuiApplication application(applicationArguments, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lessonconv"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LESSONCONV_VERSION));
    try {
        return Command().run(arguments);
    } catch (const LessonError &error) {
        complain(error.message());
    } catch (const std::exception &error) {
        complain(QStringLiteral("Something unexpected happened: %1").arg(QString::fromLocal8Bit(error.what())));
    }
    return NotDone;
}
