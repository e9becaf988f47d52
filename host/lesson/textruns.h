// SPDX-License-Identifier: MIT
#ifndef TEXTRUNS_H
#define TEXTRUNS_H

#include "iwbtextinfo.h"
#include "sentences/sentence.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace lessonhost {

/*!
 * Text boards hold HTML, IWB text areas hold runs of equally formatted text. These functions turn one into the
 * other.
 *
 * A run keeps family, size (pixels), weight, slant, underline and strike-out, colour, and the alignment of its
 * paragraph; beside it stands whether its letters are sub- or superscript. "\n" in the text of a run ends a paragraph,
 * U+2028 a line; runs that are made here end with either. Every field is written out, since a field that is missing in
 * a file means bold, italic and underlined.
 */

//! How large sub- and superscript letters are beside others. Text boards tell the size of the others.
constexpr double shiftedLetters = 2.0 / 3;

//! What a text board's HTML becomes.
struct TextRuns
{
    IwbTextInfoList runs; //!< never empty: an empty text is one run with an empty text
    QStringList shifts; //!< one for each run: "sub" and "super" for letters below and above the line, else empty
    QStringList backgrounds; //!< one for each run: the colour behind its letters as "#rrggbb", or empty
    Sentences losses; //!< what runs have no form for, such as "3 control characters"
};

TextRuns textRunsFromHtml(const QString &html);
TextRuns textRunsFromPlainText(const QString &text);

//! What stands beside a run.
struct RunExtras
{
    QString shift; //!< "sub", "super" or nothing
    QString background; //!< a colour behind its letters, or nothing
    QString link; //!< the address that its letters lead to, or nothing
};

//! HTML from the runs of one text area. A newline inside ends a paragraph, which is aligned as its first run says.
//! extras may be shorter than runs.
QString htmlFromTextRuns(const IwbTextInfoList &runs, const QVector<RunExtras> &extras = {});

//! text without the characters that XML can't hold (most control characters, halves of surrogate pairs).
QString withoutControlCharacters(const QString &text, int *dropped = nullptr);

} // namespace lessonhost

#endif // TEXTRUNS_H
