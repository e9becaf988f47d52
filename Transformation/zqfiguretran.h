// SPDX-License-Identifier: MIT
#ifndef ZQFIGURETRAN_H
#define ZQFIGURETRAN_H

#include "itemfamily.h"
#include "zqdisciplineitemtran.h"

/*!
 * Drawn figures: a cloud, a plane, arrows, brackets, a cross, connection lines. Their geometry lies in properties of
 * plain numbers.
 */
class ZQFigureTran : public ZQDisciplineItemTran, public ItemFamily<ZQFigureTran>
{
public:
    explicit ZQFigureTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    //! The item type of a ZQTX type such as Shape:feiji. There is no way to this form: figures are written with their
    //! item type.
    static QString fromTxType(const QString &type);

    //! Places the figure by its inner matrix, as the vector shapes are.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Gives no Control.
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
};

#endif // ZQFIGURETRAN_H
