// SPDX-License-Identifier: MIT
#ifndef ITEMFAMILY_H
#define ITEMFAMILY_H

#include "keypaths.h"
#include "zqhtran.h"

#include <QString>
#include <QStringList>

#include <memory>

/*!
 * What the chains ask a family of types, answered from the table in its vocabulary().
 */
template <typename Translator> class ItemFamily
{
public:
    //! A translator for a type that the table names, or null.
    static std::unique_ptr<ZQHTran> create(const QString &type)
    {
        return Translator::vocabulary().contains(type) ? std::make_unique<Translator>(type) : nullptr;
    }

    //! The types that the table names.
    static QStringList types() { return Translator::vocabulary().types(); }
};

/*!
 * The ZQTX types of a family, from the pairs in its typePairs().
 */
template <typename Translator> class PairedTypes
{
public:
    //! The ZQTX type of an item type; empty for any other text.
    static QString toTxType(const QString &type) { return Translator::typePairs().toTxType(type); }

    //! The item type of a ZQTX type; empty for any other text.
    static QString fromTxType(const QString &type) { return Translator::typePairs().fromTxType(type); }
};

#endif // ITEMFAMILY_H
