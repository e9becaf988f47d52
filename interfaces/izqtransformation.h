// SPDX-License-Identifier: MIT
#ifndef IZQTRANSFORMATION_H
#define IZQTRANSFORMATION_H

#include <QDomDocument>
#include <QDomElement>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

/*!
 * What the lesson editor calls to convert a lesson between its JSON model, raw XML, ZQTX and IWB.
 *
 * A lesson has three levels: presentation, slide and item. Each operation converts one element of one level; the
 * caller walks the lesson and puts the results together. All values are shared handles: a write to an element or a
 * document reaches the caller's tree, a JSON object is read only and comes back as the result.
 *
 * Nothing is thrown and nothing is reported. What can't be converted gives an empty object, a null element or the
 * element, document or object that was handed in. Calls come from one thread, one at a time.
 *
 * The order of the operations is part of the interface.
 */
class IZQTransformation
{
public:
    virtual ~IZQTransformation() { }

    //! Has no effect; keeps its place in the table of operations.
    virtual void reservedHook(void *reserved) = 0;

    // Raw XML to JSON. context: "slide" (the JSON of the item's slide), "pres" (the JSON of the presentation),
    // "path" (the location of the package). Convert the slide before its items: they need it in the context.
    virtual QJsonObject tranPresXML2JSON(QDomElement element, QJsonObject context) = 0;
    virtual QJsonObject tranSlideXML2JSON(QDomElement element, QJsonObject context) = 0;
    virtual QJsonObject tranItemXML2JSON(QDomElement element, QJsonObject context) = 0;

    // JSON to ZQTX. A null document or element is made from a template; one that is handed in is written into.
    virtual QDomDocument tranPresJSON2ZQTX(QDomDocument document, QJsonObject json) = 0;
    virtual QDomDocument tranSlideJSON2ZQTX(QDomDocument document, QJsonObject json) = 0;
    virtual QDomElement tranItemJSON2ZQTX(QDomElement element, QJsonObject json) = 0;

    // ZQTX to JSON. context as for raw XML.
    virtual QJsonObject tranPresZQTX2JSON(QDomElement element, QJsonObject context) = 0;
    virtual QJsonObject tranSlideZQTX2JSON(QDomElement element, QJsonObject context) = 0;
    virtual QJsonObject tranItemZQTX2JSON(QDomElement element, QJsonObject context) = 0;

    // Queries: they answer empty, whatever is asked.
    virtual QMap<QString, QVariant> tranPresQuery(QString path) = 0;
    virtual QMap<QString, QVariant> tranSlideQuery(void *reserved, QString path) = 0;
    virtual QJsonObject tranItemQuery(void *reserved, QString path) = 0;

    // JSON to IWB. A null presentation document is made from a template. Slides and items give an element for the
    // caller to append; records about them go under the root of the document.
    virtual QDomDocument tranPresJSON2IWB(QDomDocument document, QJsonObject json) = 0;
    virtual QDomElement tranSlideJSON2IWB(QDomDocument &document, QJsonObject json) = 0;
    virtual QDomElement tranItemJSON2IWB(QDomDocument &document, QJsonObject json) = 0;

    // IWB to JSON. json: what is known already, "path" among it (the directory of the opened package with one
    // separator at its end); it comes back filled. root: the element that holds the iwb:element records.
    virtual QJsonObject tranPresIWB2JSON(QDomElement element, QJsonObject json) = 0;
    virtual QJsonObject tranSlideIWB2JSON(QDomElement root, QDomElement page, QJsonObject json) = 0;
    virtual QJsonObject tranItemIWB2JSON(QDomElement element, QJsonObject json) = 0;
};

#define IZQTransformation_iid "com.zqt.qtSlateDesk.IZQTransformation/1.0"
Q_DECLARE_INTERFACE(IZQTransformation, IZQTransformation_iid)

#endif // IZQTRANSFORMATION_H
