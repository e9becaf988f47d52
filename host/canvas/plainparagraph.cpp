// SPDX-License-Identifier: MIT
#include "canvas/plainparagraph.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace lessonhost {

bool PlainParagraph::canHold(const QString &text)
{
    constexpr int mostLetters = 1000; // which are no higher than texts may be
    // Without letters of other directions, signs that change it and those that break lines.
    constexpr ushort ranges[][2] = {{' ', 0x58f}, {0x2010, 0x2027}, {0x2030, 0x205e}, {0x2070, 0x9fff}};
    const auto isPlain = [&ranges](QChar c) {
        const ushort code = c.unicode();
        return code != '<' && code != '&'
            && std::any_of(std::begin(ranges), std::end(ranges),
                           [code](const ushort(&range)[2]) { return code >= range[0] && code <= range[1]; });
    };
    return !text.isEmpty() && text.size() <= mostLetters && std::all_of(text.cbegin(), text.cend(), isPlain);
}

PlainParagraph::PlainParagraph(const QString &text, const QFont &font, const QTextOption &option, QPaintDevice *screen)
    : m_layout(text, font, screen)
{
    m_layout.setTextOption(option);
    m_layout.setCacheEnabled(true);
}

// As text documents do it: from line to line it is a number of whole pixels.
bool PlainParagraph::setWidth(double width)
{
    const bool mayBeWider = m_layout.textOption().wrapMode() == QTextOption::WordWrap;
    double y = 0;
    m_width = 0;
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        const double natural = line.naturalTextWidth();
        if (natural > width) {
            line.setLineWidth(natural);
        }
        line.setPosition(QPointF(0, y));
        const double step = std::ceil(line.ascent() + line.descent() + line.leading());
        m_height = y + qMax(step, line.height());
        m_width = qMax(m_width, natural);
        y += step;
    }
    m_layout.endLayout();
    return mayBeWider || m_width <= width;
}

void PlainParagraph::draw(QPainter &painter) const
{
    m_layout.draw(&painter, QPointF());
}

} // namespace lessonhost
