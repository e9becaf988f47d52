// SPDX-License-Identifier: MIT
#ifndef ZQMATHEMATICSTRAN_H
#define ZQMATHEMATICSTRAN_H

#include "itemfamily.h"
#include "zqdisciplineitemtran.h"

struct SvgShape;

/*!
 * The mathematics box: plane figures, solids, coordinate systems and expressions. The types differ in their key maps;
 * plane figures also leave as plain svg shapes and come back from them.
 *
 * The svg conversions read and write texts only: Control and colours are texts there, and a value of another JSON type
 * counts as missing or empty. Control is in the item's own pixels, svg coordinates are those of the page.
 */
class ZQMathematicsTran : public ZQDisciplineItemTran,
                          public ItemFamily<ZQMathematicsTran>,
                          public PairedTypes<ZQMathematicsTran>
{
public:
    explicit ZQMathematicsTran(const QString &type);

    static const FamilyVocabulary &vocabulary();
    static const TypePairs &typePairs();

    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! A new svg shape; the element as it came for a type without an svg form.
    QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Fills json by the tag of an svg shape; json as it came for any other tag.
    QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

private:
    QDomElement shapeToSvg(const SvgShape &shape, const QJsonObject &json, const QJsonObject &context);
    QJsonObject svgRectToJson(const QDomElement &element, QJsonObject json, const QJsonObject &context);
};

#endif // ZQMATHEMATICSTRAN_H
