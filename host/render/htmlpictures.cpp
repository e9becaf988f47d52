// SPDX-License-Identifier: MIT
#include "render/htmlpictures.h"

#include "canvas/picturestore.h"
#include "files/xmltext.h"
#include "lesson/itemvalues.h"
#include "render/slidelayers.h"

namespace lessonhost {

// References stand in the places of the pictures.
QByteArray HtmlPictures::html(const QDomElement &svg)
{
    QByteArray pictures;
    const QDomElement copy = svg.cloneNode().toElement();
    for (QDomElement &image : imagesIn(copy)) {
        const PlacedPicture picture = placedPicture(image, m_store);
        if (picture.name.isEmpty()) {
            continue;
        }
        if (!m_written.contains(picture.name)) {
            pictures += pictureHtml(picture.name);
            m_written.insert(picture.name);
        }
        const QTransform placed = pictureTransform(image, m_store.size(picture.name));
        image.setTagName(QStringLiteral("use"));
        for (const char *name : {"x", "y", "width", "height", "preserveAspectRatio"}) {
            image.removeAttribute(QLatin1String(name));
        }
        image.setAttribute(QStringLiteral("transform"),
                           QString(QLatin1String("matrix(") + transformText(placed) + QLatin1Char(')')));
    }
    return pictures + xmlNodeText(copy).toUtf8();
}

QByteArray HtmlPictures::pictureHtml(const QString &name) const
{
    const QSize size = m_store.size(name);
    return "<svg class=\"pictures\" width=\"0\" height=\"0\" aria-hidden=\"true\"><defs><image id=\"" + name.toLatin1()
        + "\" width=\"" + QByteArray::number(size.width()) + "\" height=\"" + QByteArray::number(size.height())
        + "\" preserveAspectRatio=\"none\" xlink:href=\"" + addressOf(m_store.shown(name)).toLatin1()
        + "\"/></defs></svg>\n";
}

} // namespace lessonhost
