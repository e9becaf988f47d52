// SPDX-License-Identifier: MIT
#ifndef LESSON_H
#define LESSON_H

#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QTransform>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

class IZQTransformation;

namespace lessonhost {

class LossReport;

//! Is told how many parts of a work are done, after each.
using Progress = std::function<void(int done, int total)>;

/*!
 * One slide of the lesson model: its own keys, and its items in order from back to front.
 */
struct LessonSlide
{
    QJsonObject properties;
    QJsonArray items;
};

/*!
 * An open lesson, slide by slide, so that memory doesn't grow with their number. Every function throws LessonError.
 */
class LessonReader
{
public:
    virtual ~LessonReader() = default;

    //! The presentation's keys, without Slides.
    virtual QJsonObject presentation() = 0;
    virtual int slideCount() = 0;
    //! Slides are counted from 0 and may be asked for in any order, more than once: by one thread at a time, while others
    //! ask for files.
    virtual LessonSlide slide(int index) = 0;

    //! Files that belong to the lesson, as paths relative to the package with "/" between the parts.
    virtual QStringList resources() = 0;
    //! Where a resource lies on disk while the reader lives.
    virtual QString resourceFile(const QString &relativePath) = 0;
};

/*!
 * A lesson being written. Nothing is seen at the target before finish(); a writer that is dropped before leaves no
 * trace. Every function throws LessonError.
 */
class LessonWriter
{
public:
    virtual ~LessonWriter() = default;

    //! Before anything else: how much is to come. Refuses what no reader would take.
    virtual void expect(int slides, int resources)
    {
        Q_UNUSED(slides)
        Q_UNUSED(resources)
    }
    //! First: the presentation's keys, without Slides.
    virtual void begin(const QJsonObject &presentation) = 0;
    //! Where resources are needed while slides are written, they are added before the slides.
    virtual void addResource(const QString &relativePath, const QString &sourceFile) = 0;
    virtual void writeSlide(const LessonSlide &slide) = 0;
    //! When there can't be another slide: waits for what other threads do about those that are written. A failure of
    //! theirs comes first.
    virtual void settle() { }
    //! Last: puts what was written in the place of whatever was at the target.
    virtual void finish() = 0;
};

/*!
 * An element of svg that shows an item or a part of it, on the page.
 */
struct PlainElement
{
    QString tag;
    QVector<std::pair<QString, QString>> attributes; //!< without an identifier
    QString text; //!< what stands in it

    void set(const char *name, const QString &value) { attributes.append({QLatin1String(name), value}); }
};

/*!
 * An item as a picture, or as a few elements.
 */
struct PaintedItem
{
    QVector<PlainElement> elements; //!< from back to front; there is no picture beside them
    QImage image; //!< with nothing where the item isn't; null where nobody needs its pixels
    QRectF box; //!< where it stands on the page, upright
    QStringList words; //!< of each text in it
    QStringList families; //!< the fonts that these ask for first
};

/*!
 * An item where the groups around it have it.
 */
struct PlacedItem
{
    QJsonObject item;
    QTransform placed; //!< from where the item says that it is to the page
};

/*!
 * Paints items for formats that have no form for them.
 */
class ItemPainter
{
public:
    enum Form {
        Picture,
        Elements, //!< nothing for an item that a few don't show
        Either //!< elements where a few show the same, else a picture
    };

    virtual ~ItemPainter() = default;
    //! What is left of an item where others rub out ink. page: pixels. Nothing for an item that shows nothing. Throws
    //! LessonError.
    virtual std::optional<PaintedItem> paint(const PlacedItem &item, const QVector<PlacedItem> &rubbing,
                                             const QSizeF &page, Form form) = 0;
    //! What a slide shows of its classroom game below its items. Nothing for one without such a game. Throws
    //! LessonError.
    virtual std::optional<PaintedItem> paintGame(const LessonSlide &slide, const QSizeF &page) = 0;
    //! The lesson's first slide, so many pixels wide; null for a lesson without slides. Throws LessonError.
    virtual QImage thumbnail(int width) = 0;
};

/*!
 * What readers and writers are given to work with.
 */
struct LessonContext
{
    IZQTransformation *plugin = nullptr;
    LossReport *losses = nullptr;
    bool verify = true; //!< read back what was written and report what did not survive
    bool isKept = true; //!< the output is for the user, and not only for what is made of it
    bool readsAhead = false; //!< other threads may read what will be asked for, and check and write what was given
    bool isTrial = false; //!< nothing is to be written: it is only asked what would be lost
    QHash<QString, QString> options; //!< of single formats, by the name of the command's option
    //! Makes a painter for the lesson of a reader; may be empty. isTrial: its pictures need no pixels, and their boxes
    //! say nothing.
    std::function<std::unique_ptr<ItemPainter>(LessonReader &reader, bool isTrial)> makePainter;
    ItemPainter *painter = nullptr; //!< of the lesson that is written; null where there is none
};

} // namespace lessonhost

#endif // LESSON_H
