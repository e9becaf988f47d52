// SPDX-License-Identifier: MIT
#include "typicalitems.h"

#include "itemfamilies.h"

#include <QBuffer>
#include <QColor>
#include <QFile>
#include <QImage>
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

// Other keys tell whether a colour is shown.
bool isColorKey(const QString &key)
{
    return key.contains(QLatin1String("Color"), Qt::CaseInsensitive) && key != QLatin1String("SHOWBACKCOLOR");
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

// Every number and text, also in lists, except names of files.
QJsonValue replaced(const QJsonValue &value, const QString &number, const QString &text)
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
        return number.toDouble();
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
        part = number;
    }
    return parts.join(QLatin1Char(','));
}

QJsonObject recolored(QJsonObject item)
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
    return item;
}

// Different at each corner, so that turned and flipped pictures are told apart.
QString pictureText(const QColor &paper)
{
    constexpr int width = 90;
    constexpr int height = 60;
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(paper);
    const auto fill = [&image](const QRect &area, const QColor &color) {
        for (int i = 0; i < area.width() * area.height(); ++i) {
            image.setPixelColor(area.left() + i % area.width(), area.top() + i / area.width(), color);
        }
    };
    fill({0, 0, width / 3, height / 3}, QColor(Qt::red));
    fill({width - width / 5, 0, width / 5, height / 5}, QColor(Qt::blue));
    fill({0, height - height / 5, width / 5, height / 5}, QColor(Qt::darkGreen));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return QString::fromLatin1(bytes.toBase64());
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

QJsonArray withGround(const QJsonObject &item)
{
    if (item.value(QLatin1String("Type")) != QLatin1String("ZQStrokesDeletePixel")) {
        return {item};
    }
    QStringList sides = item.value(QLatin1String("BoundingBox")).toString().split(QLatin1Char(','));
    while (sides.size() < 4) {
        sides.append(QStringLiteral("0"));
    }
    const QRectF box(QPointF(sides.at(0).toDouble(), sides.at(1).toDouble()),
                     QPointF(sides.at(2).toDouble(), sides.at(3).toDouble()));
    const QJsonObject ink = typicalItem(QStringLiteral("ZQBrushStroke"), box);
    return {ink, item};
}

QJsonObject withValues(QJsonObject item, const QString &number, const QString &text)
{
    static const QStringList kept{QStringLiteral("Type"), QStringLiteral("BoundingBox"), QStringLiteral("Children")};
    for (auto it = item.begin(); it != item.end(); ++it) {
        if (!kept.contains(it.key()) && !isColorKey(it.key())) {
            *it = replaced(*it, number, text);
        }
    }
    return item;
}

const QVector<ItemVariant> &itemVariants()
{
    // A very wide line hides all others.
    const auto extreme = [](const QString &number, const QString &text) {
        return [number, text](const QJsonObject &item) {
            QJsonObject changed = withValues(item, number, text);
            for (const char *key : {"ArtObj_Width", "LineWidth", "Width"}) {
                changed.insert(QLatin1String(key), item.value(QLatin1String(key)));
            }
            return changed;
        };
    };
    const auto with = [](const char *key, const char *value) {
        return [key, value](QJsonObject item) {
            item.insert(QLatin1String(key), QLatin1String(value));
            return item;
        };
    };
    static const QVector<ItemVariant> variants{
        {"As it is", {1, 1}, [](const QJsonObject &item) { return item; }},
        {"Turned", {1, 1}, with("Angle", "0.5236")},
        {"Flipped", {1, 1}, with("HorizonFlip", "1")},
        {"Stretched", {1.5, 0.5}, [](const QJsonObject &item) { return item; }},
        {"Coloured", {1, 1}, &recolored},
        {"Large values", {1, 1}, extreme(QStringLiteral("1e9"), QStringLiteral("Extraordinarily ").repeated(12))},
        {"Small values", {1, 1}, extreme(QStringLiteral("-1e9"), {})},
    };
    return variants;
}

QJsonObject typicalFiles()
{
    QJsonObject files{{QStringLiteral("images/picture.png"), pictureText(QColor(255, 225, 150))},
                      {QStringLiteral("images/card.png"), pictureText(QColor(225, 240, 255))}};
    for (const char *name :
         {"media/cells.swf", "media/rain.mp3", "media/whales.mp4", "media/worksheet.docx", "media/parabola.ggb"}) {
        files.insert(QLatin1String(name), QString::fromLatin1(QByteArray(name).toBase64()));
    }
    return files;
}
