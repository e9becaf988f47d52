#ifndef ZQCHEMISTRYTRAN_H
#define ZQCHEMISTRYTRAN_H

#include "zqdisciplineitemtran.h"

#include <QStringList>

#include <memory>

/*!
 * The apparatus of the chemistry box: glassware, stands, burners, and the benzene ring, atom and formula items. A
 * vocabulary and nothing else.
 */
class ZQChemistryTran : public ZQDisciplineItemTran
{
public:
    explicit ZQChemistryTran(const QString &type);

    //! Null for a type that isn't of this family.
    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();

    //! The ZQTX type of any text with "ZQChemistry" in it, listed or not: ZQChemistryShaobei gives Chemistry:shaobei.
    static QString toTxType(const QString &type);

    //! The item type of exactly the text that toTxType gives for a listed type; ZQChemistryExpressions has no way back.
    static QString fromTxType(const QString &type);
};

#endif // ZQCHEMISTRYTRAN_H
