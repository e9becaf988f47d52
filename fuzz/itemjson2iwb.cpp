#include "domhelpers.h"
#include "fuzzsupport.h"
#include "mutation.h"

// Any object as an item to export, and what comes out imported. The document gets nothing but records.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QJsonObject item = objectOf(data, size);
    item.insert(QStringLiteral("tmpFilePath"), QString(workFolder() + QLatin1String("/export")));
    QDomDocument document =
        guarded("making an IWB document", size, [&item] { return plugin().tranPresJSON2IWB({}, item); });
    QDomElement records = document.firstChildElement(QStringLiteral("iwb"));
    const auto recordCount = [&records] { return records.elementsByTagName(QStringLiteral("iwb:link")).count(); };
    const int before = recordCount();
    const QDomElement exported =
        guarded("exporting an item", size, [&] { return plugin().tranItemJSON2IWB(document, item); });
    while (recordCount() > before) {
        records.removeChild(records.lastChildElement(QStringLiteral("iwb:link")));
    }
    QDomDocument untouched = plugin().tranPresJSON2IWB({}, item);
    mustBeSame("an export only adds records", treeText(document.documentElement()),
               treeText(untouched.documentElement()));

    QJsonObject json{{QStringLiteral("path"), QString(workFolder() + QLatin1String("/package/"))}};
    const QJsonObject imported =
        guarded("importing what was exported", size, [&] { return plugin().tranItemIWB2JSON(exported, json); });
    guarded("exporting what was imported", size, [&] { return plugin().tranItemJSON2IWB(document, imported); });
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
