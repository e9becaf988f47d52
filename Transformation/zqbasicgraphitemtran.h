#ifndef ZQBASICGRAPHITEMTRAN_H
#define ZQBASICGRAPHITEMTRAN_H

#include "zqcomitemcontroltran.h"

#include <QStringList>

#include <memory>

/*!
 * The simple shapes of the tool box: stars, signs, dialog shapes, arrows, brackets, polygons, segments and free
 * drawings. All values are plain texts, colours and control points included; an item type is its own ZQTX type.
 */
class ZQBasicGraphItemTran : public ZQComItemControlTran
{
public:
    explicit ZQBasicGraphItemTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQBASICGRAPHITEMTRAN_H
