#ifndef ZQLITERATURETRAN_H
#define ZQLITERATURETRAN_H

#include "zqcomitemcontroltran.h"

#include <QStringList>

#include <memory>

/*!
 * The pinyin card, the stroke order of a character, the phonetic transcription of an English word, and art text. They
 * look like subject items in ZQTX, but their colours and control points stay plain texts.
 */
class ZQLiteratureTran : public ZQComItemControlTran
{
public:
    explicit ZQLiteratureTran(const QString &type);
    ~ZQLiteratureTran() override;

    //! Takes item types and ZQTX types alike; null for a type that isn't of this family.
    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();
    static QString toTxType(const QString &type);
    static QString fromTxType(const QString &type);

    //! An empty object for the pinyin card and the stroke order, which have no raw form.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQLITERATURETRAN_H
