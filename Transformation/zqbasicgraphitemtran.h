// SPDX-License-Identifier: MIT
#ifndef ZQBASICGRAPHITEMTRAN_H
#define ZQBASICGRAPHITEMTRAN_H

#include "itemfamily.h"
#include "zqcomitemcontroltran.h"

#include <memory>

/*!
 * The simple shapes of the tool box: stars, signs, dialog shapes, arrows, brackets, polygons, segments and free
 * drawings. All values are plain texts, colours and control points included; an item type is its own ZQTX type.
 */
class ZQBasicGraphItemTran : public ZQComItemControlTran, public ItemFamily<ZQBasicGraphItemTran>
{
public:
    explicit ZQBasicGraphItemTran(const QString &type);

    static const FamilyVocabulary &vocabulary();

    static std::unique_ptr<ZQHTran> create(const QString &type);

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQBASICGRAPHITEMTRAN_H
