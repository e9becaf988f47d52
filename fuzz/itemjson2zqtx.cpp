#include "domhelpers.h"
#include "fuzzsupport.h"
#include "mutation.h"

// Any object as an item to write, into a new element and into one that is there, and what comes out read again.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QJsonObject item = objectOf(data, size);
    const auto write = [size](const QDomElement &element, const QJsonObject &json) {
        return guarded("writing an item", size, [&] { return plugin().tranItemJSON2ZQTX(element, json); });
    };
    const auto read = [size](const QDomElement &element) {
        return guarded("reading what was written", size,
                       [&element] { return plugin().tranItemZQTX2JSON(element, context(QStringLiteral("3.0"))); });
    };
    const QDomElement written = write({}, item);
    if (written.isNull()) {
        return 0;
    }
    mustBeSame("a write gives the same each time", treeText(write({}, item)), treeText(written));
    const QJsonObject found = read(written);
    if (item.value(QLatin1String("ID")).isString() && !found.isEmpty()) {
        mustBeSame("the identifier survives", found.value(QLatin1String("ID")).toString(),
                   item.value(QLatin1String("ID")).toString());
    }
    write(written, item);
    read(written);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
