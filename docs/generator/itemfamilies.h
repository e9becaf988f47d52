#ifndef ITEMFAMILIES_H
#define ITEMFAMILIES_H

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

/*!
 * The key maps of a translator.
 */
struct KeyMaps
{
    QJsonObject xml;
    QJsonObject tx;
    QJsonObject iwb;

    //! All keys, ascending.
    QStringList keys() const;
};

struct ItemFamily
{
    QString title;
    QStringList types;
};

//! All families and the types that they know by name.
const QVector<ItemFamily> &itemFamilies();

KeyMaps keyMapsOfType(const QString &type);
KeyMaps keyMapsOfEveryItem();
//! What mathematics, physics, chemistry, vector shapes and figures have in common.
KeyMaps keyMapsOfSubjects();
bool isSubjectType(const QString &type);
//! The keys that may hold colours there.
QStringList subjectColorKeys();

KeyMaps keyMapsOfSlide();
KeyMaps keyMapsOfPresentation();

#endif // ITEMFAMILIES_H
