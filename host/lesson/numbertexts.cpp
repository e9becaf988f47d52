// SPDX-License-Identifier: MIT
#include "lesson/numbertexts.h"

#include <QLocale>
#include <QtGlobal>

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
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

/*!
 * A number's letters: a sign, digits with a point before, among or behind them, an exponent.
 */
struct NumberLetters
{
    bool isNegative = false;
    quint64 digits = 0;
    int count = 0; // of digits; too many for digits to hold, perhaps
    int decimals = 0;
    bool hasExponent = false;
    int end = 0;

    // With so few digits, they and the power of ten that divides them are numbers without an error, so that the
    // quotient is the number nearest to the text.
    bool isShort() const { return count > 0 && count <= 15 && !hasExponent && FLT_EVAL_METHOD == 0; }

    double value() const
    {
        const double size = double(digits) / double(powers[std::size_t(decimals)]);
        return isNegative ? -size : size;
    }
};

const QChar *digitsEnd(const QChar *at, const QChar *limit)
{
    while (at < limit && at->unicode() >= '0' && at->unicode() <= '9') {
        ++at;
    }
    return at;
}

const QChar *takeDigits(const QChar *at, const QChar *limit, quint64 &digits)
{
    for (; at < limit; ++at) {
        const unsigned digit = at->unicode() - unsigned('0');
        if (digit > 9) {
            break;
        }
        digits = digits * 10 + digit;
    }
    return at;
}

bool isSign(const QChar *at, const QChar *limit)
{
    return at < limit && (at->unicode() == '-' || at->unicode() == '+');
}

NumberLetters lettersAt(QStringView text, int at)
{
    NumberLetters letters;
    letters.end = at;
    const QChar *const limit = text.data() + text.size();
    const QChar *const begin = text.data() + at;
    const QChar *const whole = isSign(begin, limit) ? begin + 1 : begin;
    letters.isNegative = whole > begin && begin->unicode() == '-';
    const QChar *end = takeDigits(whole, limit, letters.digits);
    letters.count = int(end - whole);
    if (end < limit && end->unicode() == '.') {
        const QChar *const point = end;
        end = takeDigits(point + 1, limit, letters.digits);
        letters.decimals = int(end - point - 1);
        letters.count += letters.decimals;
    }
    if (letters.count == 0) {
        return letters;
    }
    if (end < limit && (end->unicode() == 'e' || end->unicode() == 'E')) {
        const QChar *const exponent = isSign(end + 1, limit) ? end + 2 : end + 1;
        const QChar *const exponentEnd = digitsEnd(exponent, limit);
        letters.hasExponent = exponentEnd > exponent;
        end = letters.hasExponent ? exponentEnd : end;
    }
    letters.end = int(end - text.data());
    return letters;
}

