// SPDX-License-Identifier: MIT
#ifndef ZQMEDIAITEMTRAN_H
#define ZQMEDIAITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

/*!
 * Items that point to a file: pictures, Flash movies, audio, video and documents. On the way to and from IWB it copies
 * the file into the package of the target and rewrites the reference. A failed copy isn't reported.
 */
class ZQMediaItemTran : public ZQComItemControlTran,
                        public ItemFamily<ZQMediaItemTran>,
                        public PairedTypes<ZQMediaItemTran>
{
public:
    explicit ZQMediaItemTran(const QString &type);

    static const FamilyVocabulary &vocabulary();
    static const TypePairs &typePairs();

    //! A list in MultiMediaFile becomes one of paths between commas; a scale above 1 is folded into the box.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! A new svg element, and the file AbsMediaFile copied below the directory tmpFilePath. A document has no svg
    //! form: the element comes back as it was.
    QDomElement tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Copies the file below path (with one separator at its end) into filelibrary/ beside that directory.
    QJsonObject tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQMEDIAITEMTRAN_H
