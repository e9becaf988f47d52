// SPDX-License-Identifier: MIT
#ifndef SVGTEXT_H
#define SVGTEXT_H

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
    //! isNative: what isn't said means bold, italic and underlined, and spans inherit nothing.
    SvgText(const QDomElement &source, const SvgStyle &style, bool isNative,
            const std::function<void(const QString &)> &problem);

    //! Puts font attributes and spans into area, sizes multiplied by scale.
    void writeInto(QDomElement &area, double scale) const;

    //! Where a svg:text stands whose first baseline begins at x,y, in pixels before the transform.
    QRectF boxAt(double x, double y) const;
    //! The size that the text takes in one column as wide as it likes.
    QSizeF size() const;

    //! All its letters.
    QString plainText() const;

private:
    struct Run
    {
        SvgStyle style;
        QString text;
    };

    void read(const QDomElement &holder, const SvgStyle &style);
    void readSpan(const QDomElement &span, const SvgStyle &outer);
    void append(const SvgStyle &style, const QString &text);
    void endLine(const SvgStyle &style);
    bool endsLine() const;
    void setFont(QDomElement &element, const SvgStyle &style, double scale) const;

    QVector<Run> m_runs;
    SvgStyle m_style;
    bool m_isNative;
    bool m_isArea;
    std::function<void(const QString &)> m_problem;
};

} // namespace lessonhost

#endif // SVGTEXT_H
