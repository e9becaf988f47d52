// SPDX-License-Identifier: MIT
#ifndef RAWATTRIBUTES_H
#define RAWATTRIBUTES_H

#include <QDomElement>
#include <QHash>
#include <QJsonObject>
#include <QString>

class IZQTransformation;

namespace lessonhost {

/*!
 * Attributes of raw items that the plug-in's reading leaves behind although the model has a key for them: the colour
 * and width of a stroke, the box of a subject item, and whatever else bears the name of a key that
 * ZQTX holds for the item's type.
 */
class RawAttributes
{
public:
    //! folder: what references to files get as their only directory, ending in "/".
    RawAttributes(IZQTransformation *plugin, const QString &folder);

    //! Adds what the element says to the item that the plug-in made of it, in the forms of the model. A text that isn't
    //! of its attribute's form is left behind.
    void addTo(QJsonObject &item, const QDomElement &element);

private:
    void addInk(QJsonObject &item, const QDomElement &element) const;
    void addNamesakes(QJsonObject &item, const QDomElement &element);
    bool isKeyOfType(const QString &type, const QString &key, QHash<QString, bool> &known) const;
    QString reference(const QString &text) const;

    IZQTransformation *m_plugin;
    QString m_folder;
    QHash<QString, QHash<QString, bool>> m_known; // whether ZQTX holds a key, by type and key
};

} // namespace lessonhost

#endif // RAWATTRIBUTES_H
