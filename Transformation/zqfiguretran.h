#ifndef ZQFIGURETRAN_H
#define ZQFIGURETRAN_H

#include "zqdisciplineitemtran.h"

#include <QStringList>

#include <memory>

/*!
 * Drawn figures: a cloud, a plane, arrows, brackets, a cross, connection lines. Their geometry lies in properties of
 * plain numbers.
 */
class ZQFigureTran : public ZQDisciplineItemTran
{
public:
    explicit ZQFigureTran(const QString &type);

    //! Null for a type that isn't of this family.
    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();

    //! The item type of a ZQTX type such as Shape:feiji. There is no way to this form: figures are written with their
    //! item type.
    static QString fromTxType(const QString &type);

    //! Places the figure by its inner matrix, as the vector shapes are.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Gives no Control.
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
};

#endif // ZQFIGURETRAN_H
