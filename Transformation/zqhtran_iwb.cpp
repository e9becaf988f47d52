// SPDX-License-Identifier: MIT
#include "zqhtran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "links.h"
#include "numbertext.h"
#include "xmlplaces.h"

#include <QDomDocument>

#include <algorithm>
#include <array>
#include <utility>

// The conversions of the base class to and from IWB, and what the IWB writers share.

namespace {

// The texts of a place in svg, by the keys of its rows.
using PlaceTexts = std::array<std::pair<QLatin1String, QString>, 4>;

// x, y, Width and Height of the box under the matrix.
std::optional<QRectF> mappedBox(const QJsonObject &json)
{
    const auto box = boxFromText(json.value(QLatin1String("BoundingBox")).toString());
    const auto matrix = matrixFromText(json.value(QLatin1String("Matrix")).toString());
    if (!box || !matrix) {
        return std::nullopt;
    }
    // The differences are taken in single precision, as the numbers of the text are.
    const QRectF rectangle(box->left(), box->top(), qreal(float(box->right()) - float(box->left())),
                           qreal(float(box->bottom()) - float(box->top())));
    return matrix->mapRect(rectangle);
}

PlaceTexts placeTexts(const QRectF &box)
{
    return {{{QLatin1String("x"), numberText(box.left())},
             {QLatin1String("y"), numberText(box.top())},
             {QLatin1String("Width"), numberText(box.width())},
             {QLatin1String("Height"), numberText(box.height())}}};
}

QString rotationText(const QString &angle, const QRectF &box)
{
    const double centerX = (box.right() + box.left()) * 0.5;
    const double centerY = (box.bottom() + box.top()) * 0.5;
    return QLatin1String("rotate(") + angle + QLatin1Char(',') + numberText(centerX) + QLatin1Char(',')
        + numberText(centerY) + QLatin1Char(')');
}

// The angle of a transform with exactly three numbers between its brackets, such as "rotate(0.5,10,20)".
std::optional<QString> angleOfTransform(const QString &transform)
{
    const int open = transform.indexOf(QLatin1Char('('));
    const int close = transform.lastIndexOf(QLatin1Char(')'));
    if (open < 0 || close < open) {
        return std::nullopt;
    }
    const QStringList parts = transform.mid(open + 1, close - open - 1).split(QLatin1Char(','));
    if (parts.size() != 3) {
        return std::nullopt;
    }
    return parts.first();
}

} // namespace

QDomElement ZQHTran::tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject)
{
    if (element.isNull()) {
        return element;
    }
    PlaceTexts place;
    if (const auto box = mappedBox(json)) {
        place = placeTexts(*box);
        const auto angle = json.constFind(QLatin1String("Angle"));
        if (angle != json.constEnd()) {
            element.setAttribute(QStringLiteral("transform"), rotationText(angle->toString(), *box));
        }
    }
    for (const KeyMap::Row &row : keyMaps().iwb.rows()) {
        if (row.path.size() != 1) {
            continue;
        }
        const QString &name = row.path.first();
        const auto placed =
            std::find_if(place.cbegin(), place.cend(), [&row](const auto &text) { return row.key == text.first; });
        if (placed != place.cend()) {
            element.setAttribute(name, placed->second);
            continue;
        }
        const auto value = json.constFind(row.key);
        if (value == json.constEnd()) {
            continue;
        }
        if (row.key == QLatin1String("Visible")) {
            element.setAttribute(name, value->toBool() ? QStringLiteral("1") : QStringLiteral("0"));
        } else {
            element.setAttribute(name, value->toString());
        }
    }
    return element;
}

QJsonObject ZQHTran::tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    if (element.hasAttribute(QStringLiteral("transform"))) {
        if (const auto angle = angleOfTransform(element.attribute(QStringLiteral("transform")))) {
            json.insert(QLatin1String("Angle"), *angle);
        }
    }
    for (const KeyMap::Row &row : keyMaps().iwb.rows()) {
        QDomElement holder = element;
        for (int i = 0; i + 1 < row.path.size(); ++i) {
            // Only the last element on the way is a leaf.
            holder = childByTagAndContent(holder, row.path.at(i), i + 2 < row.path.size());
        }
        if (const auto text = attributeText(holder, row.path.last())) {
            json.insert(row.key, *text);
        }
    }
    return json;
}

void ZQHTran::appendIwbRecord(QDomDocument &document, const QString &tag, const QJsonObject &record)
{
    QDomElement iwb = document.firstChildElement(QStringLiteral("iwb"));
    if (iwb.isNull()) {
        return;
    }
    QDomElement element = document.createElement(tag);
    element.setAttribute(QStringLiteral("ref"), record.value(QLatin1String("ref")).toString());
    if (record.contains(QLatin1String("iwb_locked"))) {
        const bool locked = record.value(QLatin1String("iwb_locked")).toBool();
        element.setAttribute(QStringLiteral("locked"), locked ? QStringLiteral("true") : QStringLiteral("false"));
    }
    if (record.contains(QLatin1String("iwb_background"))) {
        element.setAttribute(QStringLiteral("backgorund"), record.value(QLatin1String("iwb_background")).toString());
    }
    if (record.contains(QLatin1String("file"))) {
        element.setAttribute(QStringLiteral("file"), record.value(QLatin1String("file")).toString());
    }
    iwb.appendChild(element);
}

void ZQHTran::setLinkHref(QDomElement &link, const QString &kind, const QString &value, const QString &tmpFilePath)
{
    link.setAttribute(QStringLiteral("xlink:href"), linkTarget(kind, value, tmpFilePath));
}
