// SPDX-License-Identifier: MIT
#include "render/shownitems.h"

#include "lesson/itemview.h"
#include "lesson/planegeometry.h"
#include "render/itemoutline.h"

namespace lessonhost {

namespace {

const QLatin1String coverKey("CoverLayer"); // an item with another number than 0 is covered

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

// What a group does with its children. The Matrix of a raw group is one of its slide, not of the page.
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
        if (view.flag(coverKey)) {
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
    if (view.flag(coverKey)) {
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
