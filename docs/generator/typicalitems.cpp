#include "typicalitems.h"

#include "itemfamilies.h"

#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

const QJsonObject &typicalValues()
{
    static const QJsonObject values = [] {
        QFile file(QStringLiteral(TYPICAL_VALUES));
        QJsonParseError error{};
        const QJsonObject object =
            file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &error).object() : QJsonObject();
        if (object.isEmpty()) {
            qFatal("%s: %s", TYPICAL_VALUES, qPrintable(error.errorString()));
        }
        return object;
    }();
    return values;
}

// What the type has by its own name, which may stand among others, or by the beginning of it.
QJsonObject valuesOfType(const QString &type)
{
    QJsonObject values;
    const QJsonObject all = typicalValues().value(QLatin1String("types")).toObject();
    for (auto it = all.constBegin(); it != all.constEnd(); ++it) {
        const QStringList names = it.key().split(QLatin1Char(' '));
        const bool isMeant = std::any_of(names.cbegin(), names.cend(), [&type](const QString &name) {
            return name == type || (name.endsWith(QLatin1Char('*')) && type.startsWith(name.chopped(1)));
        });
        const QJsonObject more = isMeant ? it.value().toObject() : QJsonObject();
        for (auto value = more.constBegin(); value != more.constEnd(); ++value) {
            values.insert(value.key(), value.value());
        }
    }
    return values;
}

QJsonObject valuesOfFamily(const QString &type)
{
    for (const TitledTypes &family : itemFamilies()) {
        if (family.types.contains(type)) {
            return typicalValues().value(QLatin1String("families")).toObject().value(family.title).toObject();
        }
    }
    return {};
}

// A colour is told by its label in ZQTX.
QString colorByLabel(const QString &label)
{
    const QJsonArray labels = typicalValues().value(QLatin1String("labels")).toArray();
    for (const QJsonValue &row : labels) {
        if (label.contains(row.toArray().at(0).toString(), Qt::CaseInsensitive)) {
            return row.toArray().at(1).toString();
        }
    }
    return {};
}

bool isColorKey(const QString &key)
{
    return key.contains(QLatin1String("Color"), Qt::CaseInsensitive);
}

QJsonObject colorObject(const QColor &color)
{
    return {{QStringLiteral("Solid"), int(color.rgb() & 0xffffffU)}, {QStringLiteral("Alpha"), color.alphaF()}};
}

// A colour in the form of another.
QJsonValue inFormOf(const QJsonValue &form, const QColor &color)
{
    if (form.isObject()) {
        return colorObject(color);
    }
    if (form.toString().startsWith(QLatin1Char('#'))) {
        return color.name(QColor::HexArgb);
    }
    return QStringLiteral("%1,%2,%3,%4").arg(color.alpha()).arg(color.red()).arg(color.green()).arg(color.blue());
}

// "at" and "steps" become points of the page.
QString placedText(const QString &text, const QRectF &box)
{
    const bool isSteps = text.startsWith(QLatin1String("steps "));
    if (!isSteps && !text.startsWith(QLatin1String("at "))) {
        return text;
    }
    const QStringList parts = text.split(QLatin1Char(' ')).mid(1);
    QStringList numbers;
    QPointF last;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QPointF point(box.left() + parts.at(i).toDouble() * box.width(),
                            box.top() + parts.at(i + 1).toDouble() * box.height());
        const QPointF told = isSteps ? point - last : point;
        numbers << QString::number(told.x()) << QString::number(told.y());
        last = point;
    }
    return numbers.join(QLatin1Char(','));
}

QJsonValue placed(const QJsonValue &value, const QRectF &box)
{
    if (value.isArray()) {
        QJsonArray result;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &part : array) {
            result.append(placed(part, box));
        }
        return result;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            *it = placed(*it, box);
        }
        return object;
    }
    return value.isString() ? placedText(value.toString(), box) : value;
}

// What an item is, where it is, and how wide its lines are: they would hide all others.
bool isKept(const QString &key)
{
    static const QStringList keys{QStringLiteral("Type"),      QStringLiteral("BoundingBox"),
                                  QStringLiteral("Children"),  QStringLiteral("ArtObj_Width"),
                                  QStringLiteral("LineWidth"), QStringLiteral("Width")};
    return keys.contains(key);
}

