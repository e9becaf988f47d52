// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

// Whole lessons through lessonconv as a process, against a bare program that parses the same files into a DOM and
// prints them again: user time and peak memory, and how the memory grows with the number of slides.
//
//   lessonbench [SLIDES]            measures; 1000 slides if nothing is said
//   lessonbench parse FOLDER FOLDER is the bare program

namespace {

const int itemsPerSlide = 50;
const int repetitions = 3;

struct Cost
{
    double seconds;
    double megabytes;
};

QByteArray read(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        qFatal("can't read %s", qPrintable(file));
    }
    return input.readAll();
}

void write(const QString &file, const QByteArray &text)
{
    QFile output(file);
    if (!output.open(QIODevice::WriteOnly) || output.write(text) != text.size()) {
        qFatal("can't write %s", qPrintable(file));
    }
}

// A lesson of the sample items in turn, each slide with all families on it.
void makeLesson(const QString &folder, int slides)
{
    QDomDocument samples;
    samples.setContent(read(QStringLiteral(SAMPLES_DIR "/zqtxsamples.xml")), false);
    QDir().mkpath(folder + QLatin1String("/slides"));
    QString files;
    int number = 0;
    for (int i = 1; i <= slides; ++i) {
        QString text =
            QStringLiteral(R"(<slide id="%1"><background><color value="255,255,255,255"/></background><items>)").arg(i);
        QTextStream stream(&text);
        QDomElement item = samples.documentElement().firstChildElement();
        for (int j = 0; j < itemsPerSlide; ++j) {
            item.setAttribute(QStringLiteral("id"), ++number);
            item.save(stream, -1);
            item = item.nextSiblingElement();
            if (item.isNull()) {
                item = samples.documentElement().firstChildElement();
            }
        }
        stream << "</items></slide>\n";
        stream.flush();
        write(folder + QStringLiteral("/slides/%1.xml").arg(i), text.toUtf8());
        files += QStringLiteral(R"(<file href="slides/%1.xml"/>)").arg(i);
    }
    write(folder + QLatin1String("/index.xml"),
          QStringLiteral(R"(<main id="1" width="1440" height="1080" version="4.0"><slides>%1</slides></main>)")
              .arg(files)
              .toUtf8());
}

int parseAndPrint(const QString &from, const QString &to)
{
    QDirIterator files(from, {QStringLiteral("*.xml")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        QDomDocument document;
        document.setContent(read(file), false);
        write(to + QLatin1Char('/') + files.fileName(), document.toByteArray(1));
    }
    return 0;
}

// User time and peak memory of a process that must succeed.
Cost costOf(const QStringList &command)
{
    std::vector<QByteArray> words;
    std::vector<char *> arguments;
    arguments.reserve(std::size_t(command.size()) + 1);
    for (const QString &word : command) {
        words.push_back(word.toLocal8Bit());
    }
    for (QByteArray &word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        execv(arguments.front(), arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        qFatal("%s failed", qPrintable(command.join(QLatin1Char(' '))));
    }
    return {double(usage.ru_utime.tv_sec) + double(usage.ru_utime.tv_usec) * 1e-6, double(usage.ru_maxrss) / 1024};
}

Cost medianCost(const QStringList &command)
{
    std::vector<double> seconds;
    std::vector<double> megabytes;
    for (int i = 0; i < repetitions; ++i) {
        const Cost cost = costOf(command);
        seconds.push_back(cost.seconds);
        megabytes.push_back(cost.megabytes);
    }
    std::sort(seconds.begin(), seconds.end());
    std::sort(megabytes.begin(), megabytes.end());
    return {seconds[repetitions / 2], megabytes[repetitions / 2]};
}

void printRow(const char *name, const Cost &cost, const Cost &bare)
{
    std::printf("%-28s %7.2f s %5.2f x   %7.1f MB %5.2f x\n", name, cost.seconds, cost.seconds / bare.seconds,
                cost.megabytes, cost.megabytes / bare.megabytes);
    std::fflush(stdout);
}

void measure(int slides)
{
    const QTemporaryDir folder;
    const QString lesson = folder.filePath(QStringLiteral("lesson"));
    makeLesson(lesson, slides);
    const QString out = folder.filePath(QStringLiteral("out"));
    QDir().mkpath(out);
    const QString json = out + QLatin1String("/lesson.json");

    const Cost bare = medianCost({QCoreApplication::applicationFilePath(), QStringLiteral("parse"), lesson, out});
    std::printf("%d slides with %d items each\n", slides, itemsPerSlide);
    printRow("parse and print", bare, bare);
    const auto convert = [&](const char *name, const QString &from, const QString &to, const QStringList &options) {
        printRow(name,
                 medianCost(QStringList{QStringLiteral(LESSONCONV), QStringLiteral("convert"), from, to,
                                        QStringLiteral("--quiet")}
                            + options),
                 bare);
    };
    const QStringList unchecked{QStringLiteral("--no-check")};
    convert("ZQTX to JSON, no check", lesson, json, unchecked);
    convert("ZQTX to JSON, checked", lesson, json, {});
    convert("JSON to ZQTX, no check", json, out + QLatin1String("/lesson.zqtx"), unchecked);
    convert("JSON to ZQTX, checked", json, out + QLatin1String("/lesson.zqtx"), {});
    convert("ZQTX to IWB, no check", lesson, out + QLatin1String("/lesson.iwb"), unchecked);
    convert("ZQTX to IWB, checked", lesson, out + QLatin1String("/lesson.iwb"), {});
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList words = application.arguments().mid(1);
    if (words.size() == 3 && words.first() == QLatin1String("parse")) {
        return parseAndPrint(words.at(1), words.at(2));
    }
    const int slides = words.isEmpty() ? 1000 : words.first().toInt();
    // A tenth of the slides tells how memory grows.
    measure(qMax(1, slides / 10));
    measure(slides);
    return 0;
}
