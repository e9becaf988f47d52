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

private:
    //! Page effect and interaction script from the parts of SlideTagsInfo.
    static void readTags(QJsonObject &json);
};

#endif // ZQSLIDETRAN_H
