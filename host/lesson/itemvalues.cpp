// SPDX-License-Identifier: MIT
#include "lesson/itemvalues.h"

#include "lesson/itemkeys.h"
#include "lesson/numbertexts.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace lessonhost {

namespace {

const QLatin1String solidKey("Solid");
const QLatin1String alphaKey("Alpha");
constexpr int exactDigits = 12;

// The number of the part of a list that begins at a place, as QString::toDouble() reads it. at: becomes the place
// behind the comma that ends the part, or one behind the end of the text.
double takePart(const QString &text, int &at, bool &isNumber)
{
    const int begin = at;
    const NumberAt found = numberAt(text, begin);
    if (found.end > begin && (found.end == text.size() || text.at(found.end) == QLatin1Char(','))) {
        at = found.end + 1;
        isNumber = found.isNumber;
        return found.value;
    }
    const int comma = text.indexOf(QLatin1Char(','), begin);
    const int end = comma < 0 ? text.size() : comma;
    at = end + 1;
    return numberOfText(QStringView(text).mid(begin, end - begin).trimmed(), &isNumber);
}

bool isColorObject(const QJsonObject &object)
{
    return object.value(solidKey).isDouble() && (!object.contains(alphaKey) || object.value(alphaKey).isDouble());
}

// 0 for what is no number.
int channel(double value)
{
    return value > 0 ? qRound(qMin(value, 255.0)) : 0;
}

// Numbers with the sign bit of an alpha are negative where 32 bits hold them.
QRgb rgbOf(double number)
{
    const double largest = std::numeric_limits<quint32>::max();
    return QRgb(qint64(qBound(-largest, number, largest)));
}

QRgb solidOf(const QJsonObject &object)
{
    return rgbOf(itemNumber(object.value(solidKey)));
}

double alphaOf(const QJsonObject &object)
{
    return itemNumber(object.value(alphaKey), 1) * 255;
}

QColor colorOfObject(const QJsonObject &object)
{
    QColor color(solidOf(object));
    color.setAlpha(channel(alphaOf(object)));
    return color;
}

// An alpha beyond 255 stays what it was, since a write and a read keep it.
QString textOfObject(const QJsonObject &object)
{
    const QRgb solid = solidOf(object);
    constexpr double furthest = 1e6;
    return QStringLiteral("%1,%2,%3,%4")
        .arg(qRound(qBound(-furthest, alphaOf(object), furthest)))
        .arg(qRed(solid))
        .arg(qGreen(solid))
        .arg(qBlue(solid));
}

bool isNumberArray(const QJsonArray &array)
{
    return std::all_of(array.constBegin(), array.constEnd(), [](const QJsonValue &value) { return value.isDouble(); });
}

QString numberArrayText(const QJsonArray &array)
{
    QString text;
    for (int i = 0; i < array.size(); ++i) {
        text += (i > 0 ? QLatin1String(",") : QLatin1String("")) + shortestNumberText(array.at(i).toDouble());
    }
    return text;
}

QPolygonF stepsBetween(QPolygonF points)
{
    for (int i = points.size() - 1; i > 0; --i) {
        points[i] -= points.at(i - 1);
    }
    return points;
}

} // namespace

int majorVersion(const QJsonObject &presentation)
{
    return valueText(presentation.value(PresentationKeys::version)).section(QLatin1Char('.'), 0, 0).toInt();
}

QString valueText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String: {
        const QString text = value.toString();
        return text.isNull() ? QString(QLatin1String("")) : text;
    }
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QJsonValue::Double:
        return shortestNumberText(value.toDouble());
    case QJsonValue::Array: {
        const QJsonArray array = value.toArray();
        return isNumberArray(array) ? numberArrayText(array) + QLatin1String("") : QString();
    }
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        if (object.isEmpty()) {
            return QLatin1String("");
        }
        return isColorObject(object) ? textOfObject(object) : QString();
    }
    default:
        return QLatin1String("");
    }
}

void makeNumbersFinite(QJsonObject &item)
{
    const auto isInfinite = [](const QJsonValue &value) { return value.isDouble() && !qIsFinite(value.toDouble()); };
    const auto replaceIn = [&isInfinite](auto values, QJsonObject::iterator place) {
        if (std::any_of(values.constBegin(), values.constEnd(), isInfinite)) {
            std::replace_if(values.begin(), values.end(), isInfinite, QJsonValue(0));
            place.value() = values;
        }
    };
    for (auto it = item.begin(); it != item.end(); ++it) {
        const QJsonValue value = it.value();
        if (isInfinite(value)) {
            it.value() = 0;
        } else if (value.isArray()) {
            replaceIn(value.toArray(), it);
        } else if (value.isObject()) {
            replaceIn(value.toObject(), it);
        }
    }
}

QStringList numberParts(const QString &text)
{
    QStringList parts = text.split(QLatin1Char(','));
    if (parts.last().isEmpty()) {
        parts.removeLast();
    }
    return parts;
}

QVector<float> singleNumbers(const QString &text)
{
    const QStringList parts = numberParts(text);
    QVector<float> numbers;
    numbers.reserve(parts.size());
    for (const QString &part : parts) {
        numbers.append(part.toFloat());
    }
    return numbers;
}

