// SPDX-License-Identifier: MIT
#ifndef IWBITEMWRITER_H
#define IWBITEMWRITER_H

#include "lesson/lesson.h"
#include "lesson/shapeforms.h"
#include "losses/slidelosses.h"

#include <QDomDocument>
#include <QPolygonF>
#include <QSet>

#include <utility>

class IZQTransformation;

namespace lessonhost {

class IwbMedia;

/*!
 * Writes items as svg: prepares each for the plug-in's export, so that what comes out stands in the right place and
 * keeps it on further trips, and completes the element for readers that know svg but not the plug-in.
 */
class IwbItemWriter
{
public:
    struct Setting
    {
        IZQTransformation *plugin = nullptr;
        IwbMedia *media = nullptr;
        bool keepsInk = true; //!< writes strokes as polylines
        bool convertsDrawings = false; //!< for the format's own rules: all has a place and files of the kinds it knows
        bool keepsLinks = true; //!< writes what items open
        bool isStored = true; //!< files go into a package, in the forms that it takes
        bool isTried = false; //!< pages are only read back: long strokes may have a few of their points
    };

    explicit IwbItemWriter(const Setting &setting);

    //! The element of an item that stands on a page by itself, within its link, in no place yet; null, and told to
    //! losses, for one that has no form. id: what the element is called. isMoved: it won't
    //! stay in its place. Records about it are added to the document.
    QDomElement write(QDomDocument &document, const QJsonObject &item, const QString &id, const SlideLosses &losses,
                      bool isMoved = false);

    //! Where the item written last is a stroke with a few of its points: these.
    QPolygonF shortLine() const { return m_shortLine; }
    //! How many points were left out so since the last call.
    int takePointsLeftOut() { return std::exchange(m_pointsLeftOut, 0); }

    //! Holds no longer what was written, nor whom it was told to.
    void letGo()
    {
        m_document.clear();
        m_losses = {};
    }

    //! A picture that stands for an item: hidden, locked and linked like it. reference: of the picture's file.
    QDomElement writePicture(QDomDocument &document, const QJsonObject &item, const QString &id,
                             const QString &reference, const QRectF &box);

    //! The elements that show an item, from back to front, or the link that holds them: locked and linked like it. The
    //! last is called as the item.
    QVector<QDomElement> writeElements(QDomDocument &document, const QJsonObject &item, const QString &id,
                                       const QVector<PlainElement> &elements);

    //! Whether items without a form are told to losses; if not, whyNot() has the reason for the last one.
    void setTellsFormless(bool tells) { m_tellsFormless = tells; }
    Sentence whyNot() const { return m_whyNot; }

    //! The file that the item written last would open, where the lesson has none.
    QString missingFile() const { return m_missingFile; }

    //! Strokes that became polylines so far.
    int strokesAsPolylines() const { return m_strokes; }
    int strokesLeftOut() const { return m_strokesLeftOut; }

private:
    QDomElement writeShape(const QJsonObject &item, const ShapeForm &form);
    QDomElement writeStroke(const QJsonObject &item, bool isMoved);
    QDomElement writeText(const QJsonObject &item);
    QDomElement writeMedia(const QJsonObject &item);
    QDomElement writeCurtain(const QJsonObject &item);

    QString placeMedia(const QString &source, const QString &folder);
    QJsonObject commonKeys(const QJsonObject &item);
    void addLink(const QJsonObject &item, QJsonObject &prepared);
    QString linkedFile(const QString &reference);
    void tellFormless(const Sentence &why);
    QDomElement convert(const QJsonObject &prepared);
    void complete(const QJsonObject &item, QDomElement element);
    void addLock(const QString &id);

    Setting m_setting;
    QDomDocument m_document;
    QJsonObject m_given; // the item that is being written
    QString m_id; // of its element
    SlideLosses m_losses; // of its slide
    QString m_linkedFile; // the reference of the file that the item being written opens
    QString m_missingFile; // that it would open
    QSet<QString> m_formless; // types that the plug-in gave no element for
    Sentence m_whyNot;
    bool m_tellsFormless = true;
    QPolygonF m_shortLine;
    int m_pointsLeftOut = 0;
    int m_strokes = 0;
    int m_strokesLeftOut = 0;
};

} // namespace lessonhost

#endif // IWBITEMWRITER_H
