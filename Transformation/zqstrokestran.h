#ifndef ZQSTROKESTRAN_H
#define ZQSTROKESTRAN_H

#include "zqinkstroketran.h"

#include <QStringList>

#include <memory>

/*!
 * Freehand ink: curves, brushes, chalk, stamps, textures and records of deleted pixels, and the two formula strokes,
 * which hold nested items as a group does.
 */
class ZQStrokesTran : public ZQInkStrokeTran
{
public:
    explicit ZQStrokesTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! The types that the family's table names.
    static QStringList types();
    static QString toTxType(const QString &type);
    static QString fromTxType(const QString &type);

    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! Children of a formula stroke are not written: the host puts them into <data>.
    QDomElement newTxElement(const QJsonObject &json) const override;
};

#endif // ZQSTROKESTRAN_H
