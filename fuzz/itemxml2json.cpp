#include "fuzzsupport.h"
#include "mutation.h"
#include "translatorchains.h"

// Any XML as a raw item. A read changes nothing but the attribute "ID" of elements without an identifier, keeps every
// attribute that the type's translator has a key for, and gives an object that can be written.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QDomDocument document = documentOf(data, size);
    const QDomElement element = document.documentElement();
    if (element.isNull()) {
        return 0;
    }
    if (const auto translator = createTranslator(element.nodeName())) {
        const QDomElement copy = element.cloneNode().toElement();
        const QJsonObject json = translator->ZQHTran::tranXML2JSON(copy, {}, {});
        const QJsonObject &map = TranslatorMaps::xml(*translator);
        for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
            const QString name = it.value().toArray().first().toString();
            if (it.value().toArray().size() == 1 && element.hasAttribute(name)) {
                mustBeSame("a raw attribute is read as it stands", json.value(it.key()).toString(),
                           element.attribute(name));
            }
        }
    }
    const QString before = treeText(element, QStringLiteral("ID"));
    const QJsonObject item = guarded("reading a raw item", size, [&element] {
        return plugin().tranItemXML2JSON(element, context(QStringLiteral("3.0")));
    });
    mustBeSame("a raw read leaves the element alone", treeText(element, QStringLiteral("ID")), before);
    guarded("reading an old raw item", size,
            [&element] { return plugin().tranItemXML2JSON(element, context(QStringLiteral("2.0"))); });
    guarded("writing what was read", size, [&item] { return plugin().tranItemJSON2ZQTX({}, item); });
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
