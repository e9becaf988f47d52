// SPDX-License-Identifier: MIT
#ifndef ZQPHYSICSTRAN_H
#define ZQPHYSICSTRAN_H

#include "itemfamily.h"
#include "zqdisciplineitemtran.h"

/*!
 * The apparatus of the physics box: circuit parts, lenses, mechanics, measuring tools. A vocabulary and nothing else.
 */
class ZQPhysicsTran : public ZQDisciplineItemTran, public ItemFamily<ZQPhysicsTran>
{
public:
    explicit ZQPhysicsTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    //! The ZQTX type of any text with "ZQPhysics" in it, listed or not: ZQPhysicsKaiGuan1 gives Physics:kaiguan1.
    static QString toTxType(const QString &type);

    //! The item type of a text with "Physics:" in it; what stands behind may be written in any case.
    static QString fromTxType(const QString &type);
};

#endif // ZQPHYSICSTRAN_H
