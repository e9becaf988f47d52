// SPDX-License-Identifier: MIT
#include "lesson/numbertexts.h"

#include <QLocale>

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <optional>

namespace lessonhost {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int mostDigits = 12;
// Smaller numbers have an exponent, or are near those that have.
constexpr double smallest = 1e-3;
constexpr double beyondPlain = 1e6;
constexpr std::array<quint64, 16> powers{
    1,         10,         100,         1000,         10000,         100000,         1000000,         10000000,
    100000000, 1000000000, 10000000000, 100000000000, 1000000000000, 10000000000000, 100000000000000, 1000000000000000};

// A few digits with a point among them, as they are in most texts: both the digits and the power of ten that divides
// them are numbers without an error, so that the quotient is the number nearest to the text.
std::optional<double> shortNumber(QStringView text)
{
    constexpr qsizetype mostLetters = 16;
    const qsizetype length = text.size();
    const bool isNegative = length > 0 && text.at(0) == QLatin1Char('-');
    const qsizetype first = isNegative ? 1 : 0;
    if (length == first || length > mostLetters || FLT_EVAL_METHOD != 0) {
        return std::nullopt;
    }
    quint64 digits = 0;
    qsizetype point = -1;
    for (qsizetype i = first; i < length; ++i) {
        const unsigned digit = text.at(i).unicode() - unsigned('0');
        if (digit <= 9) {
            digits = digits * 10 + digit;
        } else if (text.at(i) == QLatin1Char('.') && point < 0 && length > first + 1) {
            point = i;
        } else {
            return std::nullopt;
        }
    }
    // With the point, there are 15 digits at most.
    if (point < 0 && length - first >= mostLetters) {
        return std::nullopt;
    }
    const double number = point < 0 ? double(digits) : double(digits) / double(powers[std::size_t(length - 1 - point)]);
    return isNegative ? -number : number;
}

// Nothing for texts that Qt alone may judge: with blanks, a plus in front, words.
std::optional<double> plainNumber(QStringView text)
{
    if (const auto number = shortNumber(text)) {
        return number;
    }
    std::array<char, 32> latin1{};
    const auto length = std::size_t(text.size());
    if (length > latin1.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < length; ++i) {
        const ushort c = text.at(qsizetype(i)).unicode();
        if ((c < '0' || c > '9') && c != '.' && c != '-' && c != '+' && c != 'e') {
            return std::nullopt;
        }
        latin1[i] = char(c);
    }
    double number = 0;
    const char *const end = latin1.data() + length;
    const auto result = std::from_chars(latin1.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::make_optional(number) : std::nullopt;
}

/*!
 * The letters of a number; none where Qt has to write it.
 */
class Letters
{
public:
    bool areThere() const { return m_end != nullptr; }
    QLatin1String text() const { return QLatin1String(m_letters.data(), int(m_end - m_letters.data())); }

    // Whole numbers read the same as integers, zero without its sign.
    void writeInteger(double value) { m_end = std::to_chars(m_letters.data(), end(), int(value)).ptr; }

    void writeShortest(double value)
    {
        m_end = std::to_chars(m_letters.data(), end(), value, std::chars_format::fixed).ptr;
    }

    // So many digits in all, of a number between smallest and beyondPlain. What is halfway between two texts goes away
    // from zero.
    void writeDigits(double value, int digits)
    {
        const double size = std::fabs(value);
        int decimals = digits;
        for (double limit = 1; size >= limit; limit *= 10) {
            --decimals;
        }
        decimals += size >= 0.1 ? 0 : size >= 0.01 ? 1 : 2;
        if (decimals < 0) {
            return;
        }
        int exponent = 0;
        const double fraction = std::frexp(size, &exponent);
        const int shift = DBL_MANT_DIG - exponent;
        const Wide mantissa = quint64(std::ldexp(fraction, DBL_MANT_DIG));
        const Wide scaled = mantissa * powers[std::size_t(decimals)];
        auto number = quint64((scaled + (Wide(1) << (shift - 1))) >> shift);
        while (decimals >= 4 && number % 10000 == 0) {
            number /= 10000;
            decimals -= 4;
        }
        while (decimals > 0 && number % 10 == 0) {
            number /= 10;
            --decimals;
        }
        if (decimals == 0 && number >= powers[std::size_t(digits)]) {
            return; // rounded up to where numbers have an exponent
        }
        write(value < 0, number, decimals);
    }

private:
    char *end() { return m_letters.data() + m_letters.size(); }

    void write(bool isNegative, quint64 number, int decimals)
    {
        char *at = m_letters.data();
        if (isNegative) {
            *at++ = '-';
        }
        const quint64 whole = number / powers[std::size_t(decimals)];
        at = std::to_chars(at, end(), whole).ptr;
        if (decimals > 0) {
            *at++ = '.';
            quint64 rest = number % powers[std::size_t(decimals)];
            for (int i = decimals - 1; i >= 0; --i) {
                at[i] = char('0' + rest % 10);
                rest /= 10;
            }
            at += decimals;
        }
        m_end = at;
    }

    std::array<char, 40> m_letters;
    char *m_end = nullptr;
};

bool isPlainInteger(double value, double beyond)
{
    return std::fabs(value) < beyond && value == std::trunc(value);
}

bool isPlain(double value)
{
    const double size = std::fabs(value);
    return size >= smallest && size < beyondPlain;
}

Letters lettersOf(double value, int digits)
{
    Letters letters;
    if (digits > 0 && isPlainInteger(value, double(powers[std::size_t(qMin(digits, 6))]))) {
        letters.writeInteger(value);
    } else if (isPlain(value) && digits > 0 && digits <= mostDigits) {
        letters.writeDigits(value, digits);
    }
    return letters;
}

} // namespace

double numberOfText(QStringView text, bool *ok)
{
    const auto number = plainNumber(text);
    if (number && ok) {
        *ok = true;
    }
    return number ? *number : text.toString().toDouble(ok);
}

QString numberText(double value, int digits)
{
    const Letters letters = lettersOf(value, digits);
    return letters.areThere() ? QString(letters.text()) : QString::number(value, 'g', digits);
}

void appendNumber(QString &text, double value, int digits)
{
    const Letters letters = lettersOf(value, digits);
    if (letters.areThere()) {
        text += letters.text();
    } else {
        text += QString::number(value, 'g', digits);
    }
}

QString shortestNumberText(double value)
{
    Letters letters;
    if (isPlainInteger(value, beyondPlain)) {
        letters.writeInteger(value);
    } else if (isPlain(value)) {
        letters.writeShortest(value);
    }
    return letters.areThere() ? QString(letters.text()) : QString::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace lessonhost
