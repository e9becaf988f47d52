#ifndef ZQMATHSUBJECTTRAN_H
#define ZQMATHSUBJECTTRAN_H

#include "zqcomitemcontroltran.h"

#include <QStringList>

#include <memory>

/*!
 * The formula, a text in a property, and the dynamic courseware, which refers to two files: in JSON under "document"
 * the picture and the file of the courseware, in ZQTX the attributes pix and ggb of a child <res>.
 */
class ZQMathSubjectTran : public ZQComItemControlTran
{
public:
    explicit ZQMathSubjectTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();
    static QString toTxType(const QString &type);
    static QString fromTxType(const QString &type);

    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! References go into a new element as they stand. One that breaks the XML gives a null element.
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQMATHSUBJECTTRAN_H
