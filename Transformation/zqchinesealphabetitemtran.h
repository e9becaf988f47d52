#ifndef ZQCHINESEALPHABETITEMTRAN_H
#define ZQCHINESEALPHABETITEMTRAN_H

#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * A brick of the pinyin alphabet. It has no IWB form.
 */
class ZQChineseAlphabetItemTran : public ZQComItemControlTran
{
public:
    explicit ZQChineseAlphabetItemTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);
    static QString toTxType(const QString &type);
    static QString fromTxType(const QString &type);

    QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQCHINESEALPHABETITEMTRAN_H
