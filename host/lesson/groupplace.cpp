// SPDX-License-Identifier: MIT
#include "lesson/groupplace.h"

#include "lesson/planegeometry.h"

namespace lessonhost {

namespace {

// Points of figures and wires are keys of their own.
QPolygonF toldPoints(const ItemView &item)
{
    QPolygonF points = item.has(ItemKeys::steps) ? item.strokePoints() : item.points(ItemKeys::control);
    constexpr int mostPoints = 8;
    for (int i = 0; i < mostPoints; ++i) {
        const QByteArray name = "ArtObj_Point" + QByteArray::number(i);
        const QByteArray x = name + 'x';
        const QByteArray y = name + 'y';
        if (item.has(QLatin1String(x)) && item.has(QLatin1String(y))) {
            points.append(QPointF(item.number(QLatin1String(x)), item.number(QLatin1String(y))));
        }
    }
    return points;
}

// The fit of a raw slide to the page, as the first item below a group has it.
QTransform fitOfChildren(const ItemView &group)
{
    const QVector<QJsonObject> children = group.childObjects();
    for (const QJsonObject &child : children) {
        const auto fit = itemTransform(child.value(ItemKeys::slideMatrix));
        if (fit && fit->isInvertible()) {
            return *fit;
        }
    }
    return children.isEmpty() ? QTransform() : fitOfChildren(ItemView(children.constFirst()));
}

} // namespace

QTransform placeOnPage(const ItemView &item)
{
    if (const auto matrix = item.matrix()) {
        return *matrix;
    }
    const auto box = item.box();
    return box ? turnAndFlips(item, box->center()) : QTransform();
}

QTransform turnAndFlips(const ItemView &item, const QPointF &center)
{
    const QTransform flips = QTransform::fromTranslate(-center.x(), -center.y())
        * QTransform::fromScale(item.flag(ItemKeys::flippedAcross) ? -1 : 1, item.flag(ItemKeys::flippedDown) ? -1 : 1)
        * QTransform::fromTranslate(center.x(), center.y());
    return flips * turnAbout(center, item.angle());
}

QTransform placeOfStroke(const ItemView &item)
{
    if (item.matrix() || item.box()) {
        return placeOnPage(item);
    }
    return turnAndFlips(item, extentOf(item.strokePoints()).center());
}

QRectF toldExtent(const ItemView &item)
{
    if (const auto place = item.place()) {
        return place->extent();
    }
    return item.matrix().value_or(QTransform()).mapRect(extentOf(toldPoints(item)));
}

QRectF extentOfChildren(const ItemView &group)
{
    QRectF extent;
    const QVector<QJsonObject> children = group.childObjects();
    for (const QJsonObject &child : children) {
        const ItemView view(child);
        const QRectF own = view.childObjects().isEmpty() ? toldExtent(view)
            : view.box()                                 ? *view.box()
                                                         : extentOfChildren(view);
        extent = extent.isNull() ? own : own.isNull() ? extent : extent.united(own);
    }
    return extent;
}

// The Matrix of a raw group is one of its slide, not of the page.
QTransform placeOfChildren(const ItemView &group)
{
    if (const auto matrix = group.matrix()) {
        if (matrix->isIdentity()) {
            return {};
        }
        const QTransform fit = fitOfChildren(group);
        return fit.inverted() * *matrix * fit;
    }
    if (turnAndFlips(group, {}).isIdentity()) {
        return {};
    }
    const auto box = group.box();
    return turnAndFlips(group, (box ? *box : extentOfChildren(group)).center());
}

} // namespace lessonhost
