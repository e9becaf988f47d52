#include "lesson/strokeoffsets.h"

#include "lesson/itemvalues.h"

#include <QStringList>
#include <QVector>

#include <cmath>
#include <limits>

namespace lessonhost {

namespace {

QString sixDigits(float number)
{
    return QString::number(double(number), 'g', 6);
}

/*!
 * One coordinate of a stroke on its way from steps to offsets. It follows what a reader does in single precision, so
 * that errors don't add up along the stroke.
 */
class OffsetTrack
{
public:
    explicit OffsetTrack(float origin)
        : m_origin(origin)
        , m_previous(origin)
    {
    }

    QString offset(float step)
    {
        const float wanted = m_previous + step;
        const float near = wanted - m_origin;
        const float limit = std::numeric_limits<float>::infinity();
        float offset = near;
        for (const float candidate : {near, std::nextafter(near, limit), std::nextafter(near, -limit)}) {
            if (sixDigits(candidate + m_origin - m_previous) == sixDigits(step)) {
                offset = candidate;
                break;
            }
        }
        m_previous = offset + m_origin;
        return QString::number(double(offset), 'g', 9);
    }

private:
    float m_origin;
    float m_previous;
};

} // namespace

QString pointsAsOffsets(const QString &steps)
{
    const QStringList parts = numberParts(steps);
    if (parts.size() < 4) {
        return steps;
    }
    const QVector<float> numbers = singleNumbers(steps);
    OffsetTrack x(numbers.at(0));
    OffsetTrack y(numbers.at(1));
    QStringList offsets{parts.at(0), parts.at(1)};
    for (int i = 2; i + 1 < numbers.size(); i += 2) {
        offsets.append(x.offset(numbers.at(i)));
        offsets.append(y.offset(numbers.at(i + 1)));
    }
    return offsets.join(QLatin1Char(','));
}

} // namespace lessonhost
