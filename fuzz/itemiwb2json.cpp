#include "fuzzsupport.h"
#include "mutation.h"

// Any XML as an svg item to import, with and without a package, and what comes out exported and imported again.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QDomDocument document = documentOf(data, size);
    const QDomElement element = document.documentElement();
    if (element.isNull()) {
        return 0;
    }
    const QString before = treeText(element);
    const auto import = [size](const QDomElement &source, const QJsonObject &json) {
        return guarded("importing an item", size, [&] { return plugin().tranItemIWB2JSON(source, json); });
    };
    releaseTextRuns(import(element, {}));
    const QJsonObject item =
        import(element, {{QStringLiteral("path"), QString(workFolder() + QLatin1String("/package/"))}});
    mustBeSame("an import leaves the element alone", treeText(element), before);

    QDomDocument target = plugin().tranPresJSON2IWB({}, {});
    QJsonObject toExport = item;
    toExport.insert(QStringLiteral("tmpFilePath"), QString(workFolder() + QLatin1String("/export")));
    // This also takes the text runs back, if the type is one that has any.
    const QDomElement exported =
        guarded("exporting an item", size, [&] { return plugin().tranItemJSON2IWB(target, toExport); });
    releaseTextRuns(import(exported, {}));
    plugin().tranItemJSON2ZQTX({}, item);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
