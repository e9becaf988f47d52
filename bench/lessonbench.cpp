// SPDX-License-Identifier: MIT
#include "marks.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <vector>

// Whole lessons through lessonconv as a process, against a bare program that parses the same lesson into a DOM and
// prints it again: the processor's time, the time that a person waits, and peak memory, and how the memory grows with
// the number of slides. Then many small lessons.
//
//   lessonbench [SLIDES [LESSONS]]  measures; 1000 slides and 2000 lessons if nothing is said
//   lessonbench parse FOLDER FOLDER is the bare program

namespace {

const int itemsPerSlide = 50;
const int itemsOfSmallLesson = 2;
const int repetitions = 3;
const int somethingFound = 1; // the sample items name files that aren't there, which a check tells

struct Cost
{
    double seconds; // of the processors, in the program and in the system: the system tells the two apart by samples
    double waited; // seconds from start to end
    double megabytes;
};

/*!
 * A conversion, a drawing or a look, with what it may cost.
 */
struct Road
{
    const char *name;
    QStringList arguments;
    int base; // the road that it is measured against
    double mark; // 0 where there is none
    bool isTold; // the one of these slides counts, not the one of a tenth
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

// Raw items in turn, as one document.
void makeRawLesson(const QString &file, int slides)
{
    QDomDocument samples;
    samples.setContent(read(QStringLiteral(SAMPLES_DIR "/rawsamples.xml")), false);
    QString text = QStringLiteral("<presentation Version=\"4.0\" Width=\"1440\" Height=\"1080\">");
    QTextStream stream(&text);
    QDomElement item = samples.documentElement().firstChildElement();
    for (int i = 0; i < slides; ++i) {
        stream << R"(<slide SlideSourceRect="0,0,1440,1080">)";
        for (int j = 0; j < itemsPerSlide; ++j) {
            item.save(stream, -1);
            item = item.nextSiblingElement();
            if (item.isNull()) {
                item = samples.documentElement().firstChildElement();
            }
        }
        stream << "</slide>\n";
    }
    stream << "</presentation>\n";
    stream.flush();
    write(file, text.toUtf8());
}

// The cost of a process that must succeed, and of those that it starts.
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
    std::fflush(stdout); // or the child prints it, too
    QElapsedTimer waited;
    waited.start();
    const pid_t child = fork();
    if (child == 0) {
        if (!std::freopen("/dev/null", "w", stdout)) {
            _exit(127);
        }
        execv(arguments.front(), arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    const bool hasRun = child > 0 && wait4(child, &status, 0, &usage) == child && WIFEXITED(status);
    if (!hasRun || (WEXITSTATUS(status) != 0 && WEXITSTATUS(status) != somethingFound)) {
        qFatal("%s failed", qPrintable(command.join(QLatin1Char(' '))));
    }
    const double wall = double(waited.nsecsElapsed()) * 1e-9;
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) * 1e-6; };
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime), wall, double(usage.ru_maxrss) / 1024};
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

QStringList command(const QStringList &words)
{
    return QStringList{QStringLiteral(LESSONCONV)} + words;
}

QString processorsTime(double ratio)
{
    return QStringLiteral("%1 of the processors' time").arg(ratio, 0, 'f', 2);
}

// In turns, so that a busy machine disturbs all alike.
void measureRoads(const std::vector<Road> &roads)
{
    std::vector<std::vector<Cost>> costs(roads.size());
    for (int turn = 0; turn < repetitions; ++turn) {
        for (std::size_t i = 0; i < roads.size(); ++i) {
            costs[i].push_back(costOf(roads[i].arguments));
        }
    }
    for (std::size_t i = 0; i < roads.size(); ++i) {
        std::vector<double> ratios;
        std::vector<double> waits; // as ratios, too
        std::vector<double> seconds;
        std::vector<double> megabytes;
        for (std::size_t turn = 0; turn < costs[i].size(); ++turn) {
            const Cost &cost = costs[i][turn];
            seconds.push_back(cost.seconds);
            megabytes.push_back(cost.megabytes);
            const Cost &base = costs[std::size_t(roads[i].base)][turn];
            ratios.push_back(cost.seconds / base.seconds);
            waits.push_back(cost.waited / base.waited);
        }
        const double ratio = median(ratios);
        const double wait = median(waits);
        std::printf("%-34s %7.2f s %5.2f x, waited %5.2f x   %7.1f MB\n", roads[i].name, median(seconds), ratio, wait,
                    median(megabytes));
        std::fflush(stdout);
        if (roads[i].isTold && roads[i].mark > 0) {
            tellMark(QLatin1String(roads[i].name), wait, roads[i].mark, processorsTime(ratio));
        }
    }
}

