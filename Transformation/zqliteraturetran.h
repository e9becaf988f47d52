// SPDX-License-Identifier: MIT
#ifndef ZQLITERATURETRAN_H
#define ZQLITERATURETRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * The pinyin card, the stroke order of a character, the phonetic transcription of an English word, and art text. They
 * look like subject items in ZQTX, but their colours and control points stay plain texts.
 */
class ZQLiteratureTran : public ZQComItemControlTran,
                         public ItemFamily<ZQLiteratureTran>,
                         public PairedTypes<ZQLiteratureTran>
{
public:
    explicit ZQLiteratureTran(const QString &type);
    ~ZQLiteratureTran() override;

    static const FamilyVocabulary &vocabulary();
    static const TypePairs &typePairs();

    //! Takes item types and ZQTX types alike; null for a type that isn't of this family.
    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! An empty object for the pinyin card and the stroke order, which have no raw form.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQLITERATURETRAN_H
