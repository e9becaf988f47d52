// SPDX-License-Identifier: MIT
#ifndef PLAINPARAGRAPH_H
#define PLAINPARAGRAPH_H

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

class QPaintDevice;
class QPainter;

namespace lessonhost {

/*!
 * A paragraph of letters that all look alike, in the lines that a text document would break it into, at a small part of
 * what a document costs. Most labels are such texts.
 */
class PlainParagraph
{
public:
    //! False for texts that only a document can lay out: long ones, of more than a paragraph, with tags, or written
    //! from right to left.
    static bool canHold(const QString &text);

    //! screen: tells how large a point is, where the application doesn't; may be null, and has to live as long
    //! otherwise.
    PlainParagraph(const QString &text, const QFont &font, const QTextOption &option, QPaintDevice *screen);

    //! False for one that is narrower than a letter, which takes a document, too.
    bool setWidth(double width);

    double height() const { return m_height; }
    //! Of the longest line.
    double width() const { return m_width; }
    const QTextLayout &layout() const { return m_layout; }

    void draw(QPainter &painter) const;

private:
    QTextLayout m_layout;
    double m_height = 0;
    double m_width = 0;
};

} // namespace lessonhost

#endif // PLAINPARAGRAPH_H
