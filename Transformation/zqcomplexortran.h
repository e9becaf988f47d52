// SPDX-License-Identifier: MIT
#ifndef ZQCOMPLEXORTRAN_H
#define ZQCOMPLEXORTRAN_H

#include "itemfamily.h"
#include "zqdisciplineitemtran.h"

/*!
 * Vector shapes: arrows, stars, smileys and the like, each drawn from up to four paths of points in an element of its
 * own. That element goes through the JSON as the text "manager"; the points lie beside it as the arrays
 * VectorControl0 to VectorControl3, x0, y0, x1, y1, x2, y2 for each point, for the host to look at.
 */
class ZQComplexorTran : public ZQDisciplineItemTran, public ItemFamily<ZQComplexorTran>
{
public:
    explicit ZQComplexorTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    //! The ZQTX type of any text with "ZQVector" in it, listed or not: ZQVectorJuxing gives Vector:juxing.
    static QString toTxType(const QString &type);

    //! The way back, for any text with "Vector:" in it.
    static QString fromTxType(const QString &type);

    //! The element that holds the paths leaves the caller's tree. Without one, the raw form gives no "manager" and ZQTX
    //! an empty one.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Appends the element that the text "manager" holds; nothing if that is empty or broken.
    QDomElement tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! The matrix that the raw ArtInner_ attributes of a shape or figure describe: centre and offset in pixels,
    //! rotation in degrees, zoom, flips. A missing zoom is 1, other missing numbers are 0, and a flip is off only where
    //! it says "0".
    static QMatrix innerMatrix(const QDomElement &element);

    //! Replaces Matrix by the inner matrix followed by SlideMatrix, if that is there.
    static void storeInnerMatrix(const QDomElement &element, QJsonObject &json);
};

#endif // ZQCOMPLEXORTRAN_H
