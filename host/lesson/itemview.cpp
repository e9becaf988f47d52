// SPDX-License-Identifier: MIT
#include "lesson/itemview.h"

#include "lesson/planegeometry.h"

namespace lessonhost {

QVector<QJsonObject> ItemView::childObjects() const
{
    QVector<QJsonObject> objects;
    const QJsonArray all = children();
    for (const QJsonValue &value : all) {
        if (value.isObject()) {
            objects.append(value.toObject());
        }
    }
    return objects;
}

QVector<QJsonObject> ItemView::looseChildren() const
{
    QVector<QJsonObject> loose = childObjects();
    for (QJsonObject &child : loose) {
        if (!isVisible()) {
            child.insert(ItemKeys::visible, false);
        }
        if (isLocked()) {
            child.insert(ItemKeys::locked, QStringLiteral("1"));
        }
        if (has(ItemKeys::linkType) && !ItemView(child).has(ItemKeys::linkType)) {
            child.insert(ItemKeys::linkType, m_item.value(ItemKeys::linkType));
            child.insert(ItemKeys::linkValue, m_item.value(ItemKeys::linkValue));
        }
    }
    return loose;
}

std::optional<QRectF> ItemView::box() const
{
    const QVector<double> n = numbers(ItemKeys::box);
    if (n.size() < 4) {
        return std::nullopt;
    }
    return QRectF(QPointF(n.at(0), n.at(1)), QPointF(n.at(2), n.at(3))).normalized();
}

std::optional<ItemPlace> ItemView::place() const
{
    const auto own = box();
    if (!own) {
        return std::nullopt;
    }
    const auto under = matrix();
    return under ? uprightUnder(*under, *own) : ItemPlace{*own, angle()};
}

bool ItemView::isSetUpright() const
{
    const auto under = matrix();
    const auto parts = under ? scaleAndTurn(*under) : ScaleAndTurn();
    return box() && !(parts && parts->scaleY > 0);
}

double ItemView::scale() const
{
    const auto under = matrix();
    const double scale = under ? meanScale(*under) : 1;
    return scale > 0 ? scale : 1;
}

// The one character more is no part of the numbers; a digit at the end is one.
QPolygonF ItemView::polyline() const
{
    const QJsonValue value = m_item.value(ItemKeys::polyline);
    QString list = valueText(value);
    if (!list.isEmpty() && !list.at(list.size() - 1).isDigit()) {
        list.chop(1);
    }
    return pointsOf(itemNumbers(value.isArray() ? value : QJsonValue(list)));
}

QPolygonF ItemView::strokePoints() const
{
    QPolygonF result = points(ItemKeys::steps);
    for (int i = 1; i < result.size(); ++i) {
        result[i] += result.at(i - 1);
    }
    return result;
}

std::optional<QPointF> ItemView::createdAt() const
{
    if (has(ItemKeys::box) || !has(ItemKeys::createdX) || !has(ItemKeys::createdY)) {
        return std::nullopt;
    }
    return QPointF(number(ItemKeys::createdX), number(ItemKeys::createdY));
}

} // namespace lessonhost
