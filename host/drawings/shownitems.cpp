// SPDX-License-Identifier: MIT
#include "drawings/shownitems.h"

#include "lesson/groupplace.h"
#include "lesson/planegeometry.h"

namespace lessonhost {

namespace {

void addCover(const ItemView &item, ShownItem cover, QVector<ShownItem> &result)
{
    const auto place = item.place();
    cover.item = {};
    cover.cover = place ? place->box : toldExtent(item);
    if (place) {
        cover.placed = turnAbout(place->box.center(), place->angle) * cover.placed;
    }
    if (place || !cover.cover.isEmpty()) {
        result.append(cover);
    }
}

void takeApart(ShownItem shown, const QSet<QString> &brought, QVector<ShownItem> &result)
{
    shown.id = ItemView(shown.item).id();
    if (!ItemView(shown.item).isVisible()) {
        if (!brought.contains(shown.id)) {
            return;
        }
        shown.item.insert(ItemKeys::visible, true);
        shown.isHidden = true;
    }
    const ItemView view(shown.item);
    const QVector<QJsonObject> children = view.looseChildren();
    if (children.isEmpty()) {
        result.append(shown);
        if (view.flag(ItemKeys::cover)) {
            addCover(view, shown, result);
        }
        return;
    }
    ShownItem inner = shown;
    inner.placed = placeOfChildren(view) * shown.placed;
    inner.groups.append(shown.id);
    for (const QJsonObject &child : children) {
        inner.item = child;
        if (view.flag(ItemKeys::ignoresEraser)) {
            inner.item.insert(ItemKeys::ignoresEraser, true);
        }
        takeApart(inner, brought, result);
    }
    if (view.flag(ItemKeys::cover)) {
        ShownItem cover = shown;
        cover.item = {};
        cover.cover = extentOfChildren(view);
        cover.placed = inner.placed;
        result.append(cover);
    }
}

} // namespace

QVector<ShownItem> shownItems(const QJsonArray &items, const QSet<QString> &brought)
{
    QVector<ShownItem> shown;
    for (const QJsonValue &item : items) {
        ShownItem whole;
        whole.item = item.toObject();
        takeApart(whole, brought, shown);
    }
    return shown;
}

} // namespace lessonhost
