// SPDX-License-Identifier: MIT
#include "files/svgattributes.h"

namespace lessonhost {

QSet<QString> attributeSet(std::initializer_list<const char *> names)
{
    QSet<QString> all;
    for (const char *name : names) {
        all.insert(QLatin1String(name));
    }
    return all;
}

QSet<QString> attributeSetOfShape(std::initializer_list<const char *> others)
{
    QSet<QString> all = attributeSet(others);
    for (const char *name : shapeGeometry) {
        all.insert(QLatin1String(name));
    }
    return all;
}

bool hasOnly(const QDomElement &element, const QSet<QString> &names)
{
    const QDomNamedNodeMap attributes = element.attributes();
    const int count = attributes.count();
    for (int i = 0; i < count; ++i) {
        if (!names.contains(attributes.item(i).nodeName())) {
            return false;
        }
    }
    return true;
}

} // namespace lessonhost
