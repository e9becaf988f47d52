// SPDX-License-Identifier: MIT
#ifndef ZQTXITEMS_H
#define ZQTXITEMS_H

#include <QDomElement>
#include <QJsonObject>

class IZQTransformation;

namespace lessonhost {

class CarriedCheck;

/*!
 * Items between ZQTX and the model: the plug-in's item operations, with what a host has to add to them so that nothing
 * of an item is left behind. Nested items are converted one by one, those that nobody knows are kept as they came.
 */
class ZqtxItems
{
public:
    ZqtxItems(IZQTransformation *plugin, const QJsonObject &presentation);

    //! The item of an element below <items>. context: what the plug-in is told ("slide", "pres", "path"). check: finds
    //! what the item's object does not carry; may be null.
    QJsonObject read(QDomElement element, const QJsonObject &context, const CarriedCheck *check) const;

    //! The element of an item, to be appended to <items>. An item that no translator knows is held as
    //! <item type="" id="" json=""/>. Throws LessonError for a kept text that is no XML.
    QDomElement write(const QJsonObject &item) const;

    //! True for the type of an item that no translator knows.
    bool isHeld(const QString &type) const;

private:
    QJsonObject readSingle(QDomElement element, const QJsonObject &context) const;
    QDomElement writeSingle(const QJsonObject &item) const;
    void compare(const QJsonObject &item, const QDomElement &read, QDomElement written,
                 const CarriedCheck &check) const;
    void addMissingPlaces(QDomElement &element, const QJsonObject &written) const;

    IZQTransformation *m_plugin;
    int m_majorVersion;
};

} // namespace lessonhost

#endif // ZQTXITEMS_H
