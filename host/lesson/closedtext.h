// SPDX-License-Identifier: MIT
#ifndef CLOSEDTEXT_H
#define CLOSEDTEXT_H

#include <QHash>
#include <QString>
#include <QTextDocument>

namespace lessonhost {

/*!
 * A text document for the HTML of lessons, which come from strangers: it loads nothing that the HTML names, and takes
 * time and memory in proportion to its length. All HTML of lessons is read through it.
 */
class ClosedTextDocument : public QTextDocument
{
public:
    ClosedTextDocument();

    //! Takes HTML without the tags that would take too long, and returns their number: tags nested in 100 others,
    //! tables in eight, cells of tables far larger than what stands in them, thousands of pictures, style sheets of too
    //! many rules. What is no tag, such as the sign in "1 < 2", is text.
    int setLessonHtml(const QString &html);

    //! What the HTML calls the picture in whose place a layout paints something, which is known by its key; nothing for
    //! any other. Pictures are painted by who knows their files.
    QString pictureName(qint64 key) const { return m_pictures.value(key); }

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    QHash<qint64, QString> m_pictures;
};

//! The words of a text in HTML, with one blank between them.
QString plainWords(const QString &html);

} // namespace lessonhost

#endif // CLOSEDTEXT_H
