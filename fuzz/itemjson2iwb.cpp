// SPDX-License-Identifier: MIT
#include "domhelpers.h"
#include "fuzzsupport.h"

// Any object as an item to export, and what comes out imported. The document gets nothing but records.

void tryInput(const QByteArray &input)
{
    QJsonObject item = objectOf(input);
    item.insert("tmpFilePath", exportFolder());
    QDomDocument document = guarded("making an IWB document", [&] { return plugin().tranPresJSON2IWB({}, item); });
    QDomElement records = document.firstChildElement("iwb");
    const auto recordCount = [&] { return records.elementsByTagName("iwb:link").count(); };
    const int before = recordCount();
    const QDomElement exported =
        guarded("exporting an item", [&] { return plugin().tranItemJSON2IWB(document, item); });
    while (recordCount() > before) {
        records.removeChild(records.lastChildElement("iwb:link"));
    }
    QDomDocument untouched = plugin().tranPresJSON2IWB({}, item);
    mustBeSame("an export only adds records", treeText(document.documentElement()),
               treeText(untouched.documentElement()));

    const QJsonObject imported =
        guarded("importing what was exported", [&] { return plugin().tranItemIWB2JSON(exported, inPackage()); });
    guarded("exporting what was imported", [&] { return plugin().tranItemJSON2IWB(document, imported); });
}
