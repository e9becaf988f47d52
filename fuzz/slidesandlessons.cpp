#include "fuzzsupport.h"
#include "mutation.h"

// Slides and presentations in all five directions: any XML as one to read, any object as one to write, and back.

namespace {

void writeAndReadBack(QJsonObject json, std::size_t size)
{
    json.insert(QStringLiteral("filePath"), QString(workFolder() + QLatin1String("/export")));
    const QDomDocument slide =
        guarded("writing a slide", size, [&json] { return plugin().tranSlideJSON2ZQTX({}, json); });
    guarded("reading the slide", size, [&slide] { return plugin().tranSlideZQTX2JSON(slide.documentElement(), {}); });
    guarded("writing the slide once more", size, [&] { return plugin().tranSlideJSON2ZQTX(slide, json); });
    const QDomDocument index =
        guarded("writing an index", size, [&json] { return plugin().tranPresJSON2ZQTX({}, json); });
    guarded("reading the index", size, [&index] { return plugin().tranPresZQTX2JSON(index.documentElement(), {}); });
    QDomDocument iwb = guarded("writing a root", size, [&json] { return plugin().tranPresJSON2IWB({}, json); });
    const QDomElement page = guarded("writing a page", size, [&] { return plugin().tranSlideJSON2IWB(iwb, json); });
    QJsonObject known{{QStringLiteral("path"), QString(workFolder() + QLatin1String("/package/"))}};
    guarded("reading the page", size, [&] { return plugin().tranSlideIWB2JSON(iwb.documentElement(), page, known); });
}

void read(const QDomElement &element, std::size_t size)
{
    const QString before = treeText(element);
    const QJsonObject slide =
        guarded("reading a slide", size, [&element] { return plugin().tranSlideZQTX2JSON(element, {}); });
    const QJsonObject index =
        guarded("reading an index", size, [&element] { return plugin().tranPresZQTX2JSON(element, {}); });
    guarded("reading a root", size, [&element] { return plugin().tranPresIWB2JSON(element, {}); });
    mustBeSame("a read leaves the document alone", treeText(element), before);

    const QString id = QStringLiteral("ID");
    const QString withoutId = treeText(element, id);
    const QJsonObject rawSlide =
        guarded("reading a raw slide", size, [&element] { return plugin().tranSlideXML2JSON(element, {}); });
    const QJsonObject raw =
        guarded("reading a raw lesson", size, [&element] { return plugin().tranPresXML2JSON(element, {}); });
    mustBeSame("a raw read leaves the document alone", treeText(element, id), withoutId);

    const QString mark = QStringLiteral("isloaded");
    const QString withoutMarks = treeText(element, mark);
    QJsonObject known{{QStringLiteral("path"), QString(workFolder() + QLatin1String("/package/"))}};
    const QDomElement page = element.firstChildElement();
    const QJsonObject imported = guarded("reading a page", size, [&] {
        return plugin().tranSlideIWB2JSON(element, page.isNull() ? element : page, known);
    });
    mustBeSame("an import only sets its marks", treeText(element, mark), withoutMarks);
    for (const QJsonObject *json : {&slide, &index, &rawSlide, &raw, &imported}) {
        writeAndReadBack(*json, size);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 0 && data[0] == '{') {
        writeAndReadBack(objectOf(data, size), size);
        return 0;
    }
    const QDomDocument document = documentOf(data, size);
    if (!document.documentElement().isNull()) {
        read(document.documentElement(), size);
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}
