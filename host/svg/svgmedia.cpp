// SPDX-License-Identifier: MIT
#include "svg/svgmedia.h"

#include "svg/svgnames.h"
#include "svg/svgpage.h"

namespace lessonhost {

namespace {

void media(SvgPage &page, const QDomElement &source, const SvgPlace &place, const QString &tag)
{
    IwbElement &item = page.addItem(source, place, tag);
    item.reference = linkTarget(source);
    const QRectF box(page.length(source, "x"), page.length(source, "y"), page.length(source, "width"),
                     page.length(source, "height"));
    page.placeBox(source, item, box, place.style.matrix);
    if (place.style.matrix.determinant() < 0 && tag == QLatin1String("svg:image")) {
        // The box is turned with its upper side: what is upside down then is flipped.
        item.flipsDown = !item.flipsDown;
    }
    page.remarkOnOpacity(source, place.style, tag == QLatin1String("svg:image"));
}

} // namespace

void readPicture(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    media(page, element, place, QLatin1String("svg:") + svgName(element));
}

void readSound(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const QDomElement sign = element.firstChildElement();
    const bool isFilm = sign.attribute(QStringLiteral("id")).endsWith(QLatin1String(filmSign));
    const QString tag = isFilm ? QStringLiteral("svg:video") : QStringLiteral("svg:a");
    if (sign.isNull() || element.hasAttribute(QStringLiteral("width"))) {
        media(page, element, place, tag);
        return;
    }
    media(page, sign, page.placeIn(place, sign), tag);
    IwbElement &item = page.result().items.last();
    item.id = element.attribute(QStringLiteral("id"));
    item.reference = linkTarget(element);
}

void readLinkedFile(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    media(page, element, place, QStringLiteral("svg:a"));
}

} // namespace lessonhost
