#include "numbertext.h"

#include <array>
#include <cmath>

namespace {

const QLatin1Char separator(',');

template <std::size_t N> QString joined(const std::array<double, N> &numbers)
{
    QString text;
    text.reserve(int(N) * 8);
    for (const double number : numbers) {
        if (!text.isEmpty()) {
            text += separator;
        }
        text += numberText(number);
    }
    return text;
}

} // namespace

QString numberText(double value)
{
    // Most numbers are whole, and whole numbers of up to six digits read the same as integers, only faster.
    if (std::fabs(value) < 1e6 && value == std::trunc(value)) {
        return QString::number(int(value));
    }
    return QString::number(value, 'g', 6);
}

QVector<double> numbersFromText(const QString &text)
{
    QVector<double> numbers;
    numbers.reserve(text.count(separator) + 1);
    int start = 0;
    while (start >= 0) {
        const int end = text.indexOf(separator, start);
        numbers.append(text.midRef(start, end < 0 ? -1 : end - start).toDouble());
        start = end < 0 ? -1 : end + 1;
    }
    return numbers;
}

int integerPart(const QStringList &parts, int index)
{
    return index < parts.size() ? parts.at(index).toInt() : 0;
}

std::optional<QMatrix> matrixFromText(const QString &text)
{
    const auto numbers = leadingFloats<6>(text);
    if (!numbers) {
        return std::nullopt;
    }
    const auto &n = *numbers;
    return QMatrix(qreal(n[0]), qreal(n[1]), qreal(n[2]), qreal(n[3]), qreal(n[4]), qreal(n[5]));
}

QString matrixToText(const QMatrix &matrix)
{
    return joined<6>({matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), matrix.dx(), matrix.dy()});
}

std::optional<QRectF> boxFromText(const QString &text)
{
    const auto numbers = leadingFloats<4>(text);
    if (!numbers) {
        return std::nullopt;
    }
    const auto &n = *numbers;
    return QRectF(QPointF(qreal(n[0]), qreal(n[1])), QPointF(qreal(n[2]), qreal(n[3])));
}

QString boxToText(const QRectF &box)
{
    return joined<4>({box.left(), box.top(), box.right(), box.bottom()});
}

std::optional<QRectF> rectangleFromText(const QString &text)
{
    const auto numbers = leadingFloats<4>(text);
    if (!numbers) {
        return std::nullopt;
    }
    const auto &n = *numbers;
    return QRectF(qreal(n[0]), qreal(n[1]), qreal(n[2]), qreal(n[3]));
}

int majorVersion(const QString &version)
{
    return version.section(QLatin1Char('.'), 0, 0).toInt();
}