// Nothing for texts that Qt alone may judge: with blanks, words, numbers that no double is near to.
std::optional<double> longNumber(QStringView text)
{
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

double longNumberOfText(QStringView text, bool *ok)
{
    const auto number = longNumber(text);
    if (number && ok) {
        *ok = true;
    }
    return number ? *number : text.toString().toDouble(ok);
}

// Where a number ends that has no other letters than it is printed with, and no exponent; nothing for others. A zero
// has no sign.
const QChar *printedEnd(const QChar *at, const QChar *limit, int digits)
{
    constexpr int mostZeros = 2; // behind the point; numbers with more of them may have an exponent
    const bool isNegative = at < limit && at->unicode() == '-';
    const QChar *const whole = isNegative ? at + 1 : at;
    const QChar *const point = digitsEnd(whole, limit);
    const bool isBelowOne = point > whole && whole->unicode() == '0';
    if (point == whole || (isBelowOne && point > whole + 1)) {
        return nullptr;
    }
    if (point == limit || point->unicode() != '.') {
        return point - whole <= digits && !(isNegative && isBelowOne) ? point : nullptr;
    }
    const QChar *first = point + 1;
    while (isBelowOne && first < limit && first->unicode() == '0') {
        ++first;
    }
    const QChar *const end = digitsEnd(first, limit);
    const auto count = end - first + (isBelowOne ? 0 : point - whole);
    const bool isPrinted =
        first - point <= mostZeros + 1 && end > first && (end - 1)->unicode() != '0' && count <= digits;
    return isPrinted ? end : nullptr;
}

/*!
 * The digits that a number is printed with, as an integer, and how many of them stand behind the point.
 */
struct PlainDigits
{
    quint64 number;
    int decimals;
};

// The number times a power of ten, as an integer. What is halfway between two goes away from zero.
quint64 scaled(double size, int decimals)
{
    static_assert(std::numeric_limits<double>::is_iec559 && DBL_MANT_DIG == 53);
    constexpr int fractionBits = DBL_MANT_DIG - 1;
    constexpr int exponentOfOne = 1023;
    constexpr quint64 leadingBit = quint64(1) << fractionBits;
    quint64 bits = 0;
    std::memcpy(&bits, &size, sizeof bits);
    const int shift = fractionBits + exponentOfOne - int(bits >> fractionBits);
    const Wide product = Wide((bits & (leadingBit - 1)) | leadingBit) * powers[std::size_t(decimals)];
    return quint64((product + (Wide(1) << (shift - 1))) >> shift);
}

// Nothing for a number that Qt has to print.
std::optional<PlainDigits> plainDigits(double size, int digits)
{
    if (!(size < beyondPlain) || digits < 1 || digits > mostDigits) {
        return std::nullopt;
    }
    const auto whole = quint64(size);
    int decimals = digits;
    for (std::size_t i = 0; whole >= powers[i]; ++i) {
        --decimals;
    }
    if (decimals < 0) {
        return std::nullopt;
    }
    if (double(whole) == size) {
        return PlainDigits{whole, 0};
    }
    if (size < smallest) {
        return std::nullopt;
    }
    decimals += size >= 0.1 ? 0 : size >= 0.01 ? 1 : 2;
    const PlainDigits plain{scaled(size, decimals), decimals};
    // Or it was rounded up to where numbers have an exponent.
    const bool isPlain = decimals > 0 || plain.number < powers[std::size_t(digits)];
    return isPlain ? std::make_optional(plain) : std::nullopt;
}

// The number of six decimals at most that a number is printed as. Most that were read are such numbers, and what lies
// between two of them is one but for its last bits. Nothing for one that has more decimals.
std::optional<double> inFewDecimals(double size, int digits)
{
    constexpr int decimals = 6;
    constexpr auto millionth = double(powers[decimals]);
    if (FLT_EVAL_METHOD != 0 || digits < decimals || digits > mostDigits
        || !(size < double(powers[std::size_t(digits - decimals)]))) {
        return std::nullopt;
    }
    const double number = double(qRound64(size * millionth)) / millionth;
    // Half of the last digit is more than that. Smaller numbers have further digits.
    const double nothing = size >= 0.1 ? 0.4 / double(powers[std::size_t(digits)]) : 0;
    return std::fabs(size - number) <= nothing ? std::make_optional(number) : std::nullopt;
}

/*!
 * The letters of a number that is printed plainly.
 */
class PlainText
{
public:
    static constexpr int mostLetters = 32;

    // False for a number that Qt has to write.
    bool write(double value, int digits)
    {
        const auto plain = plainDigits(std::fabs(value), digits);
        if (plain) {
            writeDigits(value < 0, plain->number, plain->decimals); // zero without its sign
        }
        return plain.has_value();
    }

    QLatin1String text() const { return QLatin1String(m_begin, size()); }
    int size() const { return int(m_letters.data() + m_letters.size() - m_begin); }
    const char *begin() const { return m_begin; }

private:
    // Without the zeros at the end of the decimals.
    void writeDigits(bool isNegative, quint64 number, int decimals)
    {
        char *at = m_letters.data() + m_letters.size();
        while (decimals >= 4 && number % 10000 == 0) {
            number /= 10000;
            decimals -= 4;
        }
        while (decimals > 0 && number % 10 == 0) {
            number /= 10;
            --decimals;
        }
        for (int i = 0; i < decimals; ++i) {
            *--at = char('0' + number % 10);
            number /= 10;
        }
        if (decimals > 0) {
            *--at = '.';
        }
        do {
            *--at = char('0' + number % 10);
            number /= 10;
        } while (number > 0);
        if (isNegative) {
            *--at = '-';
        }
        m_begin = at;
    }

    std::array<char, mostLetters> m_letters;
    const char *m_begin = nullptr;
};

} // namespace

