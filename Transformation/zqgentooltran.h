// SPDX-License-Identifier: MIT
#ifndef ZQGENTOOLTRAN_H
#define ZQGENTOOLTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

/*!
 * The lesson tools that lie on a slide: cards, classification and connection exercises, curtain, spotlight and drawing
 * instruments. Their keys are attributes of elements in <data>; an item type is its own ZQTX type.
 */
class ZQGenToolTran : public ZQComItemControlTran, public ItemFamily<ZQGenToolTran>
{
public:
    explicit ZQGenToolTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;

private:
    QString templateText() const;
};

#endif // ZQGENTOOLTRAN_H
