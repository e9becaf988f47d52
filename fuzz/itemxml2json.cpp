// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"
#include "translatorchains.h"

// Any XML as a raw item. A read changes nothing but the attribute "ID" of elements without an identifier, keeps every
// attribute that the type's translator has a key for, and gives an object that can be written.

void tryInput(const QByteArray &input)
{
    const QDomDocument document = documentOf(input);
    const QDomElement element = document.documentElement();
    if (element.isNull()) {
        return;
    }
    if (const auto translator = createTranslator(element.nodeName())) {
        const QDomElement copy = element.cloneNode().toElement();
        GenericTranslator generic(*translator);
        mustHoldAttributes(generic.xmlMap(), element, generic.tranXML2JSON(copy, {}, {}));
    }
    const QString before = treeText(element, "ID");
    const QJsonObject item =
        guarded("reading a raw item", [&] { return plugin().tranItemXML2JSON(element, context("3.0")); });
    mustBeSame("a raw read leaves the element alone", treeText(element, "ID"), before);
    guarded("reading an old raw item", [&] { return plugin().tranItemXML2JSON(element, context("2.0")); });
    guarded("writing what was read", [&] { return plugin().tranItemJSON2ZQTX({}, item); });
}