QString colorText(const QColor &color)
{
    return QStringLiteral("%1,%2,%3,%4").arg(color.alpha()).arg(color.red()).arg(color.green()).arg(color.blue());
}

std::optional<QColor> itemColor(const QJsonValue &value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        return object.contains(solidKey) ? std::optional<QColor>(colorOfObject(object)) : std::nullopt;
    }
    const QString text = valueText(value).trimmed();
    const QStringList parts = text.split(QLatin1Char(','));
    const auto part = [&parts](int i) { return channel(numberOfText(parts.at(i))); };
    if (parts.size() == 4) {
        return QColor(part(1), part(2), part(3), part(0));
    }
    if (parts.size() == 3) {
        return QColor(part(0), part(1), part(2));
    }
    const QColor named(text);
    return named.isValid() ? std::optional<QColor>(named) : std::nullopt;
}

std::optional<QColor> backColor(const QJsonValue &value)
{
    bool isNumber = false;
    const double number = numberOfText(valueText(value), &isNumber);
    return isNumber && qIsFinite(number) ? QColor(rgbOf(number)) : itemColor(value);
}

bool isEmptyValue(const QJsonValue &value)
{
    const QString text = valueText(value);
    return text.isEmpty() && !text.isNull();
}

bool itemFlag(const QJsonValue &value, bool missing)
{
    if (value.isBool()) {
        return value.toBool();
    }
    return isEmptyValue(value) ? missing : valueText(value).toInt() != 0;
}

double itemNumber(const QJsonValue &value, double missing)
{
    const double number = value.isDouble() ? value.toDouble()
        : isEmptyValue(value)              ? missing
                                           : numberOfText(valueText(value));
    return qIsFinite(number) ? number : 0;
}

QVector<double> itemNumbers(const QJsonValue &value)
{
    QVector<double> numbers;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        numbers.reserve(array.size());
        for (const QJsonValue &number : array) {
            numbers.append(itemNumber(number));
        }
        return numbers;
    }
    const QString text = valueText(value);
    if (text.trimmed().isEmpty()) {
        return numbers;
    }
    // One after the other: a list of the parts would take more memory than the numbers.
    numbers.reserve(text.count(QLatin1Char(',')) + 1);
    for (int at = 0; at <= text.size();) {
        bool isNumber = false;
        const double number = takePart(text, at, isNumber);
        numbers.append(qIsFinite(number) ? number : 0);
    }
    return numbers;
}

std::optional<QVector<double>> wholeNumbers(const QJsonValue &value)
{
    QVector<double> numbers;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        numbers.reserve(array.size());
        for (const QJsonValue &number : array) {
            if (!number.isDouble()) {
                return std::nullopt;
            }
            numbers.append(number.toDouble());
        }
        return numbers;
    }
    if (value.isObject() || value.isNull() || value.isUndefined()) {
        return std::nullopt;
    }
    const QString text = valueText(value);
    numbers.reserve(text.count(QLatin1Char(',')) + 1);
    int at = 0;
    do {
        bool isNumber = false;
        numbers.append(takePart(text, at, isNumber));
        if (!isNumber || !qIsFinite(numbers.last())) {
            return std::nullopt;
        }
    } while (at < text.size());
    return numbers;
}

QPolygonF pointsOf(const QVector<double> &numbers)
{
    QPolygonF points;
    points.reserve(numbers.size() / 2);
    for (int i = 0; i + 1 < numbers.size(); i += 2) {
        points.append(QPointF(numbers.at(i), numbers.at(i + 1)));
    }
    return points;
}

QString exactText(double value)
{
    return numberText(withoutErrorOfZero(value), exactDigits);
}

double exactNumber(double value)
{
    return numberInDigits(withoutErrorOfZero(value), exactDigits);
}

QString pointsText(const QPolygonF &points)
{
    return coordinateTexts(points, exactDigits, ',', ',');
}

// What is no number is read as 0.
QPolygonF exactPoints(QPolygonF points)
{
    const auto finite = [](double value) { return qIsFinite(value) ? exactNumber(value) : 0; };
    for (QPointF &point : points) {
        point = {finite(point.x()), finite(point.y())};
    }
    return points;
}

QString stepsText(const QPolygonF &points)
{
    return pointsText(stepsBetween(points));
}

QPolygonF pointsOfSteps(const QPolygonF &points)
{
    QPolygonF result = exactPoints(stepsBetween(points));
    for (int i = 1; i < result.size(); ++i) {
        result[i] += result.at(i - 1);
    }
    return result;
}

QString boxText(const QRectF &box)
{
    return exactText(box.left()) + QLatin1Char(',') + exactText(box.top()) + QLatin1Char(',') + exactText(box.right())
        + QLatin1Char(',') + exactText(box.bottom());
}

std::optional<QTransform> itemTransform(const QJsonValue &value)
{
    const QVector<double> n = itemNumbers(value);
    if (n.size() < 6) {
        return std::nullopt;
    }
    return QTransform(n.at(0), n.at(1), n.at(2), n.at(3), n.at(4), n.at(5));
}

QString transformText(const QTransform &transform)
{
    QStringList numbers;
    for (const double number :
         {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()}) {
        numbers.append(exactText(number));
    }
    return numbers.join(QLatin1Char(','));
}

} // namespace lessonhost
