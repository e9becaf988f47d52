#ifndef TEXTRUNS_H
#define TEXTRUNS_H

#include "iwbtextinfo.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace lessonhost {

/*!
 * Text boards hold HTML, IWB text areas hold runs of equally formatted text. These functions turn one into the other
 * and carry lists of runs across the plug-in's interface.
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
    QStringList losses; //!< what runs have no form for, such as "3 control characters"
};

TextRuns textRunsFromHtml(const QString &html);
TextRuns textRunsFromPlainText(const QString &text);

//! HTML from the runs of one text area. A newline inside ends a paragraph, which is aligned as its first run says.
//! shifts may be shorter than runs.
QString htmlFromTextRuns(const IwbTextInfoList &runs, const QStringList &shifts = {});

//! text without the characters that XML can't hold (most control characters, halves of surrogate pairs).
QString withoutControlCharacters(const QString &text, int *dropped = nullptr);

/*!
 * Lends a list of runs to the plug-in: puts the address of a copy and of its destroyer into a text item. The plug-in
 * destroys what it has written; what it left is destroyed with the loan.
 */
class TextRunLoan
{
public:
    TextRunLoan(QJsonObject &item, const IwbTextInfoList &runs);
    ~TextRunLoan();
    TextRunLoan(const TextRunLoan &) = delete;
    TextRunLoan &operator=(const TextRunLoan &) = delete;

    //! Lists that are lent out and alive at this moment.
    static int liveLists();

private:
    IwbTextInfoList *m_list;
};

//! Copies the list that the plug-in put into an item, destroys the plug-in's, and removes both keys from the item.
std::optional<IwbTextInfoList> takeTextRuns(QJsonObject &item);

} // namespace lessonhost

#endif // TEXTRUNS_H
