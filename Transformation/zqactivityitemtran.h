// SPDX-License-Identifier: MIT
#ifndef ZQACTIVITYITEMTRAN_H
#define ZQACTIVITYITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * The items that a classroom activity puts on its slide, beside the slide's own record of the activity: containers and
 * materials of games, flip cards, sentence parts, marks, texts of a pronunciation test. They have no IWB form.
 */
class ZQActivityItemTran : public ZQComItemControlTran, public ItemFamily<ZQActivityItemTran>
{
public:
    explicit ZQActivityItemTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    static std::unique_ptr<ZQHTran> create(const QString &type);

    static QString toTxType(const QString &type);
    static QString fromTxType(const QString &type);

    //! Folds a scale into the box. An element named "attachments" gives its texts "back" and "front".
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Reads "back" and "front" of the attachments, not "error".
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! The texts of "attachments" go into a new element as they stand; where one breaks the XML, the rest is missing.
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQACTIVITYITEMTRAN_H
