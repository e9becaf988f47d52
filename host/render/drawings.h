#ifndef DRAWINGS_H
#define DRAWINGS_H

#include "iwb/iwbpagewriter.h"
#include "render/namedboxes.h"

#include <QStringList>

namespace lessonhost {

/*!
 * Draws the items of one slide, each in the way that a table names for its type: as IWB shows it where nothing else is
 * said. What can't be drawn is shown as a box with its name.
 */
class Drawings
{
public:
    //! pages: with a document that takes the elements; files: what pictures on items may be of.
    Drawings(PlainSvg &svg, IwbPageWriter &pages, const QStringList &files);

    //! False for an item that is shown by its name alone.
    bool draw(const QJsonObject &item);

private:
    using Draw = bool (Drawings::*)(const QJsonObject &item);
    static Draw drawingOf(const QString &type);

    bool drawFromTables(const QJsonObject &item);
    bool drawIwb(const QJsonObject &item);
    bool drawMindMap(const QJsonObject &item) { return m_boxes.drawMindMap(item); }
    bool drawGraph(const QJsonObject &item);
    void drawText(const QString &html, const QRectF &area, const QTransform &placed);
    QJsonObject pictureOn(const QJsonObject &item) const;

    PlainSvg &m_svg;
    IwbPageWriter &m_pages;
    QStringList m_files;
    NamedBoxes m_boxes;
};

} // namespace lessonhost

#endif // DRAWINGS_H