// Every number and text, also in lists, except names of files.
QJsonValue replaced(const QJsonValue &value, double number, const QString &text)
{
    if (value.isArray()) {
        QJsonArray result;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &part : array) {
            result.append(replaced(part, number, text));
        }
        return result;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            *it = replaced(*it, number, text);
        }
        return object;
    }
    if (value.isDouble()) {
        return number;
    }
    QStringList parts = value.toString().split(QLatin1Char(','));
    for (QString &part : parts) {
        bool isNumber = false;
        part.toDouble(&isNumber);
        if (!isNumber) {
            return value.toString().contains(QLatin1Char('/')) && !value.toString().contains(QLatin1Char('<'))
                ? value
                : QJsonValue(text);
        }
        part = QString::number(number);
    }
    return parts.join(QLatin1Char(','));
}

void replaceValues(QJsonObject &item, double number, const QString &text)
{
    for (auto it = item.begin(); it != item.end(); ++it) {
        if (!isKept(it.key()) && !isColorKey(it.key())) {
            *it = replaced(*it, number, text);
        }
    }
}

void replaceColors(QJsonObject &item)
{
    constexpr int apart = 137; // on the circle of hues
    constexpr int full = 255;
    int hue = 0;
    for (auto it = item.begin(); it != item.end(); ++it) {
        if (isColorKey(it.key())) {
            const int alpha = hue % 2 == 0 ? full : full / 2;
            *it = inFormOf(*it, QColor::fromHsv(hue % 360, full, full * 4 / 5, alpha));
            hue += apart;
        }
    }
}

} // namespace

QSizeF typicalSize(const QString &type)
{
    const QJsonArray size = valuesOfType(type).value(QLatin1String("size")).toArray();
    return size.isEmpty() ? QSizeF(180, 120) : QSizeF(size.at(0).toDouble(), size.at(1).toDouble());
}

QJsonObject typicalItem(const QString &type, const QRectF &box)
{
    const KeyPlaces places = keyMapsOfType(type);
    const QJsonObject ofType = valuesOfType(type);
    const QJsonObject ofFamily = valuesOfFamily(type);
    const QJsonObject ofAll = typicalValues().value(QLatin1String("keys")).toObject();
    QJsonObject item = ofType;
    item.remove(QLatin1String("size"));
    const QStringList keys = places.xml.keys() + places.tx.keys();
    for (const QString &key : keys) {
        QJsonValue value = ofType.contains(key) ? ofType.value(key)
            : ofFamily.contains(key)            ? ofFamily.value(key)
                                                : ofAll.value(key);
        if (value.isUndefined() && isColorKey(key)) {
            const QString label = places.tx.value(key).toArray().last().toString();
            const QString color = colorByLabel(label.isEmpty() ? key : label);
            value = color;
            if (isSubjectType(type) && subjectColorKeys().contains(key)) {
                const QStringList parts = color.split(QLatin1Char(','));
                value = colorObject(QColor(parts.value(1).toInt(), parts.value(2).toInt(), parts.value(3).toInt(),
                                           parts.value(0).toInt()));
            }
        }
        if (!value.isUndefined()) {
            item.insert(key, value);
        }
    }
    for (const QString &key : item.keys()) {
        if (item.value(key).isNull()) {
            item.remove(key);
        }
    }
    item = placed(item, box).toObject();
    item.insert(QStringLiteral("Type"), type);
    item.insert(QStringLiteral("BoundingBox"),
                QStringLiteral("%1,%2,%3,%4").arg(box.left()).arg(box.top()).arg(box.right()).arg(box.bottom()));
    return item;
}

const QVector<ItemVariant> &itemVariants()
{
    constexpr double extreme = 1e9;
    static const QVector<ItemVariant> variants{
        {"As it is", {1, 1}, [](QJsonObject &) {}},
        {"Turned", {1, 1}, [](QJsonObject &item) { item.insert(QStringLiteral("Angle"), QStringLiteral("0.5236")); }},
        {"Flipped", {1, 1}, [](QJsonObject &item) { item.insert(QStringLiteral("HorizonFlip"), QStringLiteral("1")); }},
        {"Stretched", {1.5, 0.5}, [](QJsonObject &) {}},
        {"Coloured", {1, 1}, &replaceColors},
        {"Large values",
         {1, 1},
         [](QJsonObject &item) { replaceValues(item, extreme, QStringLiteral("Extraordinarily ").repeated(40)); }},
        {"Small values", {1, 1}, [](QJsonObject &item) { replaceValues(item, -extreme, {}); }},
    };
    return variants;
}
