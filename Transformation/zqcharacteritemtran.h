// SPDX-License-Identifier: MIT
#ifndef ZQCHARACTERITEMTRAN_H
#define ZQCHARACTERITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * The card of a Chinese character: the character, its pinyin and how it is shown.
 */
class ZQCharacterItemTran : public ZQComItemControlTran, public PairedTypes<ZQCharacterItemTran>
{
public:
    explicit ZQCharacterItemTran(const QString &type);

    static const TypePairs &typePairs();

    static std::unique_ptr<ZQHTran> create(const QString &type);

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQCHARACTERITEMTRAN_H
