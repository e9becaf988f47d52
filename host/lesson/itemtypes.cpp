#include "lesson/itemtypes.h"

namespace lessonhost {

bool isContainer(const QString &itemType)
{
    return itemType == QLatin1String("ZQGroupItem") || itemType == QLatin1String("group")
        || itemType == QLatin1String("ZQStrokesMathFormula") || itemType == QLatin1String("ZQStrokesChemFormula");
}

bool isFigure(const QString &itemType)
{
    return itemType.startsWith(QLatin1String("ZQShape"));
}

} // namespace lessonhost
