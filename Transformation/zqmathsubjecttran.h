// SPDX-License-Identifier: MIT
#ifndef ZQMATHSUBJECTTRAN_H
#define ZQMATHSUBJECTTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

/*!
 * The formula, a text in a property, and the dynamic courseware, which refers to two files: in JSON under "document"
 * the picture and the file of the courseware, in ZQTX the attributes pix and ggb of a child <res>.
 */
class ZQMathSubjectTran : public ZQComItemControlTran,
                          public ItemFamily<ZQMathSubjectTran>,
                          public PairedTypes<ZQMathSubjectTran>
{
public:
    explicit ZQMathSubjectTran(const QString &type);

    static const FamilyVocabulary &vocabulary();
    static const TypePairs &typePairs();

    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! References go into a new element as they stand. One that breaks the XML gives a null element.
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQMATHSUBJECTTRAN_H
