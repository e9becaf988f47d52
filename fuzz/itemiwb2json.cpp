// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"

// Any XML as an svg item to import, with and without a package, and what comes out exported and imported again.

void tryInput(const QByteArray &input)
{
    const QDomDocument document = documentOf(input);
    const QDomElement element = document.documentElement();
    if (element.isNull()) {
        return;
    }
    const QString before = treeText(element);
    const auto import = [](const QDomElement &source, const QJsonObject &json) {
        return guarded("importing an item", [&] { return plugin().tranItemIWB2JSON(source, json); });
    };
    releaseTextRuns(import(element, {}));
    const QJsonObject item = import(element, inPackage());
    mustBeSame("an import leaves the element alone", treeText(element), before);

    QDomDocument target = plugin().tranPresJSON2IWB({}, {});
    QJsonObject toExport = item;
    toExport.insert("tmpFilePath", exportFolder());
    // This also takes the text runs back, if the type is one that has any.
    const QDomElement exported =
        guarded("exporting an item", [&] { return plugin().tranItemJSON2IWB(target, toExport); });
    releaseTextRuns(import(exported, {}));
    plugin().tranItemJSON2ZQTX({}, item);
}
