// SPDX-License-Identifier: MIT
#ifndef TEXTPATTERN_H
#define TEXTPATTERN_H

#include <QString>
#include <QStringRef>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextFrameFormat>
#include <QVector>

#include <optional>

namespace lessonhost {

/*!
 * HTML taken apart: its markup with a sign in the place of each piece of words, and the words. Blanks before and behind
 * them belong to the markup, for what becomes of them depends on what stands beside.
 */
struct TextParts
{
    QString markup;
    QVector<QStringRef> words;
    int letters = 0; //!< of all words

    //! Nothing for HTML whose words can't be told from its markup at a glance. The words refer to html.
    static std::optional<TextParts> of(const QString &html);
};

/*!
 * What a text document makes of markup, whatever the words are. Most texts of a lesson share their markup with others,
 * and to read it takes longer than to lay them out.
 */
class TextPattern
{
public:
    //! Nothing for a document that is more than paragraphs of words. document: made of the markup, with formats as they
    //! are to be. count: of the pieces of words.
    static std::optional<TextPattern> of(const QTextDocument &document, int count);

    //! Puts the pattern with these words into an empty document without a layout.
    void fill(QTextDocument &document, const QVector<QStringRef> &words) const;

private:
    struct Run
    {
        QString text; // with signs in the places of words
        QTextCharFormat format;
    };
    struct Paragraph
    {
        QTextBlockFormat format;
        QTextCharFormat letters;
        QVector<Run> runs;
    };

    QVector<Paragraph> m_paragraphs;
    QTextFrameFormat m_frame;
};

} // namespace lessonhost

#endif // TEXTPATTERN_H
