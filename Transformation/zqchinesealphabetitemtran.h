// SPDX-License-Identifier: MIT
#ifndef ZQCHINESEALPHABETITEMTRAN_H
#define ZQCHINESEALPHABETITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * A brick of the pinyin alphabet. It has no IWB form.
 */
class ZQChineseAlphabetItemTran : public ZQComItemControlTran, public PairedTypes<ZQChineseAlphabetItemTran>
{
public:
    explicit ZQChineseAlphabetItemTran(const QString &type);

    static const TypePairs &typePairs();

    static std::unique_ptr<ZQHTran> create(const QString &type);
    QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQCHINESEALPHABETITEMTRAN_H
