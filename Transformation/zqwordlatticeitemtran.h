#ifndef ZQWORDLATTICEITEMTRAN_H
#define ZQWORDLATTICEITEMTRAN_H

#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * The lattice in which the characters of a word are written.
 */
class ZQWordLatticeItemTran : public ZQComItemControlTran
{
public:
    explicit ZQWordLatticeItemTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);
    static QString toTxType(const QString &type);
    static QString fromTxType(const QString &type);

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQWORDLATTICEITEMTRAN_H
