#ifndef ZQGENTOOLTRAN_H
#define ZQGENTOOLTRAN_H

#include "zqcomitemcontroltran.h"

#include <QStringList>

#include <memory>

/*!
 * The lesson tools that lie on a slide: cards, classification and connection exercises, curtain, spotlight and drawing
 * instruments. Their keys are attributes of elements in <data>; an item type is its own ZQTX type.
 */
class ZQGenToolTran : public ZQComItemControlTran
{
public:
    explicit ZQGenToolTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;

private:
    QString templateText() const;
};

#endif // ZQGENTOOLTRAN_H
