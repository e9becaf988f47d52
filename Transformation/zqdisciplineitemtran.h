// SPDX-License-Identifier: MIT
#ifndef ZQDISCIPLINEITEMTRAN_H
#define ZQDISCIPLINEITEMTRAN_H

#include "zqcomitemcontroltran.h"

#include <QStringList>

/*!
 * Base of the subject items: control points, colours and the element <discipline>.
 *
 * After a read, Control is one flat array of numbers x0, y0, x1, y1 and so on in the item's own pixels, and a colour is
 * an object of Solid (0xRRGGBB) and Alpha (0.0 to 1.0). A write takes texts: numbers between commas, and a,r,g,b.
 */
class ZQDisciplineItemTran : public ZQComItemControlTran
{
public:
    explicit ZQDisciplineItemTran(const QString &type);

    //! BoundingBox is left out of what the raw form gives.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    QDomElement newTxElement(const QJsonObject &json) const override;
    void storeRawText(const QString &key, const QString &text, QJsonObject &json) override;

    QStringList colorKeys; //!< the keys that carry a colour

private:
    void readRawColors(const QDomElement &element, QJsonObject &json) const;
    void readTxColors(QJsonObject &json) const;
};

#endif // ZQDISCIPLINEITEMTRAN_H
