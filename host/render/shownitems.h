#ifndef SHOWNITEMS_H
#define SHOWNITEMS_H

#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QTransform>
#include <QVector>

namespace lessonhost {

/*!
 * What stands on the page by itself: an item, or what covers one.
 */
struct ShownItem
{
    QJsonObject item; //!< empty for a cover
    QRectF cover;
    QTransform placed; //!< from where it says that it is to the page: what the groups around it do with it

    bool isCover() const { return item.isEmpty(); }
};

//! The items of a slide that are to be seen, from back to front: groups taken apart, each cover behind what it covers.
QVector<ShownItem> shownItems(const QJsonArray &items);

} // namespace lessonhost

#endif // SHOWNITEMS_H
