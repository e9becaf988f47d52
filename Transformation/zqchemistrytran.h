// SPDX-License-Identifier: MIT
#ifndef ZQCHEMISTRYTRAN_H
#define ZQCHEMISTRYTRAN_H

#include "itemfamily.h"
#include "zqdisciplineitemtran.h"

/*!
 * The apparatus of the chemistry box: glassware, stands, burners, and the benzene ring, atom and formula items. A
 * vocabulary and nothing else.
 */
class ZQChemistryTran : public ZQDisciplineItemTran, public ItemFamily<ZQChemistryTran>
{
public:
    explicit ZQChemistryTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    //! The ZQTX type of any text with "ZQChemistry" in it, listed or not: ZQChemistryShaobei gives Chemistry:shaobei.
    static QString toTxType(const QString &type);

    //! The item type of exactly the text that toTxType gives for a listed type; ZQChemistryExpressions has no way back.
    static QString fromTxType(const QString &type);
};

#endif // ZQCHEMISTRYTRAN_H
