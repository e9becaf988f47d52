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

void addCover(const ItemView &item, const QTransform &placed, QVector<ShownItem> &result)
{
    const auto place = item.place();
    if (place) {
        result.append({{}, place->box, turnAbout(place->box.center(), place->angle) * placed});
    } else if (!toldExtent(item).isEmpty()) {
        result.append({{}, toldExtent(item), placed});
    }
}

void takeApart(const QJsonObject &item, const QTransform &placed, QVector<ShownItem> &result)
{
    const ItemView view(item);
    if (!view.isVisible()) {
        return;
    }
    const QVector<QJsonObject> children = view.looseChildren();
    const QTransform inside = children.isEmpty() ? placed : placeOfChildren(view) * placed;
    for (QJsonObject child : children) {
        if (view.flag(ItemKeys::ignoresEraser)) {
            child.insert(ItemKeys::ignoresEraser, true);
        }
        takeApart(child, inside, result);
    }
    if (children.isEmpty()) {
        result.append({item, {}, placed});
    }
    if (view.flag(coverKey) && children.isEmpty()) {
        addCover(view, placed, result);
    } else if (view.flag(coverKey)) {
        result.append({{}, extentOfChildren(view), inside});
    }
}

} // namespace

QVector<ShownItem> shownItems(const QJsonArray &items)
{
    QVector<ShownItem> shown;
    for (const QJsonValue &item : items) {
        takeApart(item.toObject(), {}, shown);
    }
    return shown;
}

} // namespace lessonhost
