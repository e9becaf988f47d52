// SPDX-License-Identifier: MIT
#ifndef PICTURESTORE_H
#define PICTURESTORE_H

#include "files/pictures.h"

#include <QDomElement>
#include <QHash>
#include <QTransform>
#include <QVector>

namespace lessonhost {

/*!
 * The pictures that drawings show, each kept once, however many slides show it and whatever its files are called.
 * Drawings hold its name, and who writes them takes the content from here. Until then it stays in its file. Functions
 * throw LessonError where the disk fails.
 */
class PictureStore
{
public:
    //! The name of a file's picture, or nothing for one that can't be drawn. budget: what all pictures may have that
    //! are drawn together.
    QString add(const QString &file, PixelBudget &budget);

    //! The name of the picture that an element of a drawing shows, or nothing for any other element.
    QString pictureOf(const QDomElement &element) const;

    //! Pixels.
    QSize size(const QString &name) const { return m_entries.at(indexOf(name)).size; }
    bool isDrawing(const QString &name) const { return m_entries.at(indexOf(name)).isDrawing; }
    //! A drawing as such, everything else in pixels.
    ShownPicture shown(const QString &name) const;
    //! Its pixels, made smaller if it has more than the budget had left for it.
    QImage image(const QString &name) const;
    //! What it is where isDrawing() says so, as an svg that leads nowhere and fills whatever it is stretched to.
    QByteArray drawing(const QString &name) const;

    //! A drawing as a text that needs nothing else. A picture that it shows several times is in it once. attributes: of
    //! the drawing itself, in place of its own.
    QByteArray text(const QDomElement &svg, const QHash<QString, QString> &attributes = {}) const;

private:
    struct Entry
    {
        QString file;
        QSize size;
        qint64 most = 0; // pixels that it may have
        bool isDrawing = false;
    };

    struct Known
    {
        QByteArray fingerprint;
        qint64 pixels = 0; // unpacked
    };

    int indexOf(const QString &name) const;
    QString definition(const QString &name) const;

    QVector<Entry> m_entries;
    QHash<QString, Known> m_known; // by file
    QHash<QPair<QByteArray, qint64>, int> m_indices; // by fingerprint, and how many pixels it may have if it has more
};

//! From a picture of this size to where an element shows it, stretched to its box.
QTransform pictureTransform(const QDomElement &image, const QSize &size);

//! The elements below that show pictures, to change them.
QVector<QDomElement> imagesIn(const QDomElement &svg);

} // namespace lessonhost

#endif // PICTURESTORE_H
