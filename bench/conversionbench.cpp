#include "izqtransformation.h"

#include <QJsonDocument>
#include <QPluginLoader>

#include <benchmark/benchmark.h>

#include <chrono>

// Every figure is a ratio within one run: the time of a conversion over the time that QDomDocument::setContent takes
// for the XML of the very same item. Both are measured in turns, so that a noisy machine disturbs both alike.

namespace {

IZQTransformation *plugin()
{
    static QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    static auto *interface = qobject_cast<IZQTransformation *>(loader.instance());
    if (!interface) {
        qFatal("%s", qPrintable(loader.errorString()));
    }
    return interface;
}

struct Sample
{
    const char *family;
    const char *zqtx;
    const char *raw;
};

const Sample samples[] = {
    {"stroke",
     R"(<stroke id="1603" color="#ff203040" width="3.5" visible="1" locked="0" uclone="0" type="Curve" cap="1" opacity="255"><transform><rotate angle="0.25"/></transform><data><vertex points="100,200,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6"/><path_width points="1,2,3"/><rect points="100,200,180,240"/></data></stroke>)",
     R"(<ZQSmoothStroke NetID="1603" TransformMatrix="1,0,0,1,10,20" Bound="200,300,0,0,100,200" Visible="1" LockIn="0" InfiniteClone="0" Angle="0.25" Color="255,1,2,3" Width="3"/>)"},
    {"group",
     R"(<group id="1700" visible="1" locked="0" uclone="0" type="group"><transform><rotate angle="0"/></transform><element/><data><rect points="0,0,100,100"/><stroke id="1603" color="#ff203040" width="3.5" visible="1" locked="0" uclone="0" type="Curve" cap="1" opacity="255"><transform><rotate angle="0.25"/></transform><data><vertex points="100,200,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6,3,4,5,6"/><path_width points="1,2,3"/><rect points="100,200,180,240"/></data></stroke></data></group>)",
     R"(<ZQGroupItem NetID="1700" TransformMatrix="1,0,0,1,10,20" Bound="200,300,0,0,100,200" Visible="1" LockIn="0" InfiniteClone="0"><GroupSonItems><ZQSmoothStroke NetID="1603" TransformMatrix="1,0,0,1,10,20" Bound="200,300,0,0,100,200" Visible="1" LockIn="0" InfiniteClone="0" Angle="0.25"/></GroupSonItems></ZQGroupItem>)"},
};

template <typename F> double seconds(F &&work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <typename F> void compareWithParsing(benchmark::State &state, const QString &xml, F convert)
{
    double conversion = 0;
    double parsing = 0;
    const auto parse = [&xml] {
        QDomDocument document;
        document.setContent(xml, false);
        benchmark::DoNotOptimize(document);
    };
    for (auto _ : state) {
        const double c = seconds([&] { for (int i = 0; i < 20; ++i) convert(); });
        parsing += seconds([&] { for (int i = 0; i < 20; ++i) parse(); });
        conversion += c;
        state.SetIterationTime(c/20);
    }
    state.counters["ratio"] = conversion / parsing;
    state.counters["parse_us"] = parsing * 1e6 / double(state.iterations())/20;
}

void registerSamples()
{
    for (const Sample &sample : samples) {
        const QString zqtx = QString::fromUtf8(sample.zqtx);
        const QJsonObject context{{QStringLiteral("pres"), QJsonObject{{QStringLiteral("Version"), QStringLiteral("4.0")}}}};
        auto *read = benchmark::RegisterBenchmark((std::string("read/") + sample.family).c_str(), [=](benchmark::State &state) {
            QDomDocument document;
            document.setContent(zqtx, false);
            const QDomElement element = document.documentElement();
            compareWithParsing(state, zqtx, [&] { benchmark::DoNotOptimize(plugin()->tranItemZQTX2JSON(element, context)); });
        });
        read->UseManualTime();
        auto *write = benchmark::RegisterBenchmark((std::string("write/") + sample.family).c_str(), [=](benchmark::State &state) {
            QDomDocument document;
            document.setContent(zqtx, false);
            const QJsonObject json = plugin()->tranItemZQTX2JSON(document.documentElement(), context);
            compareWithParsing(state, zqtx, [&] { benchmark::DoNotOptimize(plugin()->tranItemJSON2ZQTX({}, json)); });
        });
        write->UseManualTime();
        if (sample.raw) {
            const QString raw = QString::fromUtf8(sample.raw);
            benchmark::RegisterBenchmark((std::string("raw/") + sample.family).c_str(), [=](benchmark::State &state) {
                QDomDocument document;
                document.setContent(raw, false);
                const QDomElement element = document.documentElement();
                QJsonObject rawContext = context;
                rawContext.insert(QStringLiteral("slide"), QJsonObject{{QStringLiteral("SlideSourceRect"), QStringLiteral("0,0,1024,768")}});
                compareWithParsing(state, raw, [&] { benchmark::DoNotOptimize(plugin()->tranItemXML2JSON(element, rawContext)); });
            })->UseManualTime();
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    registerSamples();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
