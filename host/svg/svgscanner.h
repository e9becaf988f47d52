// SPDX-License-Identifier: MIT
#ifndef SVGSCANNER_H
#define SVGSCANNER_H

#include <QString>

#include <optional>

namespace lessonhost {

/*!
 * Reads numbers and letters from the front of an attribute's text.
 */
class SvgScanner
{
public:
    explicit SvgScanner(const QString &text)
        : m_text(text)
    {
    }

    //! Passes blanks and commas.
    void skipSeparators();

    bool atEnd();

    QChar peek() const { return m_at < m_text.size() ? m_text.at(m_at) : QChar(); }
    QChar take() { return m_text.at(m_at++); }

    //! Numbers may follow one another without a separator: "1-2" and "1.5.5" are two each.
    std::optional<double> number();

    //! A 0 or 1, which the next number may follow at once.
    std::optional<bool> digitFlag();

    //! A flag or unit: the letters and percent signs that follow at once.
    QString word();

private:
    const QString m_text;
    int m_at = 0;
};

} // namespace lessonhost

#endif // SVGSCANNER_H
