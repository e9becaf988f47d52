// SPDX-License-Identifier: MIT
#include "formats/keptitem.h"

#include "files/xmltext.h"
#include "lesson/itemkeys.h"

namespace lessonhost {

QJsonObject keptItem(const QDomElement &element, const QString &type, const QString &idAttribute)
{
    QJsonObject item{{ItemKeys::type, type}, {HostKeys::keptXml, xmlNodeText(element)}};
    if (element.hasAttribute(idAttribute)) {
        item.insert(ItemKeys::id, element.attribute(idAttribute));
    }
    return item;
}

} // namespace lessonhost
