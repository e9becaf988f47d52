// SPDX-License-Identifier: MIT
#ifndef RAWECHO_H
#define RAWECHO_H

#include "losses/carriedcheck.h"

#include <QDomElement>
#include <QHash>
#include <QJsonObject>
#include <QPair>
#include <QString>

class IZQTransformation;

namespace lessonhost {

/*!
 * Raw elements as the model would say them: nobody writes raw XML, so for each value that an element has, the echo has
 * what the model made of it says in its place. A value that the model says in another way, such as a matrix that was
 * worked into a box, is put back to what it was where both mean the same.
 */
class RawEcho
{
public:
    explicit RawEcho(IZQTransformation *plugin);

    //! Tells what the element of an item says and the model made of it doesn't.
    void compareItem(const LossOwner &owner, const QDomElement &element, const QJsonObject &item,
                     const CarriedCheck &check);
    QDomElement ofSlide(const QDomElement &element, const QJsonObject &properties);
    QDomElement ofPresentation(const QDomElement &element, const QJsonObject &presentation);

private:
    struct Place
    {
        QString type; // of the item
        QString tag; // of an element below; empty for the item's own
        QString attribute;
    };

    QString attributeOfItem(const QDomElement &element, const QString &name, const QString &given,
                            const QJsonObject &item);
    QDomElement contentOfItem(const QDomElement &element, const QJsonObject &item);
    QString attributeOfChild(const Place &place, const QString &given, const QStringList &channels,
                             const QJsonObject &item);
    QString keyOf(const Place &place);

    IZQTransformation *m_plugin;
    QDomDocument m_document; // makes the elements, and holds none of them
    // The keys that a plain text goes to, by type, and then by tag and attribute.
    QHash<QString, QHash<QPair<QString, QString>, QString>> m_keys;
    QHash<QString, QJsonObject> m_silent; // what is made of an item that says nothing, by type
};

} // namespace lessonhost

#endif // RAWECHO_H
