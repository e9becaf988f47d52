// SPDX-License-Identifier: MIT
#ifndef SVGTEXT_H
#define SVGTEXT_H

#include "svg/iwbpage.h"
#include "svg/svgstyle.h"

#include <QDomElement>
#include <QRectF>

#include <functional>

namespace lessonhost {

/*!
 * Reads a svg:text or svg:textarea and its spans and makes svg:tspan elements, as the plug-in reads them, of its text:
 * each with all its font attributes and its text in a CDATA section, where "\n" ends a line.
 */
class SvgText
{
public:
    //! What stands in whose files.
    enum Kind {
        Foreign,
        Native, //!< what isn't said means bold, italic and underlined, and spans inherit nothing
        Own //!< each span is a run; a break within it ends a line, one behind it a paragraph
    };

    //! records: what is said of the text and its spans.
    SvgText(const QDomElement &source, const SvgStyle &style, Kind kind,
            const std::function<void(const Sentence &)> &problem, const QHash<QString, IwbRecord> &records = {});

    //! Puts font attributes and spans into area, sizes multiplied by scale.
    void writeInto(QDomElement &area, double scale) const;

    //! Where a svg:text stands whose first baseline begins at x,y, in pixels before the transform.
    QRectF boxAt(double x, double y) const;
    //! The size that the text takes in one column as wide as it likes.
    QSizeF size() const;

    //! All its letters.
    QString plainText() const;

    //! Where all of its letters lead to; empty where they don't.
    const QString &link() const { return m_link; }
    //! What became otherwise, and loses nothing.
    const Sentences &notes() const { return m_notes; }

private:
    struct Run
    {
        SvgStyle style;
        QString text;
    };

    //! How the entries of a list are marked.
    struct List
    {
        QString kind; // empty outside of lists
        QString fill;
        int count = 0; // of the marks so far
    };

    void read(const QDomElement &holder, const SvgStyle &style);
    void readSpan(const QDomElement &span, const SvgStyle &outer);
    void readList(const QDomElement &holder, const SvgStyle &style, const IwbRecord &record);
    void addMark(const SvgStyle &style);
    void nameLayout(const QDomElement &element, bool isSpan, bool startsLine);
    void findLinks();
    void readOwnSpan(const QDomElement &span, const SvgStyle &style);
    void append(const SvgStyle &style, const QString &text, bool keepsBlanks = false);
    void endLine(const SvgStyle &style);
    bool endsLine() const;
    void setFont(QDomElement &element, const SvgStyle &style, double scale) const;

    QVector<Run> m_runs;
    SvgStyle m_style;
    bool m_isNative;
    bool m_isOwn;
    bool m_isArea;
    std::function<void(const Sentence &)> m_problem;
    QHash<QString, IwbRecord> m_records;
    List m_list;
    bool m_needsMark = false; // before the next letter
    bool m_needsLine = false; // the same
    QString m_link;
    Sentences m_notes;
};

} // namespace lessonhost

#endif // SVGTEXT_H
