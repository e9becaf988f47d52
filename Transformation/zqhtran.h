// SPDX-License-Identifier: MIT
#ifndef ZQHTRAN_H
#define ZQHTRAN_H

#include <QDomElement>
#include <QJsonArray>
#include <QJsonObject>

struct KeyMaps;
class TxTargets;

/*!
 * Base of all translators. Three key maps, filled by the constructors of a class chain, say where in XML each JSON key
 * lives; generic walks copy the values. A subclass overrides a conversion for what a plain copy can't do, and as a
 * rule calls the inherited one first.
 *
 * A translator lives for one conversion. Elements are shared handles, so writes reach the caller's tree; JSON objects
 * are copies.
 */
class ZQHTran
{
public:
    ZQHTran();
    virtual ~ZQHTran();
    ZQHTran(const ZQHTran &) = delete;
    ZQHTran &operator=(const ZQHTran &) = delete;

    //! Fills json from an element of the raw form by xmlKeyMap. An object without ID gets a generated one, which is
    //! also written to the element's attribute "ID".
    virtual QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context);

    //! Fills json from a ZQTX element by txKeyMap. A key whose place is missing stays out.
    virtual QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context);

    //! Writes the texts of json into a ZQTX element by txKeyMap and returns it. A null element takes nothing.
    virtual QDomElement tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context);

    //! Has the next writes to ZQTX take this type for that of their objects. To store it in an object would copy all
    //! of the object's texts, since the caller holds it too.
    void writeType(const QString &type) { m_writtenType = type; }

    //! Writes position, rotation and the one-segment keys of iwbKeyMap into an svg element and returns it.
    virtual QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context);

    //! Fills json with the attribute texts of an svg element by iwbKeyMap, and Angle from its "transform".
    virtual QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context);

    //! Adds a record about an element to the child <iwb> of the document. Members of record: ref, file and
    //! iwb_background (texts), iwb_locked (boolean).
    static void appendIwbRecord(QDomDocument &document, const QString &tag, const QJsonObject &record);

    //! Sets "xlink:href" of a link from an ACTION_ kind and its value. The file of ACTION_OPENFILE is copied to
    //! tmpFilePath/additional/; one that doesn't exist gives an empty target.
    static void setLinkHref(QDomElement &link, const QString &kind, const QString &value, const QString &tmpFilePath);

protected:
    //! Stores the key maps. What a constructor hands in lives to the end of the process.
    void setKeyMaps(const KeyMaps &maps);

    //! What the constructors so far have stored.
    const KeyMaps &keyMaps() const { return *m_keyMaps; }

    //! Stores what a text of the raw form stands for: as a rule the text itself, under the key of its row.
    virtual void storeRawText(const QString &key, const QString &text, QJsonObject &json);

    //! The type of an object that is written to ZQTX.
    QString writtenType(const QJsonObject &json) const;

    //! A new ID: the milliseconds since 1970 plus a counter of this process, in decimal.
    static QString nextGeneratedId();

    QJsonObject xmlKeyMap;
    QJsonObject txKeyMap;
    QJsonObject iwbKeyMap;

private:
    static int idCounter;

    void readKeysFromXml(QDomElement &element, QJsonObject &json);
    void readKeysFromTx(const QDomElement &element, QJsonObject &json) const;
    void writeKeysToTx(QDomElement &element, const QJsonObject &json) const;

    const KeyMaps *m_keyMaps = nullptr; //!< the three maps as the walks read them
    QString m_writtenType; //!< null if each object's own type is written
};

#endif // ZQHTRAN_H
