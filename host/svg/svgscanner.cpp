// SPDX-License-Identifier: MIT
#include "svg/svgscanner.h"

#include "lesson/numbertexts.h"

#include <cmath>

namespace lessonhost {

void SvgScanner::skipSeparators()
{
    while (m_at < m_text.size() && (m_text.at(m_at).isSpace() || m_text.at(m_at) == QLatin1Char(','))) {
        ++m_at;
    }
}

bool SvgScanner::atEnd()
{
    skipSeparators();
    return m_at >= m_text.size();
}

std::optional<double> SvgScanner::number()
{
    skipSeparators();
    const NumberAt found = numberAt(m_text, m_at);
    if (!found.isNumber || !std::isfinite(found.value)) {
        return std::nullopt;
    }
    m_at = found.end;
    return found.value;
}

std::optional<bool> SvgScanner::digitFlag()
{
    skipSeparators();
    if (peek() != QLatin1Char('0') && peek() != QLatin1Char('1')) {
        return std::nullopt;
    }
    return take() == QLatin1Char('1');
}

QString SvgScanner::word()
{
    const int start = m_at;
    while (m_at < m_text.size() && (m_text.at(m_at).isLetter() || m_text.at(m_at) == QLatin1Char('%'))) {
        ++m_at;
    }
    return m_text.mid(start, m_at - start);
}

} // namespace lessonhost
