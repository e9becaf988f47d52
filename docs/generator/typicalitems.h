// SPDX-License-Identifier: MIT
#ifndef TYPICALITEMS_H
#define TYPICALITEMS_H

#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QString>

#include <functional>

//! The size of a typical box of a type.
QSizeF typicalSize(const QString &type);

//! An item of a type with what typicalvalues.json has for the keys that the type has, its points in this box.
QJsonObject typicalItem(const QString &type, const QRectF &box);

//! The item, and below it what it is seen by: ink under what rubs it out.
QJsonArray withGround(const QJsonObject &item);

//! The files that typical items refer to, in base64 by their paths in the lesson.
QJsonObject typicalFiles();

//! The same with another number and text wherever it has one, but for what it is, its box, its colours and its files.
//! number: may be what is none.
QJsonObject withValues(QJsonObject item, const QString &number, const QString &text);

/*!
 * Another look of a typical item.
 */
struct ItemVariant
{
    const char *title;
    QSizeF scale; //!< of the box, against the typical one
    std::function<QJsonObject(const QJsonObject &item)> changed;
};

//! As it is, turned, flipped, stretched, in other colours, and with values larger and smaller than any that is meant.
const QVector<ItemVariant> &itemVariants();

#endif // TYPICALITEMS_H
