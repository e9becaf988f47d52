// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"
#include "translatorchains.h"

// Any XML as a ZQTX item. A read changes nothing and keeps every attribute that the type's translator has a key for;
// what it gives can be written and read again, and stays what it is from then on.

void tryInput(const QByteArray &input)
{
    const QDomDocument document = documentOf(input);
    const QDomElement element = document.documentElement();
    if (element.isNull()) {
        return;
    }
    if (const auto translator = createTranslator(element.attribute("type"))) {
        GenericTranslator generic(*translator);
        mustHoldAttributes(generic.txMap(), element, generic.tranZQTX2JSON(element, {}, {}));
    }
    const QString before = treeText(element);
    const auto read = [](const QDomElement &source) {
        return guarded("reading an item", [&] { return plugin().tranItemZQTX2JSON(source, context("3.0")); });
    };
    const auto write = [](const QJsonObject &item) {
        return guarded("writing what was read", [&] { return plugin().tranItemJSON2ZQTX({}, item); });
    };
    const QJsonObject item = read(element);
    guarded("reading an old item", [&] { return plugin().tranItemZQTX2JSON(element, context("2.0")); });
    mustBeSame("a read leaves the element alone", treeText(element), before);

    const QDomElement written = write(item);
    const QString type = item.value("Type").toString();
    // One type is written under a name that leads nowhere.
    if (!written.isNull() && createTranslator(jsonTypeToTxType(type))) {
        mustBeSame("the type survives", read(written).value("Type").toString(), type);
    }
}