double numberOfText(QStringView text, bool *ok)
{
    const NumberLetters letters = lettersAt(text, 0);
    if (letters.end != text.size() || !letters.isShort()) {
        return longNumberOfText(text, ok);
    }
    if (ok) {
        *ok = true;
    }
    return letters.value();
}

NumberAt numberAt(QStringView text, int at)
{
    const NumberLetters letters = lettersAt(text, at);
    if (letters.isShort()) {
        return {letters.value(), true, letters.end};
    }
    NumberAt found{0, false, letters.end};
    if (letters.count > 0) {
        found.value = longNumberOfText(text.mid(at, letters.end - at), &found.isNumber);
    }
    return found;
}

QString numberText(double value, int digits)
{
    PlainText plain;
    return plain.write(value, digits) ? QString(plain.text()) : QString::number(value, 'g', digits);
}

void appendNumber(QString &text, double value, int digits)
{
    PlainText plain;
    if (plain.write(value, digits)) {
        text += plain.text();
    } else {
        text += QString::number(value, 'g', digits);
    }
}

// The digits and the power of ten that divides them are numbers without an error.
double numberInDigits(double value, int digits)
{
    if (const auto number = inFewDecimals(std::fabs(value), digits)) {
        return value < 0 ? -*number : *number;
    }
    const auto plain = plainDigits(std::fabs(value), digits);
    if (!plain || FLT_EVAL_METHOD != 0) {
        return numberOfText(numberText(value, digits));
    }
    const double size = double(plain->number) / double(powers[std::size_t(plain->decimals)]);
    return value < 0 ? -size : size;
}

QString shortestNumberText(double value)
{
    const double size = std::fabs(value);
    PlainText plain;
    if (size < beyondPlain && size == std::trunc(size) && plain.write(value, mostDigits)) {
        return plain.text();
    }
    if (size < smallest || !(size < beyondPlain)) {
        return QString::number(value, 'g', QLocale::FloatingPointShortest);
    }
    std::array<char, 32> letters{};
    const auto result = std::to_chars(letters.data(), letters.data() + letters.size(), value, std::chars_format::fixed);
    return QString::fromLatin1(letters.data(), int(result.ptr - letters.data()));
}

QPolygonF pointsInDigits(QPolygonF points, int digits)
{
    const auto inDigits = [digits](double value) { return numberInDigits(withoutErrorOfZero(value), digits); };
    for (QPointF &point : points) {
        point = {inDigits(point.x()), inDigits(point.y())};
    }
    return points;
}

QString coordinateTexts(const QPolygonF &points, int digits, char inner, char outer)
{
    QString text;
    std::array<char, 1024> piece{};
    std::size_t length = 0;
    const auto endPiece = [&] {
        text += QLatin1String(piece.data(), int(length));
        length = 0;
    };
    const auto write = [&](double coordinate) {
        PlainText plain;
        const double value = withoutErrorOfZero(coordinate);
        if (plain.write(value, digits)) {
            std::memcpy(piece.data() + length, plain.begin(), std::size_t(plain.size()));
            length += std::size_t(plain.size());
        } else {
            endPiece();
            text += QString::number(value, 'g', digits);
        }
    };
    for (int i = 0; i < points.size(); ++i) {
        constexpr std::size_t mostOfPoint = 2 * std::size_t(PlainText::mostLetters + 1);
        if (piece.size() - length < mostOfPoint) {
            endPiece();
        }
        if (i > 0) {
            piece[length++] = outer;
        }
        write(points.at(i).x());
        piece[length++] = inner;
        write(points.at(i).y());
    }
    endPiece();
    return text;
}

bool separateCoordinates(QString &text, int digits, char inner, char outer)
{
    QString separated = text;
    QChar *at = separated.data();
    const QChar *const limit = at + separated.size();
    for (bool isFirst = true;; isFirst = !isFirst) {
        const QChar *const end = printedEnd(at, limit, digits);
        if (!end) {
            return false;
        }
        at += end - at;
        if (at == limit) {
            text = isFirst ? text : separated;
            return !isFirst;
        }
        if (at->unicode() != ',' && at->unicode() != ' ') {
            return false;
        }
        *at++ = QLatin1Char(isFirst ? inner : outer);
    }
}

} // namespace lessonhost
