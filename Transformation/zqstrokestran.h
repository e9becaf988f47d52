// SPDX-License-Identifier: MIT
#ifndef ZQSTROKESTRAN_H
#define ZQSTROKESTRAN_H

#include "itemfamily.h"
#include "zqinkstroketran.h"

/*!
 * Freehand ink: curves, brushes, chalk, stamps, textures and records of deleted pixels, and the two formula strokes,
 * which hold nested items as a group does.
 */
class ZQStrokesTran : public ZQInkStrokeTran, public ItemFamily<ZQStrokesTran>, public PairedTypes<ZQStrokesTran>
{
public:
    explicit ZQStrokesTran(const QString &type);

    static const FamilyVocabulary &vocabulary();
    static const TypePairs &typePairs();

    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! Children of a formula stroke are not written: the host puts them into <data>.
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQSTROKESTRAN_H
