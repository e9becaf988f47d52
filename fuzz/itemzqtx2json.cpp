#include "fuzzsupport.h"
#include "mutation.h"
#include "translatorchains.h"

// Any XML as a ZQTX item. A read changes nothing and keeps every attribute that the type's translator has a key for;
// what it gives can be written and read again, and stays what it is from then on.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QDomDocument document = documentOf(data, size);
    const QDomElement element = document.documentElement();
    if (element.isNull()) {
        return 0;
    }
    if (const auto translator = createTranslator(element.attribute(QStringLiteral("type")))) {
        const QJsonObject json = translator->ZQHTran::tranZQTX2JSON(element, {}, {});
        const QJsonObject &map = TranslatorMaps::tx(*translator);
        for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
            const QString name = it.value().toArray().first().toString();
            if (it.value().toArray().size() == 1 && element.hasAttribute(name)) {
                mustBeSame("an attribute is read as it stands", json.value(it.key()).toString(),
                           element.attribute(name));
            }
        }
    }
    const QString before = treeText(element);
    const auto read = [size](const QDomElement &source) {
        return guarded("reading an item", size,
                       [&source] { return plugin().tranItemZQTX2JSON(source, context(QStringLiteral("3.0"))); });
    };
    const auto write = [size](const QJsonObject &item) {
        return guarded("writing what was read", size, [&item] { return plugin().tranItemJSON2ZQTX({}, item); });
    };
    const QJsonObject item = read(element);
    guarded("reading an old item", size,
            [&element] { return plugin().tranItemZQTX2JSON(element, context(QStringLiteral("2.0"))); });
    mustBeSame("a read leaves the element alone", treeText(element), before);

    const QDomElement written = write(item);
    const QString type = item.value(QLatin1String("Type")).toString();
    // One type is written under a name that leads nowhere.
    if (!written.isNull() && createTranslator(jsonTypeToTxType(type))) {
        mustBeSame("the type survives", read(written).value(QLatin1String("Type")).toString(), type);
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
