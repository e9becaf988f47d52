// SPDX-License-Identifier: MIT
#include "svg/svgscanner.h"

#include "lesson/numbertexts.h"

#include <cmath>

namespace lessonhost {

namespace {

bool isDigit(QChar c)
{
    return c.unicode() >= '0' && c.unicode() <= '9';
}

} // namespace

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
    int end = m_at;
    if (end < m_text.size() && (m_text.at(end) == QLatin1Char('-') || m_text.at(end) == QLatin1Char('+'))) {
        ++end;
    }
    const int digits = end;
    end = digitsEnd(end);
    int count = end - digits;
    if (end < m_text.size() && m_text.at(end) == QLatin1Char('.')) {
        const int fraction = ++end;
        end = digitsEnd(end);
        count += end - fraction;
    }
    if (count == 0) {
        return std::nullopt;
    }
    end = exponentEnd(end);
    bool ok = false;
    const double value = numberOfText(QStringView(m_text).mid(m_at, end - m_at), &ok);
    if (!ok || !std::isfinite(value)) {
        return std::nullopt;
    }
    m_at = end;
    return value;
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

int SvgScanner::digitsEnd(int at) const
{
    while (at < m_text.size() && isDigit(m_text.at(at))) {
        ++at;
    }
    return at;
}

int SvgScanner::exponentEnd(int end) const
{
    if (end >= m_text.size() || m_text.at(end).toLower() != QLatin1Char('e')) {
        return end;
    }
    int at = end + 1;
    if (at < m_text.size() && (m_text.at(at) == QLatin1Char('-') || m_text.at(at) == QLatin1Char('+'))) {
        ++at;
    }
    const int digits = at;
    at = digitsEnd(at);
    return at > digits ? at : end;
}

} // namespace lessonhost
