// SPDX-License-Identifier: MIT
#ifndef ZQCOMITEMCONTROLTRAN_H
#define ZQCOMITEMCONTROLTRAN_H

#include "zqhtran.h"

#include <QMatrix>
#include <QRectF>
#include <QSize>
#include <QString>

#include <optional>

/*!
 * What every item on a slide has: geometry, rotation, visibility, lock, clone flag, flips, cover layer, hyperlink and
 * its own animations. On the way from raw XML it also fits the item from the slide's source rectangle into a page 1080
 * pixels high.
 */
class ZQComItemControlTran : public ZQHTran
{
public:
    explicit ZQComItemControlTran(const QString &type);

    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QDomElement tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! The matrix that scales source into target with its proportions kept, and centres it.
    static QMatrix fitMatrix(const QRectF &source, const QRectF &target);

    //! The page 1080 pixels high that is nearest in proportion to source: 4:3, 16:9 or 16:10.
    static QSize slideTargetSize(const QRectF &source);

    //! The name of file behind its last separator, moved into directory (up to its last separator if file had one).
    //! "/" is looked for first, "\" counts only without any "/". A file that ends in a separator gives the empty text.
    static QString joinResourcePath(const QString &file, const QString &directory);

    //! A list of files between separators, empty entries at its end left out, each moved into directory by
    //! joinResourcePath and joined by commas.
    static QString joinResourcePaths(const QString &files, QLatin1Char separator, const QString &directory);

protected:
    //! Keeps back the flags and what the item's place is made of, which are stored in their final form at the end.
    void storeRawText(const QString &key, const QString &text, QJsonObject &json) override;

    //! A new element for an item that the host gives none for. Null in a family that writes into given ones only.
    virtual QDomElement newTxElement(const QJsonObject &json) const;

    //! The major version of the lesson, from "pres" in the context; 0 if it isn't told.
    static int lessonVersion(const QJsonObject &context);

    //! Appends to "Children" what the plug-in makes of the items in the child <data> of a ZQTX element, but for a
    //! leading <rect> and for items of a type that no family knows. Must be the last step of a conversion: an item
    //! within another one gets its children after its conversion has returned.
    static void readNestedItems(const QDomElement &element, QJsonObject &json, const QJsonObject &context);

    QString itemType; //!< as given to the constructor

    //! Whether a raw item's Matrix goes into its BoundingBox when m11 is above 1: the box is mapped, the matrix becomes
    //! the identity. Anything else, short texts included, stays as it is.
    bool foldsMatrixIntoBox = false;

private:
    // What the raw form says about an item's place and flags.
    struct RawValues
    {
        std::optional<QString> matrix;
        std::optional<QString> box; //!< left, top, right, bottom
        std::optional<bool> isVisible;
        std::optional<bool> isLocked;
        std::optional<bool> isCloned;
    };

    static void foldMatrix(RawValues &raw);
    void storeRawValues(QJsonObject &json, bool hasNewFlags) const;
    static void readLink(QJsonObject &json, const QJsonObject &slide);
    static void readItemAnimations(const QDomElement &element, QJsonObject &json);
    static void writeItemAnimations(QDomElement &element, const QJsonObject &json);
    static QDomElement animationGroupElement(const QString &name, const QJsonObject &animations);

    RawValues m_raw;
};

#endif // ZQCOMITEMCONTROLTRAN_H