void measure(int slides, bool isTold)
{
    const QTemporaryDir folder;
    const auto path = [&folder](const char *name) { return folder.filePath(QLatin1String(name)); };
    const QString lesson = path("lesson");
    makeLesson(lesson, slides);
    QDir().mkpath(path("raw"));
    const QString raw = path("raw/raw.xml");
    makeRawLesson(raw, slides);
    QDir().mkpath(path("out"));
    const QString json = path("out/lesson.json");
    const QString iwb = path("out/lesson.iwb");
    const QString zqtx = path("out/lesson.zqtx");
    const QString quiet = QStringLiteral("--quiet");
    const QString unchecked = QStringLiteral("--no-check");
    // What drawings of items cost is counted apart; those that go as elements are drawn, too.
    const QStringList unpainted{QStringLiteral("--items"), QStringLiteral("drop")};
    const auto convert = [&](const QString &from, const QString &to, const QStringList &options = {}) {
        return command(QStringList{QStringLiteral("convert"), from, to, quiet} + options);
    };
    const QString self = QCoreApplication::applicationFilePath();
    const QString parse = QStringLiteral("parse");
    enum { Bare, BareRaw, Export = 8 };
    const std::vector<Road> roads{
        {"parse and print", {self, parse, lesson, path("out")}, Bare, 0, isTold},
        {"parse and print raw XML", {self, parse, path("raw"), path("out")}, Bare, 0, isTold},
        {"ZQTX to JSON, no check", convert(lesson, json, {unchecked}), Bare, 0, isTold},
        {"ZQTX to JSON, checked", convert(lesson, json), Bare, 1.8, isTold},
        {"JSON to ZQTX, no check", convert(json, zqtx, {unchecked}), Bare, 0, isTold},
        {"JSON to ZQTX, checked", convert(json, zqtx), Bare, 2.2, isTold},
        {"ZQTX to IWB, no check", convert(lesson, iwb, unpainted + QStringList{unchecked}), Bare, 0, isTold},
        {"ZQTX to IWB, checked, nothing drawn", {QStringLiteral(UNDRAWNIWB), lesson, iwb}, Bare, 2.5, isTold},
        {"ZQTX to IWB, checked, no pictures", convert(lesson, iwb, unpainted), Bare, 0, isTold},
        {"IWB to ZQTX, checked", convert(iwb, zqtx), Bare, 2.5, isTold},
        {"raw XML to ZQTX, checked", convert(raw, zqtx), BareRaw, 2.5, isTold},
        {"info", command({QStringLiteral("info"), lesson, quiet}), Bare, 1.0, isTold},
        {"check, without other formats", command({QStringLiteral("check"), lesson, quiet, unchecked}), Bare, 1.0, isTold},
        {"check, and what IWB would lose", command({QStringLiteral("check"), lesson, quiet}), Bare, 1.0, isTold},
        {"render to html, against to IWB", command({QStringLiteral("render"), lesson, path("out/lesson.html"), quiet}),
         Export, 2.0, isTold},
    };
    std::printf("%d slides with %d items each\n", slides, itemsPerSlide);
    measureRoads(roads);
    if (!isTold) {
        // Some hundred times as long, so a few slides tell it.
        const Cost dropped = costOf(convert(lesson, iwb, unpainted));
        const Cost painted = costOf(convert(lesson, iwb));
        std::printf("pictures of items for IWB: %.0f ms a slide\n",
                    (painted.seconds - dropped.seconds) * 1000 / slides);
    }
}

// What a run over many lessons costs beside the conversions: many lessons of one slide against one of as many slides.
void measureMany(int lessons)
{
    const QTemporaryDir folder;
    makeLesson(folder.filePath(QStringLiteral("one")), 1);
    const QString one = folder.filePath(QStringLiteral("one.json"));
    costOf(
        command({QStringLiteral("convert"), folder.filePath(QStringLiteral("one")), one, QStringLiteral("--quiet")}));
    QJsonObject lesson = QJsonDocument::fromJson(read(one)).object();
    QJsonObject slide = lesson.value(QStringLiteral("Slides")).toArray().first().toObject();
    QJsonArray items;
    for (int i = 0; i < itemsOfSmallLesson; ++i) {
        items.append(slide.value(QStringLiteral("Items")).toArray().at(i));
    }
    slide.insert(QStringLiteral("Items"), items);
    QJsonArray slides;
    const QString in = folder.filePath(QStringLiteral("in"));
    QDir().mkpath(in);
    for (int i = 0; i < lessons; ++i) {
        slide.insert(QStringLiteral("ID"), QString::number(i + 1));
        slides.append(slide);
        lesson.insert(QStringLiteral("Slides"), QJsonArray{slide});
        write(in + QStringLiteral("/%1.json").arg(i), QJsonDocument(lesson).toJson());
    }
    lesson.insert(QStringLiteral("Slides"), slides);
    write(one, QJsonDocument(lesson).toJson());
    const QStringList options{QStringLiteral("--items"), QStringLiteral("drop"), QStringLiteral("--quiet")};
    const Cost many =
        costOf(command(QStringList{QStringLiteral("convert"), in, QStringLiteral("--to"), QStringLiteral("iwb"),
                                   QStringLiteral("--out-dir"), folder.filePath(QStringLiteral("out"))}
                       + options));
    const Cost together = costOf(
        command(QStringList{QStringLiteral("convert"), one, folder.filePath(QStringLiteral("one.iwb"))} + options));
    const auto milliseconds = [lessons](const Cost &cost) { return cost.seconds * 1000 / lessons; };
    std::printf("%d lessons to IWB: %.2f ms a lesson, of which its conversion takes %.2f\n", lessons,
                milliseconds(many), milliseconds(together));
    tellMark(QStringLiteral("a lesson of many, in ms above its conversion"),
             milliseconds(many) - milliseconds(together), 5);
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
    // First, since a file system may take longer to make files after many were removed.
    measureMany(words.size() > 1 ? words.at(1).toInt() : 2000);
    // A tenth of the slides tells how memory grows.
    measure(qMax(1, slides / 10), false);
    measure(slides, true);
    return 0;
}
