// SPDX-License-Identifier: MIT
#ifndef PLAINSVG_H
#define PLAINSVG_H

#include "canvas/innersvg.h"
#include "canvas/labelplaces.h"
#include "files/pictures.h"
#include "sentences/sentence.h"
#include "svg/svgstyle.h"

#include <QColor>
#include <QDomDocument>
#include <QHash>
#include <QJsonObject>
#include <QLineF>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QVector>

#include <functional>

namespace lessonhost {

class IwbMedia;
struct LabelLines;
class PictureStore;

/*!
 * A few letters about a point.
 */
struct SvgMark
{
    QString text;
    QPointF middle;
    double turn = 0; //!< degrees, clockwise
};

/*!
 * An svg of one page, such as every viewer draws it: no prefixes, pictures inside, nothing that runs or leads out of
 * it.
 */
class PlainSvg
{
public:
    //! media: what the references of the elements mean that will be added; pictures: where their pictures go. Both have
    //! to live as long. paper: what lies below everything.
    PlainSvg(const QSizeF &size, const IwbMedia &media, PictureStore &pictures, const QColor &paper = Qt::white);

    QSizeF size() const { return m_size; }
    //! What the names of its parts begin with, so that pages can stand in one document.
    void setNames(const QString &prefix) { m_names = prefix; }
    //! Has its sentences in English, so that it is the same for everyone. They are in the language of the user
    //! otherwise.
    void sayInEnglish() { m_isEnglish = true; }

    //! Nobody asks for a drawing that a few elements don't show.
    void setForElements() { m_isForElements = true; }
    //! True as soon as a drawing that has to be shown by a few elements takes more. What is added to it may be missing.
    bool isInVain() const;
    //! group: with texts that were added.
    void countTexts(const QDomElement &group);

    /*!
     * As long as it lives, what is added stands under a transform, and under those of the scopes around it: lines,
     * letters and pictures alike.
     */
    class Scope
    {
    public:
        Scope(PlainSvg &svg, const QTransform &transform);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        PlainSvg &m_svg;
        QTransform m_before;
    };
    /*!
     * As long as it lives, what is added stands in a group of its own, which tells whose it is. One at a time; a group
     * that nothing is added to isn't there.
     */
    class ItemGroup
    {
    public:
        enum Side { Front, Back, Cover };

        //! id: the item's, for who works on it later, also on its cover. label: what is read aloud, beginning with
        //! kind, a plain name that pages translate. isHidden: not drawn until it is shown.
        ItemGroup(PlainSvg &svg, const QString &id, const QString &kind, const QString &label, bool isHidden,
                  Side side = Front);
        ~ItemGroup();
        ItemGroup(const ItemGroup &) = delete;
        ItemGroup &operator=(const ItemGroup &) = delete;

    private:
        PlainSvg &m_svg;
    };

    //! From what is added now to the page.
    QTransform transform() const { return m_transform; }

    /*!
     * A path of which nothing is written yet.
     */
    struct Shape
    {
        QDomElement element; //!< without attributes
        QPainterPath path;
        SvgPaint paint;
    };
    //! What was added, within the bounds of drawings, but for these. They stand in it one behind the other. Nothing is
    //! added afterwards.
    QDomElement sketch();
    const QVector<Shape> &shapes() const { return m_shapes; }

    //! What was added, within the bounds of drawings. Pictures are those of the store, by their names.
    QDomDocument finished();

    //! Adds an element of an IWB page. False for a picture that can't be drawn.
    bool add(const QDomElement &element);

    //! A picture on disk, stretched to a box. False for one that can't be drawn.
    bool addPicture(const QString &file, const QRectF &box);

    //! What an address "data:..." holds, likewise.
    bool addEmbedded(const QString &address, const QRectF &box);

    //! An element for what is drawn in a place of its own. placed: from there to the page.
    QDomElement addGroup(const QTransform &placed);

    //! A drawing in svg, in its proportion from a box's upper left corner on; one that tells no size is as large as
    //! usualSize. fileOf: where a picture lies that it refers to. False for what is no drawing.
    bool addDrawing(const QByteArray &svg, const QRectF &box, const QSizeF &usualSize,
                    const std::function<QString(const QString &reference)> &fileOf);
    //! How many pixels a picture may have that is made for this page; 0 if there were too many before.
    qint64 mostPixels() const { return m_pixels.shareFor(1); }
    //! Such a picture.
    void addImage(const QImage &image, const QRectF &box);
    //! With round corners and no caps, so that no tip of a line reaches further than its width does.
    void addPath(const QPainterPath &path, const SvgPaint &paint);
    //! The same, for who has more to say of it.
    QDomElement addPathElement(const QPainterPath &path, const SvgPaint &paint);

    //! An area that shows a picture in its own size, side by side from the corner of the page on; the picture stands in
    //! the page once. color: what is seen where patterns aren't known; its alpha counts everywhere. Null for a file
    //! that can't be drawn.
    QDomElement addTexture(const QPainterPath &area, const QString &file, const QColor &color);

    QDomElement addRectangle(const QRectF &box, const QColor &line, const QColor &fill);
    void addLine(const QLineF &line, const QColor &color, double width);
    //! Text in the middle of a box, broken into lines and made smaller until it fits; upright in a narrow box where
    //! that lets it be larger. No smaller than can be read: what doesn't fit then is left out, and a box too small for
    //! any of it has its text beside it. Labels make room for each other; one that finds none isn't there.
    void addLabel(const QString &text, const QRectF &box, double pixelSize, const QColor &color)
    {
        addLabel(Sentence(text), box, pixelSize, color);
    }
    void addLabel(const Sentence &sentence, const QRectF &box, double pixelSize, const QColor &color);
    //! A sentence as its labels say it.
    QString said(const Sentence &sentence) const { return m_isEnglish ? sentence.english() : sentence.local(); }
    //! Smaller letters, in pixels, can't be read: 9 pixels of a page that is 1280 wide.
    double readableSize() const;
    //! Numbers of a scale and the like.
    void addMarks(const QVector<SvgMark> &marks, double pixelSize, const QColor &color);

private:
    QDomElement append(const QString &tag);
    void writeShapes();
    void addHeads(const QDomElement &element, QDomElement &line);
    QDomElement appendPicture(const QString &file);
    QDomElement appendImage(const QString &address);
    bool addPicture(const QDomElement &element);
    void placePictures(const QDomElement &drawing, const QHash<QString, QString> &files);
    QDomElement putLabel(const LabelLines &label, const QRectF &place, bool isUpright, const QColor &color);

    QSizeF m_size;
    const IwbMedia &m_media;
    PictureStore &m_pictures;
    PixelBudget m_pixels;
    QDomDocument m_document;
    QDomElement m_svg;
    LabelPlaces m_labels;
    QTransform m_transform;
    QDomElement m_group; // of the item that is added
    QDomElement m_scope; // holds what was added last under a transform
    QTransform m_scopeTransform;
    InnerSvgBudget m_innerBudget;
    QHash<QString, QString> m_textures; // patterns by file
    QString m_names;
    bool m_isEnglish = false;
    bool m_isForElements = false;
    int m_leastElements = 0; // that stand for what was added
    QVector<Shape> m_shapes;
    double m_dashes = 0; // of these, no fewer than they have
    bool m_isBounded = false; // nothing is added any more
    bool m_hasOthers = false; // numbers of others, which may be out of bounds
    int m_drawings = 0;
};

} // namespace lessonhost

#endif // PLAINSVG_H
