#include "losses/attributes.h"

#include <QTextStream>
#include <QXmlStreamReader>

namespace lessonhost {

namespace {

// A node map finds its members by number in time that grows with the number.
constexpr int fewAttributes = 100;

} // namespace

QVector<QPair<QString, QString>> attributesOf(const QDomElement &element)
{
    QVector<QPair<QString, QString>> result;
    const QDomNamedNodeMap attributes = element.attributes();
    const int count = attributes.count();
    result.reserve(count);
    if (count <= fewAttributes) {
        for (int i = 0; i < count; ++i) {
            const QDomNode attribute = attributes.item(i);
            result.append({attribute.nodeName(), attribute.nodeValue()});
        }
        return result;
    }
    // The names come from the start tag as it is written.
    QString tag;
    QTextStream stream(&tag);
    element.cloneNode(false).save(stream, 0);
    QXmlStreamReader reader(tag);
    reader.setNamespaceProcessing(false);
    if (reader.readNextStartElement()) {
        const QXmlStreamAttributes written = reader.attributes();
        for (const QXmlStreamAttribute &attribute : written) {
            const QString name = attribute.qualifiedName().toString();
            result.append({name, element.attribute(name)});
        }
    }
    return result;
}

} // namespace lessonhost
