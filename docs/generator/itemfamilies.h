// SPDX-License-Identifier: MIT
#ifndef ITEMFAMILIES_H
#define ITEMFAMILIES_H

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

/*!
 * Where the three key maps of a translator have its keys.
 */
struct KeyPlaces
{
    QJsonObject xml;
    QJsonObject tx;
    QJsonObject iwb;

    //! All keys, ascending.
    QStringList keys() const;
};

struct TitledTypes
{
    QString title;
    QStringList types;
};

//! All families and the types that they know by name.
const QVector<TitledTypes> &itemFamilies();

//! False for a name of ZQTX, which means the same as another type's.
bool isModelType(const QString &type);

KeyPlaces keyMapsOfType(const QString &type);
KeyPlaces keyMapsOfEveryItem();
//! What mathematics, physics, chemistry, vector shapes and figures have in common.
KeyPlaces keyMapsOfSubjects();
bool isSubjectType(const QString &type);
//! The keys that may hold colours there.
QStringList subjectColorKeys();

KeyPlaces keyMapsOfSlide();
KeyPlaces keyMapsOfPresentation();

#endif // ITEMFAMILIES_H
