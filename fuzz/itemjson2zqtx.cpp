// SPDX-License-Identifier: MIT
#include "domhelpers.h"
#include "fuzzsupport.h"

// Any object as an item to write, into a new element and into one that is there, and what comes out read again.

void tryInput(const QByteArray &input)
{
    const QJsonObject item = objectOf(input);
    const auto write = [](const QDomElement &element, const QJsonObject &json) {
        return guarded("writing an item", [&] { return plugin().tranItemJSON2ZQTX(element, json); });
    };
    const auto read = [](const QDomElement &element) {
        return guarded("reading what was written", [&] { return plugin().tranItemZQTX2JSON(element, context("3.0")); });
    };
    const QDomElement written = write({}, item);
    if (written.isNull()) {
        return;
    }
    mustBeSame("a write gives the same each time", treeText(write({}, item)), treeText(written));
    const QJsonObject found = read(written);
    if (item.value("ID").isString() && !found.isEmpty()) {
        mustBeSame("the identifier survives", found.value("ID").toString(), item.value("ID").toString());
    }
    write(written, item);
    read(written);
}
