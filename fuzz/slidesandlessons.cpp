// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"

// Slides and presentations in all five directions: any XML as one to read, any object as one to write, and back.

namespace {

void writeAndReadBack(QJsonObject json)
{
    json.insert("filePath", exportFolder());
    const QDomDocument slide = guarded("writing a slide", [&] { return plugin().tranSlideJSON2ZQTX({}, json); });
    guarded("reading the slide", [&] { return plugin().tranSlideZQTX2JSON(slide.documentElement(), {}); });
    guarded("writing the slide once more", [&] { return plugin().tranSlideJSON2ZQTX(slide, json); });
    const QDomDocument index = guarded("writing an index", [&] { return plugin().tranPresJSON2ZQTX({}, json); });
    guarded("reading the index", [&] { return plugin().tranPresZQTX2JSON(index.documentElement(), {}); });
    QDomDocument iwb = guarded("writing a root", [&] { return plugin().tranPresJSON2IWB({}, json); });
    const QDomElement page = guarded("writing a page", [&] { return plugin().tranSlideJSON2IWB(iwb, json); });
    guarded("reading the page", [&] { return plugin().tranSlideIWB2JSON(iwb.documentElement(), page, inPackage()); });
}

void read(const QDomElement &element)
{
    const QString before = treeText(element);
    const QJsonObject slide = guarded("reading a slide", [&] { return plugin().tranSlideZQTX2JSON(element, {}); });
    const QJsonObject index = guarded("reading an index", [&] { return plugin().tranPresZQTX2JSON(element, {}); });
    guarded("reading a root", [&] { return plugin().tranPresIWB2JSON(element, {}); });
    mustBeSame("a read leaves the document alone", treeText(element), before);

    const QString id = "ID";
    const QString withoutId = treeText(element, id);
    const QJsonObject rawSlide =
        guarded("reading a raw slide", [&] { return plugin().tranSlideXML2JSON(element, {}); });
    const QJsonObject raw = guarded("reading a raw lesson", [&] { return plugin().tranPresXML2JSON(element, {}); });
    mustBeSame("a raw read leaves the document alone", treeText(element, id), withoutId);

    const QString mark = "isloaded";
    const QString withoutMarks = treeText(element, mark);
    const QDomElement page = element.firstChildElement();
    const QJsonObject imported = guarded("reading a page", [&] {
        return plugin().tranSlideIWB2JSON(element, page.isNull() ? element : page, inPackage());
    });
    mustBeSame("an import only sets its marks", treeText(element, mark), withoutMarks);
    for (const QJsonObject *json : {&slide, &index, &rawSlide, &raw, &imported}) {
        writeAndReadBack(*json);
    }
}

} // namespace

void tryInput(const QByteArray &input)
{
    if (input.startsWith('{')) {
        writeAndReadBack(objectOf(input));
        return;
    }
    const QDomDocument document = documentOf(input);
    if (!document.documentElement().isNull()) {
        read(document.documentElement());
    }
}
