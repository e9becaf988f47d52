// SPDX-License-Identifier: MIT
#ifndef ZQSLIDETRAN_H
#define ZQSLIDETRAN_H

#include "zqhtran.h"

#include <QDomDocument>

/*!
 * One slide: background, page effect, tags, notebook paper, the list of animated items and the classroom activity. Its
 * items are not touched; the host converts each by itself.
 */
class ZQSlideTran : public ZQHTran
{
public:
    ZQSlideTran();

    //! Fills json from a raw slide. SlideSourceRect ("x,y,width,height" in pixels) is always there afterwards.
    QJsonObject tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

    //! Writes the slide into the document element; a null document is made from a template. <items> stays as it is.
    QDomDocument tranJSON2ZQTXDocument(QDomDocument document, QJsonObject json, QJsonObject context);

    //! One svg:page with the slide's background, not yet attached to the document; its record is. json holds index (a
    //! number), BackColor (a colour name), x, y, Width, Height (pixels as text), AttachFile (a picture in the
    //! filelibrary/ that lies where filePath without its last four characters leads) and filePath (where to export).
    QDomElement tranJSON2IWBPage(QDomDocument &document, QJsonObject json, QJsonObject context);

    //! Fills json from a page. root holds the iwb:element records; json holds path, the directory of the opened
    //! package with one separator at its end. Elements that were read get the attribute "isloaded". The slide always
    //! gets a new ID and no page effect.
    QJsonObject tranIWBPage2JSON(QDomElement root, QDomElement page, QJsonObject json, QJsonObject context);

private:
    //! Page effect and interaction script from the parts of SlideTagsInfo.
    static void readTags(QJsonObject &json);

    // The list of items that are animated on the slide: "animations", an object with the array "animation" of IDs.
    static QJsonObject readSlideAnimations(QDomElement element, QJsonObject json, QJsonObject context);
    static void writeSlideAnimations(QDomElement element, QJsonObject json, QJsonObject context);

    //! The interaction script of a raw slide as indented JSON text: numbered triggers, each with numbered actions. The
    //! script is cut at its triggers, each of which is parsed alone.
    static QString interactiveToJson(const QString &text);

    // The classroom activity, see SlideActivity.
    static QJsonObject readClassActivity(QDomElement element, QJsonObject json, QJsonObject context);
    static void writeClassActivity(QDomElement element, QJsonObject json, QJsonObject context);

    static QJsonObject exportBackground(const QJsonObject &json);
    void importBackground(const QDomElement &page, const QString &rectangleId, QJsonObject &json);
};

#endif // ZQSLIDETRAN_H
