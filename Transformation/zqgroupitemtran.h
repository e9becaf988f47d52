// SPDX-License-Identifier: MIT
#ifndef ZQGROUPITEMTRAN_H
#define ZQGROUPITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

/*!
 * An item that holds other items, in the array Children. On writing it makes the group's own element only; the host
 * puts the children into <data>.
 */
class ZQGroupItemTran : public ZQComItemControlTran, public PairedTypes<ZQGroupItemTran>
{
public:
    explicit ZQGroupItemTran(const QString &type);

    static const TypePairs &typePairs();

    //! Children come out in the reverse of their order in the document.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQGROUPITEMTRAN_H
