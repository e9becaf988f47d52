// SPDX-License-Identifier: MIT
#ifndef PICTURES_H
#define PICTURES_H

#include "files/closedsvg.h"
#include "files/lessonerror.h"
#include "sentences/sentence.h"

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

namespace lessonhost {

/*!
 * How many pixels the pictures that are drawn together may have, so that they fit into the memory: many large ones are
 * made smaller, the more of them there are the more so.
 */
class PixelBudget
{
public:
    static constexpr qint64 all = qint64(8192) * 8192;

    //! What the next picture may have; 0 if there is nothing left for one that has so many before it is made smaller.
    qint64 shareFor(qint64 pixels) const;
    //! Of a picture that has so many pixels, and so many when it is drawn.
    void take(qint64 pixels, qint64 drawn);

private:
    qint64 m_left = all;
    qint64 m_unpackedLeft = 8 * all;
};

/*!
 * A picture as it is handed on: in a form that every viewer knows.
 */
struct ShownPicture
{
    QByteArray type; //!< "png", "jpeg", "gif" or "svg+xml"; empty for what can't be drawn
    QByteArray bytes;
    QSize size; //!< pixels
};

/*!
 * A picture of a lesson. Everybody who looks at pictures does it through here: no library is given the name of a file
 * or a text that names one. What a drawing in svg shows of other pictures is taken from files beside it or below, and
 * from nowhere else.
 */
class Picture
{
public:
    //! Of a plain file; for a link, a pipe or a device it is none. Throws LessonError where the disk fails.
    explicit Picture(const QString &file);

    //! Why it can't be shown, as a clause such as "it is a damaged picture", or nothing. Pictures of pixels are looked
    //! at without unpacking them, drawings aren't read.
    Sentence problem() const { return m_problem; }
    //! The same of a drawing, which is read for it; nothing for other pictures.
    Sentence drawingProblem() const;
    //! "png", "jpeg" and so on, "svg" for drawings; empty for what is no picture.
    QByteArray format() const { return m_format; }
    //! Pixels; empty where it tells none.
    QSize size() const;

    //! Its pixels, made smaller if it has more than most. Null if it can't be drawn.
    QImage image(qint64 most = PixelBudget::all) const;
    //! The picture as it is handed on: its own bytes where they will do, or its pixels written anew, lossless but for
    //! photographs. At most so many pixels; inner is what the pictures in a drawing may have.
    ShownPicture shown(qint64 most, PixelBudget &inner) const;
    //! The picture as an address "data:image/...". Empty if it can't be drawn.
    QString address(PixelBudget &budget) const;
    //! How many pixels are unpacked to draw it.
    qint64 unpackedPixels() const;
    //! The same for files of the same content.
    QByteArray fingerprint() const;
    //! A drawing that leads nowhere. Throws LessonError for what is no drawing.
    ClosedSvg drawing() const;

private:
    bool isTurned() const;
    //! Of a file's content. folder is where it lies; without one no other file is taken into it.
    Picture(const QByteArray &content, const QString &folder, int depth);
    void look();
    void findProblem();
    QByteArray content() const;
    QByteArray drawingText() const;
    ClosedSvg drawing(PixelBudget &budget) const;
    std::optional<ClosedSvg> readDrawing(PixelBudget &budget) const;
    QImage image(qint64 most, PixelBudget &budget) const;
    QString addressOf(const QString &reference, PixelBudget &budget) const;
    friend QString embeddedPicture(const QString &address, PixelBudget &budget);
    friend QSize embeddedSize(const QString &address);

    std::unique_ptr<QIODevice> m_device; // of pictures of pixels, the memory
    QString m_folder;
    int m_depth = 0; // drawings that it stands in
    QByteArray m_format;
    Sentence m_problem;
};

//! Whether a reference to a picture is an address "data:...", which holds it.
bool isEmbedded(const QString &reference);

//! Picture::address() of what such an address holds.
QString embeddedPicture(const QString &address, PixelBudget &budget);

//! Picture::size() of the same.
QSize embeddedSize(const QString &address);

//! Picture(file).problem().
Sentence pictureProblem(const QString &file);

//! "data:image/...", or nothing for what can't be drawn.
QString addressOf(const ShownPicture &picture);

//! That a picture can't be packed, be it for want of memory; path: what it is called, if anything.
LessonError packingError(const QString &path = {});

} // namespace lessonhost

#endif // PICTURES_H
