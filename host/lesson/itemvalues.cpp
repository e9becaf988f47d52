#include "lesson/itemvalues.h"

#include <QJsonArray>
#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String solidKey("Solid");
const QLatin1String alphaKey("Alpha");

QString shortestText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

bool isColorObject(const QJsonObject &object)
{
    return object.contains(solidKey)
        && std::all_of(object.constBegin(), object.constEnd(),
                       [](const QJsonValue &value) { return value.isDouble(); });
}

QString colorObjectText(const QJsonObject &color)
{
    const int solid = color.value(solidKey).toInt();
    const int alpha = qRound(color.value(alphaKey).toDouble(1.0) * 255.0);
    return QStringLiteral("%1,%2,%3,%4").arg(alpha).arg((solid >> 16) & 255).arg((solid >> 8) & 255).arg(solid & 255);
}

bool isNumberArray(const QJsonArray &array)
{
    return std::all_of(array.constBegin(), array.constEnd(), [](const QJsonValue &value) { return value.isDouble(); });
}

QString numberArrayText(const QJsonArray &array)
{
    QStringList numbers;
    for (const QJsonValue &number : array) {
        numbers.append(shortestText(number.toDouble()));
    }
    return numbers.join(QLatin1Char(','));
}

} // namespace

int majorVersion(const QJsonObject &presentation)
{
    return valueText(presentation.value(QLatin1String("Version"))).section(QLatin1Char('.'), 0, 0).toInt();
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
        return shortestText(value.toDouble());
    case QJsonValue::Array: {
        const QJsonArray array = value.toArray();
        return isNumberArray(array) ? numberArrayText(array) + QLatin1String("") : QString();
    }
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        if (object.isEmpty()) {
            return QLatin1String("");
        }
        return isColorObject(object) ? colorObjectText(object) : QString();
    }
    default:
        return QLatin1String("");
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

} // namespace lessonhost
