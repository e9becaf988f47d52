// SPDX-License-Identifier: MIT
#ifndef SHOWNITEMS_H
#define SHOWNITEMS_H

#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QSet>
#include <QStringList>
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
    QString id; //!< of the item, or of what is covered
    QStringList groups; //!< identifiers of the groups around it, from outside
    bool isHidden = false; //!< until it is brought in

    bool isCover() const { return item.isEmpty(); }
};

//! The items of a slide that are to be seen, from back to front: groups taken apart, each cover behind what it covers.
//! brought: identifiers of hidden ones that are brought in later.
QVector<ShownItem> shownItems(const QJsonArray &items, const QSet<QString> &brought = {});

} // namespace lessonhost

#endif // SHOWNITEMS_H
