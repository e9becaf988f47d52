// SPDX-License-Identifier: MIT
#ifndef ZQQUESTIONSITEMTRAN_H
#define ZQQUESTIONSITEMTRAN_H

#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * A question with its answer. Its values are the texts of children of <data> in a fixed order; a child that stands in
 * another place is not read.
 */
class ZQQuestionsItemTran : public ZQComItemControlTran
{
public:
    explicit ZQQuestionsItemTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! Texts go into a new element as they stand. One that is not well-formed gives a null element.
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQQUESTIONSITEMTRAN_H
