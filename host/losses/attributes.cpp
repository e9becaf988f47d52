// SPDX-License-Identifier: MIT
#include "losses/attributes.h"

namespace lessonhost {

QVector<QPair<QString, QString>> attributesOf(const QDomElement &element)
{
    QVector<QPair<QString, QString>> result;
    const QDomNamedNodeMap attributes = element.attributes();
    const int count = attributes.count();
    result.reserve(count);
    for (int i = 0; i < count; ++i) {
        const QDomNode attribute = attributes.item(i);
        result.append({attribute.nodeName(), attribute.nodeValue()});
    }
    return result;
}

} // namespace lessonhost
