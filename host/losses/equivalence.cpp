#include "losses/equivalence.h"

#include "lesson/itemvalues.h"

#include <QColor>

namespace lessonhost {

namespace {

QString normalizedColor(const QString &text)
{
    const QColor color(text);
    return color.isValid() ? color.name(QColor::HexArgb) : text;
}

bool haveSameNumbers(const QString &one, const QString &other)
{
    return singleNumbers(one) == singleNumbers(other);
}

} // namespace

bool isSameValue(const QString &key, const QJsonValue &given, const QJsonValue &found)
{
    const QString one = valueText(given);
    const QString other = valueText(found);
    if (one == other) {
        return true;
    }
    if (key == QLatin1String("Color")) {
        return normalizedColor(one) == normalizedColor(other);
    }
    if (key == QLatin1String("XY") || key == QLatin1String("Control")) {
        return haveSameNumbers(one, other);
    }
    // Three parts of a colour are opaque.
    return other == QLatin1String("255,") + one;
}

} // namespace lessonhost
