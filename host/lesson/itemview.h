// SPDX-License-Identifier: MIT
#ifndef ITEMVIEW_H
#define ITEMVIEW_H

#include "lesson/itemkeys.h"
#include "lesson/itemplace.h"
#include "lesson/itemvalues.h"

#include <QJsonArray>

namespace lessonhost {

/*!
 * An item as values: each is parsed when it is asked for, from whatever kind of JSON the item has it in. Who reads an
 * item through its view takes the same from a text, a number, a flag and a list.
 */
class ItemView
{
public:
    explicit ItemView(const QJsonObject &item)
        : m_item(item)
    {
    }

    const QJsonObject &json() const { return m_item; }

    QString type() const { return text(ItemKeys::type); }
    QString id() const { return text(ItemKeys::id); }
    QJsonArray children() const { return m_item.value(HostKeys::children).toArray(); }
    //! Those of the children that are items.
    QVector<QJsonObject> childObjects() const;
    //! The children as they stand without the group around them: hidden, locked and linked where the group is. Of two
    //! links the child's own counts.
    QVector<QJsonObject> looseChildren() const;
    bool isVisible() const { return flag(ItemKeys::visible, true); }
    bool isLocked() const { return flag(ItemKeys::locked); }
    bool isEndless() const { return flag(ItemKeys::endless); }
    //! Whether a shape's fill counts, where it has one: only a plain 0 takes it away.
    bool isFilled() const { return text(ItemKeys::isFilled) != QLatin1String("0"); }

    //! False for keys that are missing or say nothing.
    bool has(QLatin1String key) const { return !isEmptyValue(m_item.value(key)); }
    QString text(QLatin1String key) const { return valueText(m_item.value(key)); }
    //! The first of a list of texts with commas between.
    QString firstText(QLatin1String key) const { return text(key).section(QLatin1Char(','), 0, 0); }
    bool flag(QLatin1String key, bool missing = false) const { return itemFlag(m_item.value(key), missing); }
    double number(QLatin1String key, double missing = 0) const { return itemNumber(m_item.value(key), missing); }
    QVector<double> numbers(QLatin1String key) const { return itemNumbers(m_item.value(key)); }
    QPolygonF points(QLatin1String key) const { return pointsOf(numbers(key)); }
    std::optional<QColor> color(QLatin1String key) const { return itemColor(m_item.value(key)); }

    //! BoundingBox and Matrix; nothing for too few numbers.
    std::optional<QRectF> box() const;
    std::optional<QTransform> matrix() const { return itemTransform(m_item.value(ItemKeys::matrix)); }
    double angle() const { return number(ItemKeys::angle); }

    //! The place of an item of text or media. An item with a Matrix has its BoundingBox under it; without one the box
    //! is that of the page, turned by Angle. Nothing for an item without a box. A slant of the Matrix is lost.
    std::optional<ItemPlace> place() const;

    //! True where a mirror or slant of the Matrix is lost in place().
    bool isSetUpright() const;

    //! How much larger the Matrix draws what has no length of its own, such as letters; 1 without a Matrix.
    double scale() const;

    //! The points of a polyline before its Matrix.
    QPolygonF polyline() const;

    //! The points of a stroke before its Matrix.
    QPolygonF strokePoints() const;

    //! Where the origin of an item is that the plug-in's import has made: such an item has points of the page. Nothing
    //! for other items.
    std::optional<QPointF> createdAt() const;

private:
    QJsonObject m_item;
};

} // namespace lessonhost

#endif // ITEMVIEW_H
