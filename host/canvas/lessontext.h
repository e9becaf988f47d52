// SPDX-License-Identifier: MIT
#ifndef LESSONTEXT_H
#define LESSONTEXT_H

#include "canvas/plainparagraph.h"
#include "lesson/closedtext.h"
#include "lesson/fontvalues.h"

#include <QColor>
#include <QDomElement>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QTextOption>
#include <QVector>

#include <functional>
#include <memory>

namespace lessonhost {

/*!
 * How letters look that tell nothing themselves.
 */
struct TextLook
{
    QColor color = Qt::black;
    double pixels = defaultFontPixels;
    Qt::Alignment alignment = Qt::AlignLeft;
    QString family = QStringLiteral("Arial");
    bool isBold = false;
};

/*!
 * A text of a lesson, HTML or plain, in lines of a width: with its paragraphs, lists and tables as a text document lays
 * them out.
 */
class LessonText
{
public:
    //! The size of a picture by what the text calls it; empty for one that isn't there.
    using PictureSize = std::function<QSize(const QString &name)>;

    //! width: in pixels; lines are broken to be no longer, between words or, unless they are to stay whole, within.
    //! sizeOf: of pictures that the text doesn't tell the size of.
    LessonText(const QString &text, double width, const TextLook &look, bool keepsWords, const PictureSize &sizeOf);

    LessonText(const LessonText &) = delete;
    LessonText &operator=(const LessonText &) = delete;

    bool isEmpty() const { return m_document && m_document->isEmpty(); }

    void setWidth(double width);

    //! Of all lines.
    double height() const { return m_document ? m_document->size().height() : m_paragraph->height(); }
    //! The width of the longest line. A word that is longer than the width, or a table, makes it wider.
    double idealWidth() const { return m_document ? m_document->idealWidth() : m_paragraph->width(); }

    //! The size of its smallest letters, sub- and superscript aside.
    double smallestPixels() const { return m_smallestPixels; }

    //! A picture that stands in the text.
    struct TextPicture
    {
        QString name;
        QRectF box;
    };
    //! Draws it into an element of an svg, from 0,0 on, without its pictures, which it returns. isStretched: more
    //! across than down, or slanted, where some viewers set lines elsewhere that are told by their middle or end.
    QVector<TextPicture> draw(const QDomElement &group, bool isStretched);

private:
    void makeDocument(const QString &text, const QFont &font, const QTextOption &option, const PictureSize &sizeOf);
    void sizePictures(const PictureSize &sizeOf);

    QImage m_screen; // tells how large a point is, where the application doesn't
    std::unique_ptr<ClosedTextDocument> m_document; // null for a plain paragraph
    std::unique_ptr<PlainParagraph> m_paragraph;
    QColor m_color;
    double m_smallestPixels = 0;
};

/*!
 * A line of letters without a size of its own.
 */
class LetterLine
{
public:
    explicit LetterLine(const QString &text, const TextLook &look = {});

    //! Of a size of 1.
    double width() const { return m_width; }
    //! What is inked of it, from where it begins on its line, of a size of 1.
    QRectF ink() const;
    //! How high its small letters are, of a size of 1.
    double xHeight() const { return m_xHeight; }

    static constexpr int drawnSize = 100;
    //! Draws it into an element of an svg, in that size, with the middle of its line at 0,0. isStretched: as a text's.
    void draw(const QDomElement &group, bool isStretched) const;

private:
    QString m_text;
    QColor m_color;
    QFont m_font;
    double m_width = 0;
    double m_xHeight = 0;
};

} // namespace lessonhost

#endif // LESSONTEXT_H
