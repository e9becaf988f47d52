// SPDX-License-Identifier: MIT
#include "numbertext.h"

#include <array>
#include <charconv>
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
        appendNumber(text, number);
    }
    return text;
}

// A number halfway between two texts is rounded away from zero by Qt, and to the even one by the standard library. Only
// multiples of 1/1024 can lie there; just beyond them, both agree.
double withoutTie(double value)
{
    const double multiple = value * 1024;
    return multiple == std::trunc(multiple) ? std::nextafter(value, std::copysign(1e6, value)) : value;
}

// Plain decimal numbers, all but a few, in a fraction of the time that Qt takes. They have no exponent and are too
// short to leave the range of single precision.
std::optional<double> plainNumber(QStringView text)
{
    std::array<char, 24> latin1{};
    const auto length = std::size_t(text.size());
    if (length > latin1.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < length; ++i) {
        const ushort c = text.at(qsizetype(i)).unicode();
        if ((c < '0' || c > '9') && c != '.' && c != '-') {
            return std::nullopt;
        }
        latin1[i] = char(c);
    }
    double number = 0;
    const char *end = latin1.data() + length;
    const auto result = std::from_chars(latin1.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::make_optional(number) : std::nullopt;
}

double toNumber(QStringView text)
{
    const auto number = plainNumber(text);
    return number ? *number : text.toString().toDouble();
}

} // namespace

QString numberText(double value)
{
    QString text;
    appendNumber(text, value);
    return text;
}

void appendNumber(QString &text, double value)
{
    if (!(std::fabs(value) < 1e6)) {
        text += QString::number(value, 'g', 6);
        return;
    }
    std::array<char, 32> latin1{};
    char *const begin = latin1.data();
    char *const end = begin + latin1.size();
    // Whole numbers read the same as integers, zero without its sign.
    const auto result = value == std::trunc(value)
        ? std::to_chars(begin, end, int(value))
        : std::to_chars(begin, end, withoutTie(value), std::chars_format::general, 6);
    text += QLatin1String(begin, int(result.ptr - begin));
}

float toSingle(QStringView text)
{
    const auto number = plainNumber(text);
    return number ? float(*number) : text.toString().toFloat();
}

QVector<double> numbersFromText(const QString &text)
{
    QVector<double> numbers;
    numbers.reserve(text.count(separator) + 1);
    int start = 0;
    while (start >= 0) {
        const int end = text.indexOf(separator, start);
        numbers.append(toNumber(text.midRef(start, end < 0 ? -1 : end - start)));
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
