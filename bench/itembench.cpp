#include "ratiobench.h"

#include <memory>

// Conversions of single items against parsing the XML of the very same item.

namespace {

void registerZqtx(const QDomElement &element)
{
    const QString type = element.attribute(QStringLiteral("type"));
    const QString text = xmlText(element);
    const QJsonObject context = itemContext();
    const auto document = std::make_shared<QDomDocument>();
    document->setContent(text, false);

    // Vector shapes take their outline out of the tree, so each reading gets a copy; the copy isn't measured apart
    // from it, which makes the figure of that family a little too high.
    const bool consumesTree = type.startsWith(QLatin1String("Vector:"));
    const auto read = [document, context, consumesTree] {
        const QDomElement source = document->documentElement();
        return plugin()->tranItemZQTX2JSON(consumesTree ? source.cloneNode().toElement() : source, context);
    };
    const QJsonObject json = read();
    registerRatio(
        QStringLiteral("read ZQTX"), type, [read] { read(); }, [text] { parse(text); });
    registerRatio(
        QStringLiteral("write ZQTX"), type, [json] { plugin()->tranItemJSON2ZQTX({}, json); }, [text] { parse(text); });
}

void registerRaw(const QDomElement &element)
{
    const QString text = xmlText(element);
    const QJsonObject context = itemContext();
    const auto document = std::make_shared<QDomDocument>();
    document->setContent(text, false);
    const bool consumesTree = element.tagName().startsWith(QLatin1String("ZQVector"));
    registerRatio(
        QStringLiteral("read raw"), element.tagName(),
        [document, context, consumesTree] {
            const QDomElement source = document->documentElement();
            plugin()->tranItemXML2JSON(consumesTree ? source.cloneNode().toElement() : source, context);
        },
        [text] { parse(text); });
}

// Finding the translator alone: an element without content, of a type that is found first, last, or never.
void registerChoice(const QString &typical)
{
    for (const char *type : {"ZQActivityFlipItem", "ZQQuestionItem", "ZQUnknownItem"}) {
        QDomDocument document;
        const auto owner = std::make_shared<QDomDocument>();
        QDomElement element = owner->createElement(QStringLiteral("item"));
        owner->appendChild(element);
        element.setAttribute(QStringLiteral("type"), QLatin1String(type));
        registerRatio(
            QStringLiteral("choose, with an empty read"), QLatin1String(type),
            [owner] { plugin()->tranItemZQTX2JSON(owner->documentElement(), {}); }, [typical] { parse(typical); });
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
    registerChoice(xmlText(zqtx.front()));
    return runRatios(argc, argv);
}
