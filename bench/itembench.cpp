// SPDX-License-Identifier: MIT
#include "ratiobench.h"

// Conversions of single items against parsing the XML of the very same item.

namespace {

// Vector shapes take their outline out of the tree, so each reading gets a copy.
template <typename Convert> Work reading(const QString &text, bool takesTreeApart, Convert convert)
{
    if (takesTreeApart) {
        return workOnCopies(text, convert);
    }
    const auto document = std::make_shared<QDomDocument>();
    document->setContent(text, false);
    return {[document, convert] { convert(document->documentElement()); }, {}};
}

void registerZqtx(const QDomElement &element)
{
    const QString type = element.attribute(QStringLiteral("type"));
    const QString text = xmlText(element);
    const Work parsing{[text] { parse(text); }, {}};
    const QJsonObject context = itemContext();
    const auto read = [context](const QDomElement &item) { return plugin()->tranItemZQTX2JSON(item, context); };
    registerRatio(QStringLiteral("read ZQTX"), type, reading(text, type.startsWith(QLatin1String("Vector:")), read),
                  parsing);
    const QJsonObject json = read(element.cloneNode().toElement());
    registerRatio(QStringLiteral("write ZQTX"), type, {[json] { plugin()->tranItemJSON2ZQTX({}, json); }, {}}, parsing);
}

void registerRaw(const QDomElement &element)
{
    const QString text = xmlText(element);
    const QJsonObject context = itemContext();
    const auto read = [context](const QDomElement &item) { return plugin()->tranItemXML2JSON(item, context); };
    registerRatio(QStringLiteral("read raw"), element.tagName(),
                  reading(text, element.tagName().startsWith(QLatin1String("ZQVector")), read),
                  {[text] { parse(text); }, {}});
}

// Shapes of mathematics to svg and back, against parsing the svg.
void registerShape(const QDomElement &item)
{
    QJsonObject json = plugin()->tranItemZQTX2JSON(item, itemContext());
    json.insert(QStringLiteral("Matrix"), QStringLiteral("1.25,0,0,1.25,310,220"));
    const auto document = std::make_shared<QDomDocument>(QStringLiteral("iwb"));
    const QDomElement svg = plugin()->tranItemJSON2IWB(*document, json);
    if (svg.isNull()) {
        return;
    }
    const QString type = json.value(QStringLiteral("Type")).toString();
    const QString text = xmlText(svg);
    registerRatio(
        QStringLiteral("shape to svg"), type, [document, json] { plugin()->tranItemJSON2IWB(*document, json); },
        [text] { parse(text); });
    const auto parsed = std::make_shared<QDomDocument>();
    parsed->setContent(text, false);
    registerRatio(
        QStringLiteral("shape from svg"), type, [parsed] { plugin()->tranItemIWB2JSON(parsed->documentElement(), {}); },
        [text] { parse(text); });
}

// Finding the translator alone: an item of a type that is found first, last or never, and that has no form in IWB, so
// that nothing comes after the choice.
void registerChoice(const QString &typical)
{
    for (const char *type : {"ZQChemistryShaobei", "ZQQuestionItem", "ZQUnknownItem"}) {
        const auto document = std::make_shared<QDomDocument>();
        const QJsonObject json{{QStringLiteral("Type"), QLatin1String(type)}};
        registerRatio(
            QStringLiteral("choose"), QLatin1String(type),
            [document, json] { plugin()->tranItemJSON2IWB(*document, json); }, [typical] { parse(typical); });
    }
}

} // namespace

int main(int argc, char **argv)
{
    const auto zqtx = samples(QStringLiteral("zqtxsamples.xml"));
    for (const QDomElement &element : zqtx) {
        registerZqtx(element);
    }
    for (const QDomElement &element : samples(QStringLiteral("rawsamples.xml"))) {
        registerRaw(element);
    }
    for (const QDomElement &child : samples(QStringLiteral("../examples/geometry/slides/figures.xml"))) {
        for (QDomElement item = child.firstChildElement(QStringLiteral("discipline")); !item.isNull();
             item = item.nextSiblingElement()) {
            registerShape(item);
        }
    }
    registerChoice(xmlText(zqtx.front()));
    return runRatios(argc, argv);
}
