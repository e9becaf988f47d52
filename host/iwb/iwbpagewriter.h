// SPDX-License-Identifier: MIT
#ifndef IWBPAGEWRITER_H
#define IWBPAGEWRITER_H

#include "iwb/iwbitemwriter.h"
#include "iwb/uniqueids.h"
#include "lesson/lesson.h"

#include <QSizeF>
#include <QStringList>

namespace lessonhost {

class IwbMedia;

/*!
 * Makes the pages of an IWB document, with their media by reference. Nothing is stored: who wants a package writes the
 * document, who wants a picture draws from it.
 */
class IwbPageWriter
{
public:
    //! An item that stands on a page by itself.
    struct WrittenItem
    {
        QJsonObject given;
        QJsonObject item; //!< the same, hidden, locked and linked by the groups that were around it
        QString id; //!< of its element; empty for an item that has no form
        bool isPicture = false; //!< its element is a picture of it
        bool isOutlined = false; //!< its elements show it, and are of other items' kinds
        int elements = 1; //!< how many of the page stand for it
        QTransform placed; //!< from where the item says that it is to where its element is
        bool isMoved = false; //!< so, by the groups around it and not only by its own flips
        QPolygonF line; //!< of a stroke that has a few of its points; empty for others
        int top = 0; //!< which of the slide's own items it is, or stands in
    };

    explicit IwbPageWriter(const IwbItemWriter::Setting &setting);

    //! Makes a document without pages. The page size of a raw lesson stands in its slides, the first of which is told.
    void start(const QJsonObject &presentation, const QJsonObject &firstSlide);

    //! Null before start(), or where the plug-in makes none.
    QDomDocument document() const { return m_document; }
    //! Hands it over with all that is in it; nothing of it is held here. Another takes its place before a page comes.
    QDomDocument takeDocument();
    //! document: a copy of the one that start() has made.
    void setDocument(const QDomDocument &document) { m_document = document; }
    //! Where the pages of a document stand. Null in one that has no such place.
    static QDomElement pageSet(const QDomDocument &document);
    QSizeF pageSize() const { return m_pageSize; }

    //! Puts a page into the document that shows the slide's colour and picture. number counts from 1. Null where the
    //! plug-in makes none.
    QDomElement addPage(const QJsonObject &slide, int number, const SlideLosses &losses);

    //! Adds the items of the slide to a page, those of groups by themselves, and before them its classroom game.
    QVector<WrittenItem> addItems(QDomElement &page, const LessonSlide &slide, const SlideLosses &losses);

    //! What stands on the pictures that items of the last page became, and the fonts that it asks for.
    const QStringList &paintedWords() const { return m_paintedWords; }
    const QStringList &paintedFamilies() const { return m_paintedFamilies; }

    IwbItemWriter &items() { return m_items; }

    //! Records know elements by their identifiers, whatever page they stand on, and links know pages so. Without this,
    //! what items on two pages call themselves is kept.
    void setUniqueInDocument();

    //! Items without a form become elements of other forms where a few show the same, and else pictures; null for
    //! neither. It has to live as long. makesPictures: false for elements alone.
    void setPainter(ItemPainter *painter, bool makesPictures = true);

private:
    //! What the groups around an item do with it.
    struct Around
    {
        bool isGroup = false;
        QTransform placed;
        bool ignoresEraser = false;
    };
    //! What rubs out the ink before it.
    struct Rubbing
    {
        int place = 0; // among the items of the slide
        PlacedItem item;
    };

    void addItem(QDomElement &page, const QJsonObject &given, const QJsonObject &item, const SlideLosses &losses,
                 QVector<WrittenItem> &written, const Around &around);
    QDomElement write(const PlacedItem &item, WrittenItem &row, const Around &around, const SlideLosses &losses);
    QDomElement paintedOf(const PlacedItem &item, const QVector<PlacedItem> &rubbing, bool isDrawn, WrittenItem &row);
    void findRubbing(const QJsonObject &item, const QTransform &placed, int &place);
    QVector<PlacedItem> rubbingOf(const PlacedItem &item) const;
    bool needsPicture(const PlacedItem &item, const QVector<PlacedItem> &rubbing, const QTransform &moved);
    QDomElement addPicture(const PaintedItem &picture, const QJsonObject &item, const QString &id,
                           const QString &title);
    void noteTexts(const PaintedItem &painted);
    void addGame(QDomElement &page, const LessonSlide &slide);
    void addCover(QDomElement &page, const QString &id, const QRectF &box, const QTransform &placed);
    void addSign(QDomElement link, const QJsonObject &item);
    QString idOf(const QJsonObject &item);
    QString background(const QJsonObject &slide, const QString &id, const SlideLosses &losses);
    void fillPage(QDomElement &page, const QString &picture) const;

    IZQTransformation *m_plugin;
    IwbMedia *m_media;
    bool m_isStored; // what it names
    bool m_keepsInk;
    IwbItemWriter m_items;
    ItemPainter *m_painter = nullptr;
    bool m_makesPictures = false;
    QVector<QDomElement> m_behind; // elements of the item that is written, behind the one that is called as it
    QDomDocument m_document;
    QSizeF m_pageSize;
    int m_number = 0; // of the page that gets items
    UniqueIds m_ids; // of its elements
    bool m_isUniqueInDocument = false;
    int m_generatedIds = 0;
    int m_pictures = 0; // of items
    QStringList m_paintedWords;
    QStringList m_paintedFamilies;
    QVector<Rubbing> m_rubbing; // of the slide
    int m_place = 0; // of the item that is written, among those of the slide
};

} // namespace lessonhost

#endif // IWBPAGEWRITER_H
