// SPDX-License-Identifier: MIT
#ifndef DRAWINGS_H
#define DRAWINGS_H

#include "canvas/canvas.h"
#include "drawings/namedboxes.h"
#include "drawings/shownitems.h"

namespace lessonhost {

/*!
 * Draws the items of one slide, each as the table of its family says for its type, or as IWB shows it. What can't be
 * drawn is shown as a box with its name.
 */
class Drawings
{
public:
    //! The arguments of Canvas.
    Drawings(PlainSvg &svg, IwbPageWriter &pages, IwbMedia &files);

    //! Before the items are drawn: what is rubbed out of those before, for each record of it in the order of the slide.
    //! Nothing for other items. placed: to where it is on the page.
    void rubOut(const QJsonObject &item, const QTransform &placed);

    //! What the slide's classroom game shows below the items of the slide, if it has one.
    void drawGame(const QJsonObject &slide, const QVector<ShownItem> &items);

    //! False for an item that is shown by its name alone.
    bool draw(const QJsonObject &item);

    //! What covers an item.
    void drawCover(const QRectF &box);

private:
    bool drawAsIwb(const ItemView &item);
    bool addPictureOn(const ItemView &item);

    Canvas m_canvas;
    NamedBoxes m_boxes;
};

} // namespace lessonhost

#endif // DRAWINGS_H
