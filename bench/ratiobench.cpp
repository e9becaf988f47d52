// SPDX-License-Identifier: MIT
#include "ratiobench.h"

#include "marks.h"

#include <QDomDocument>
#include <QFile>
#include <QLoggingCategory>
#include <QMap>
#include <QPluginLoader>
#include <QTextStream>
#include <QVector>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>

namespace {

// The last ratio of each benchmark, by group and name.
QMap<QString, QMap<QString, double>> &results()
{
    static QMap<QString, QMap<QString, double>> all;
    return all;
}

// What the mean and the largest ratio of a group may be; 0 where there is no such mark.
struct Mark
{
    const char *group;
    double mean;
    double largest;
};

constexpr Mark marks[] = {
    {"read ZQTX", 0.7, 1.0},    {"write ZQTX", 0.7, 1.0},    {"read raw", 0.7, 1.0},     {"shape to svg", 0, 1.0},
    {"shape from svg", 0, 1.0}, {"choose", 0, 0.05},         {"read, per unit", 0, 1.3}, {"write, per unit", 0, 1.3},
    {"slide to svg", 0, 2.0},   {"slide to pixels", 0, 2.0},
};

void tellMarks(const QString &group, double mean, double largest, const QString &slowest)
{
    for (const Mark &mark : marks) {
        if (group != QLatin1String(mark.group)) {
            continue;
        }
        if (mark.mean > 0) {
            tellMark(group + QLatin1String(", mean of items"), mean, mark.mean);
        }
        tellMark(group + QLatin1String(", largest: ") + slowest, largest, mark.largest);
    }
}

// The processor's time, which other processes don't add to.
double secondsOf(const Work &work, int times)
{
    if (work.prepare) {
        work.prepare(times);
    }
    const std::clock_t start = std::clock();
    for (int i = 0; i < times; ++i) {
        work.run();
    }
    return double(std::clock() - start) / CLOCKS_PER_SEC / times;
}

// As often as makes a turn long beside reading the clock, and short beside what else the machine does.
int timesPerTurn(const Work &work)
{
    const double turn = 200e-6;
    return qBound(1, int(turn / qMax(secondsOf(work, 3), 1e-7)), 1000);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void printSummary()
{
    QTextStream out(stdout);
    for (auto group = results().cbegin(); group != results().cend(); ++group) {
        double logarithms = 0;
        double largest = 0;
        QString slowest;
        for (auto it = group->cbegin(); it != group->cend(); ++it) {
            logarithms += std::log(it.value());
            // Ten units share less of what comes once than a hundred.
            if (it.value() > largest && !it.key().endsWith(QLatin1String(" 10"))) {
                largest = it.value();
                slowest = it.key();
            }
        }
        const double mean = std::exp(logarithms / group->size());
        tellMarks(group.key(), mean, largest, slowest);
        out << group.key() << ": geometric mean " << QString::number(mean, 'f', 2) << ", largest "
            << QString::number(largest, 'f', 2) << " (" << slowest << ")\n";
    }
}

} // namespace

IZQTransformation *plugin()
{
    static QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    static auto *interface = qobject_cast<IZQTransformation *>(loader.instance());
    if (!interface) {
        qFatal("%s", qPrintable(loader.errorString()));
    }
    return interface;
}

std::vector<QDomElement> samples(const QString &file)
{
    static QVector<QDomDocument> documents;
    QFile input(QStringLiteral(SAMPLES_DIR "/") + file);
    QDomDocument document;
    if (!input.open(QIODevice::ReadOnly) || !document.setContent(&input, false)) {
        qFatal("can't read %s", qPrintable(input.fileName()));
    }
    documents.append(document);
    std::vector<QDomElement> elements;
    const QDomElement root = document.documentElement();
    for (QDomElement child = root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        elements.push_back(child);
    }
    return elements;
}

QString xmlText(const QDomElement &element)
{
    QString text;
    QTextStream stream(&text);
    element.save(stream, -1);
    return text;
}

QJsonObject itemContext()
{
    return {
        {QStringLiteral("pres"), QJsonObject{{QStringLiteral("Version"), QStringLiteral("4.0")}}},
        {QStringLiteral("slide"), QJsonObject{{QStringLiteral("SlideSourceRect"), QStringLiteral("0,0,1024,768")}}}};
}

void parse(const QString &xml)
{
    QDomDocument document;
    document.setContent(xml, false);
    benchmark::DoNotOptimize(document);
}

void registerRatio(const QString &group, const QString &name, const std::function<void()> &work,
                   const std::function<void()> &base)
{
    registerRatio(group, name, {work, {}}, {base, {}});
}

void registerRatio(const QString &group, const QString &name, const Work &work, const Work &base)
{
    const auto measure = [=](benchmark::State &state) {
        const int workTimes = timesPerTurn(work);
        const int baseTimes = timesPerTurn(base);
        std::vector<double> workTurns;
        std::vector<double> baseTurns;
        for (auto _ : state) {
            workTurns.push_back(secondsOf(work, workTimes));
            baseTurns.push_back(secondsOf(base, baseTimes));
        }
        const double workSeconds = median(workTurns);
        const double baseSeconds = median(baseTurns);
        state.counters["work_us"] = workSeconds * 1e6;
        state.counters["base_us"] = baseSeconds * 1e6;
        state.counters["ratio"] = workSeconds / baseSeconds;
        results()[group][name] = workSeconds / baseSeconds;
    };
    benchmark::RegisterBenchmark(qPrintable(group + QLatin1Char('/') + name), measure)
        ->UseRealTime()
        ->Unit(benchmark::kMicrosecond);
}

int runRatios(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    // The plug-in logs whole items while it writes, unless nobody listens.
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    benchmark::RunSpecifiedBenchmarks();
    printSummary();
    return 0;
}
