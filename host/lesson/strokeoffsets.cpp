// SPDX-License-Identifier: MIT
#include "lesson/strokeoffsets.h"

#include "lesson/itemvalues.h"

#include <QStringList>

#include <cmath>

namespace lessonhost {

namespace {

constexpr int digitsOfOffset = 15;
// Steps as short as the plug-in's where they are exact.
constexpr int fewestDigits = 6;
constexpr int mostExactDigits = 17;
// Of the numbers that a sum is made of.
constexpr double roundingError = 2e-15;

/*!
 * One coordinate along a stroke, as the sum of the steps so far.
 */
class Track
{
public:
    QString offsetAfter(double step)
    {
        m_offset = sum(step);
        return QString::number(m_offset, 'g', digitsOfOffset);
    }

    QString stepTo(double offset)
    {
        QString text;
        double reached = m_offset;
        const double error = roundingError * (std::abs(m_offset) + std::abs(offset));
        for (int digits = fewestDigits; digits <= mostExactDigits; ++digits) {
            text = QString::number(offset - m_offset, 'g', digits);
            reached = sum(text.toDouble());
            if (std::abs(reached - offset) <= error) {
                break;
            }
        }
        m_offset = reached;
        return text;
    }

private:
    // What is left of two numbers that cancel each other out is their rounding.
    double sum(double step) const
    {
        const double result = m_offset + step;
        return std::abs(result) <= 2 * roundingError * (std::abs(m_offset) + std::abs(step)) ? 0 : result;
    }

    double m_offset = 0;
};

} // namespace

QString pointsAsOffsets(const QString &steps)
{
    const QStringList parts = numberParts(steps);
    if (parts.size() < 4) {
        return steps;
    }
    Track x;
    Track y;
    QStringList offsets{parts.at(0), parts.at(1)};
    for (int i = 2; i + 1 < parts.size(); i += 2) {
        offsets.append(x.offsetAfter(parts.at(i).toDouble()));
        offsets.append(y.offsetAfter(parts.at(i + 1).toDouble()));
    }
    return offsets.join(QLatin1Char(','));
}

QString offsetsAsPoints(const QString &offsets)
{
    const QStringList parts = numberParts(offsets);
    for (const QString &part : parts) {
        bool isNumber = false;
        if (!std::isfinite(part.toDouble(&isNumber)) || !isNumber) {
            return {};
        }
    }
    Track x;
    Track y;
    QStringList points = parts.mid(0, 2);
    for (int i = 2; i + 1 < parts.size(); i += 2) {
        points.append(x.stepTo(parts.at(i).toDouble()));
        points.append(y.stepTo(parts.at(i + 1).toDouble()));
    }
    return points.join(QLatin1Char(','));
}

} // namespace lessonhost
