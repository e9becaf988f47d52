#include "svg/pluginoutlines.h"

#include "izqtransformation.h"
#include "lesson/itemvalues.h"
#include "lesson/planegeometry.h"
#include "lesson/shapegeometry.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QDomElement>

namespace lessonhost {

namespace {

const QLatin1String controlKey("Control");
const QLatin1String typeKey("Type");

QPolygonF derivedOutline(const QJsonObject &item, IZQTransformation *plugin)
{
    QJsonObject plain{{typeKey, item.value(typeKey)},
                      {controlKey, pointsText(pointsOf(itemNumbers(item.value(controlKey))))}};
    const QLatin1String corners("ArtObj_Ln");
    if (item.contains(corners)) {
        plain.insert(corners, item.value(corners));
    }
    QDomDocument document;
    const QDomElement element = plugin->tranItemJSON2IWB(document, plain);
    return withoutRepeatedEnd(pointsOf(svgNumbers(element.attribute(QStringLiteral("points")))));
}

} // namespace

OutlineSource pluginOutlines(IZQTransformation *plugin)
{
    return [plugin](const QJsonObject &shape) { return derivedOutline(shape, plugin); };
}

} // namespace lessonhost
