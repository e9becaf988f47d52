// SPDX-License-Identifier: MIT
#ifndef CANVAS_H
#define CANVAS_H

#include "canvas/lessontext.h"
#include "canvas/plainsvg.h"
#include "canvas/rubbing.h"
#include "iwb/iwbmedia.h"
#include "iwb/iwbpagewriter.h"
#include "lesson/itemview.h"

namespace lessonhost {

/*!
 * How a text stands in its area.
 */
struct TextPlace
{
    bool isInMiddle = true; //!< of the area's height; else it begins at its top
    bool isFitted = false; //!< made smaller until it fits into the area
    TextLook look;
};

/*!
 * What the items of one slide are drawn on: the lines of its svg, the texts and pictures that IWB has a form for, and
 * the files of the lesson.
 */
class Canvas
{
public:
    //! pages: with a document that takes the elements; files: those of the lesson.
    Canvas(PlainSvg &svg, IwbPageWriter &pages, IwbMedia &files);

    PlainSvg &svg() const { return m_svg; }

    //! reference: as items name their files.
    bool hasFile(const QString &reference) const { return !m_files.find(reference).isEmpty(); }
    //! path: just this one in the lesson.
    bool holds(const QString &path) const { return !m_files.source(path).isEmpty(); }

    //! Pixels; empty for what is no picture of the lesson, and none that its address "data:..." holds.
    QSize pictureSize(const QString &reference) const;
    //! Its pixels, made smaller if it has more than most; null for what is no picture of the lesson. Throws LessonError
    //! where the disk fails.
    QImage picture(const QString &reference, qint64 mostPixels) const;

    //! The item as IWB shows it. False where IWB has nothing to see for it.
    bool addAsIwb(const QJsonObject &item);

    //! A text as items hold it, HTML or plain, in lines as long as an area is wide. placed: from the area to the page;
    //! it may mirror and slant the text. False for a text that would have to be made smaller than can be read.
    bool addText(const QString &text, const QRectF &area, const QTransform &placed = {}, const TextPlace &place = {});

    //! One line of letters. middle: of the line on which they stand; placed: from there to the page.
    void addLetters(const QString &text, double size, const QPointF &middle, const QTransform &placed,
                    const TextLook &look = {});

    //! A picture of the lesson, or one that its address "data:..." holds, stretched to a box; placed may mirror and
    //! slant it. False for a file that the lesson hasn't, or that can't be drawn.
    bool addPicture(const QString &reference, const QRectF &box, const QTransform &placed = {});

    //! An area that a picture of the lesson fills side by side, as PlainSvg::addTexture() does it. Null for a file that
    //! the lesson hasn't, or that can't be drawn.
    QDomElement addTexture(const QPainterPath &area, const QString &reference, const QColor &color);

    //! A drawing in svg in its proportion, from a box's upper left corner on. What it shows of pictures is in it or in
    //! the lesson. usualSize: of one that tells none. False for what is no drawing.
    bool addDrawing(const QByteArray &svg, const QRectF &box, const QSizeF &usualSize);

    //! What is rubbed out of the ink that is drawn now.
    Rubbing &rubbing() { return m_rubbing; }

private:
    PlainSvg &m_svg;
    IwbPageWriter &m_pages;
    IwbMedia &m_files;
    Rubbing m_rubbing;
};

//! A drawing of one type. False for an item that doesn't tell enough for it.
using SvgDrawing = bool (*)(Canvas &canvas, const ItemView &item);

} // namespace lessonhost

#endif // CANVAS_H
