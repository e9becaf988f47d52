// SPDX-License-Identifier: MIT
#include "svg/pluginoutlines.h"

#include "izqtransformation.h"
#include "lesson/planegeometry.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QDomElement>

namespace lessonhost {

namespace {

QPolygonF derivedOutline(const ItemView &item, IZQTransformation *plugin)
{
    QJsonObject plain{{ItemKeys::type, item.type()}, {ItemKeys::control, pointsText(item.points(ItemKeys::control))}};
    if (item.has(ItemKeys::corners)) {
        plain.insert(ItemKeys::corners, item.text(ItemKeys::corners));
    }
    QDomDocument document;
    const QDomElement element = plugin->tranItemJSON2IWB(document, plain);
    return withoutRepeatedEnd(pointsOf(svgNumbers(element.attribute(QStringLiteral("points")))));
}

} // namespace

OutlineSource pluginOutlines(IZQTransformation *plugin)
{
    return [plugin](const QJsonObject &shape) { return derivedOutline(ItemView(shape), plugin); };
}

} // namespace lessonhost
