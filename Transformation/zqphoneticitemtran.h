// SPDX-License-Identifier: MIT
#ifndef ZQPHONETICITEMTRAN_H
#define ZQPHONETICITEMTRAN_H

#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * A text with its phonetic notation. The item type is its own ZQTX type.
 */
class ZQPhoneticItemTran : public ZQComItemControlTran
{
public:
    explicit ZQPhoneticItemTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQPHONETICITEMTRAN_H
