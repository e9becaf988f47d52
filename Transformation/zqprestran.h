// SPDX-License-Identifier: MIT
#ifndef ZQPRESTRAN_H
#define ZQPRESTRAN_H

#include "zqhtran.h"

#include <QDomDocument>

/*!
 * The top level of a lesson: the index document of a ZQTX package and the root of an IWB document. Slides are listed,
 * never opened.
 */
class ZQPresTran : public ZQHTran
{
public:
    ZQPresTran();

    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! As the base, and Range ("width,height") if both sizes are there.
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! The index: header attributes of <main> and one <file href="slides/ID.xml"/> for each of json's Slides, behind
    //! those that the document has already. A null document is made from a template.
    QDomDocument tranJSON2ZQTXDocument(QDomDocument document, QJsonObject json, QJsonObject context);

    //! The IWB root with its page set still empty. A null document is made from a template.
    QDomDocument tranJSON2IWBDocument(QDomDocument document, QJsonObject json, QJsonObject context);

    //! The page size of an IWB root, in pixels as text: from width and height, or else from "viewbox".
    QJsonObject tranIWBDocument2JSON(QDomElement element, QJsonObject json);
};

#endif // ZQPRESTRAN_H
