// SPDX-License-Identifier: MIT
#ifndef NAMEDBOXES_H
#define NAMEDBOXES_H

#include <QJsonObject>
#include <QRectF>
#include <QString>

namespace lessonhost {

class ItemView;
class PlainSvg;

/*!
 * Shows the items that have no drawing of their own in svg.
 */
class NamedBoxes
{
public:
    explicit NamedBoxes(PlainSvg &svg);

    //! The item's box with the plain name of its type and the text that stands on it; an item without a box
    //! has one where its points or its Matrix put it, and the last of all at the page's left edge. hasPicture: it lies over a picture that is to be seen.
    void drawBox(const QJsonObject &item, bool hasPicture);

private:
    QRectF boxOf(const ItemView &item);

    PlainSvg &m_svg;
    int m_withoutPlace = 0;
};

} // namespace lessonhost

#endif // NAMEDBOXES_H
