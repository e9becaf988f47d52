// SPDX-License-Identifier: MIT
#include "lesson/curtain.h"

#include "lesson/itemkeys.h"
#include "lesson/itemview.h"
#include "lesson/planegeometry.h"

namespace lessonhost {

std::optional<QRectF> coveredByCurtain(const ItemView &curtain)
{
    auto box = curtain.box();
    if (box && box->isEmpty()) {
        box.reset();
    }
    const QVector<double> told = curtain.numbers(CurtainKeys::rect);
    if (told.size() != 4 || told.at(0) != 0 || told.at(1) != 0 || !(told.at(2) > 0 && told.at(3) > 0)) {
        return box;
    }
    const QSizeF size(told.at(2), told.at(3));
    if (!box) {
        return QRectF(QPointF(), size);
    }
    const bool isWithin = size.width() <= box->width() && size.height() <= box->height();
    return isWithin ? QRectF(box->topLeft(), size) : *box;
}

std::optional<ItemPlace> placeOfCurtain(const ItemView &curtain)
{
    const auto area = coveredByCurtain(curtain);
    if (!area) {
        return std::nullopt;
    }
    if (const auto matrix = curtain.matrix()) {
        return uprightUnder(*matrix, *area);
    }
    const auto box = curtain.box();
    if (!box) {
        return ItemPlace{*area, 0};
    }
    // The whole box is flipped and turned, and what is covered of it with it.
    QPointF center = area->center();
    if (curtain.flag(ItemKeys::flippedAcross)) {
        center.setX(2 * box->center().x() - center.x());
    }
    if (curtain.flag(ItemKeys::flippedDown)) {
        center.setY(2 * box->center().y() - center.y());
    }
    ItemPlace place{*area, curtain.angle()};
    place.box.moveCenter(turnAbout(box->center(), place.angle).map(center));
    return place;
}

} // namespace lessonhost
