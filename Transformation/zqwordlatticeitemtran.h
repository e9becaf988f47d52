// SPDX-License-Identifier: MIT
#ifndef ZQWORDLATTICEITEMTRAN_H
#define ZQWORDLATTICEITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * The lattice in which the characters of a word are written.
 */
class ZQWordLatticeItemTran : public ZQComItemControlTran, public PairedTypes<ZQWordLatticeItemTran>
{
public:
    explicit ZQWordLatticeItemTran(const QString &type);

    static const TypePairs &typePairs();

    static std::unique_ptr<ZQHTran> create(const QString &type);

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQWORDLATTICEITEMTRAN_H
