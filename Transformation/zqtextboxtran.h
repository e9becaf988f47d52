// SPDX-License-Identifier: MIT
#ifndef ZQTEXTBOXTRAN_H
#define ZQTEXTBOXTRAN_H

#include "itemfamily.h"
#include "iwbtextinfo.h"
#include "zqcomitemcontroltran.h"

/*!
 * The text board. Its rich text is one HTML string, never looked into here. In IWB it is an svg:textarea with an
 * svg:tspan for each run of text; the runs travel as a list in memory, whose address stands in the JSON in decimal
 * text.
 */
class ZQTextBoxTran : public ZQComItemControlTran, public ItemFamily<ZQTextBoxTran>
{
public:
    explicit ZQTextBoxTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! A new svg:textarea. The list under "IWB_TEXTINFO-VECTOR" is written and then destroyed by the function under
    //! "IWB_TEXTINFO-DELVECTOR"; without that function it stays alive.
    QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Puts a new list into the object, first the run of the svg:textarea itself, then one for each child element. The
    //! caller owns the list.
    QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;

private:
    static void readTextInfo(const QDomElement &element, IwbTextInfoList &list);
    static QDomElement writeTextInfo(QDomElement element, const IwbTextInfo &info, const QJsonObject &json,
                                     bool withText);
    static void destroyTextInfoList(void *list);
};

#endif // ZQTEXTBOXTRAN_H
