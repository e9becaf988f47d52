// SPDX-License-Identifier: MIT
#include "svg/listmarks.h"

namespace lessonhost {

namespace {

// 1 is the first letter, and the one behind the last begins anew with two.
QString lettersOf(int number, QChar first, int count)
{
    QString text;
    for (; number > 0; number = (number - 1) / count) {
        text.prepend(QChar(first.unicode() + (number - 1) % count));
    }
    return text;
}

QString romanOf(int number)
{
    struct Digit
    {
        int value;
        const char *text;
    };
    static constexpr Digit digits[] = {{1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
                                       {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"}};
    QString text;
    for (const Digit &digit : digits) {
        for (; number >= digit.value; number -= digit.value) {
            text += QLatin1String(digit.text);
        }
    }
    return text;
}

// Greek has two forms of one letter.
QString greekOf(int number)
{
    QString text = lettersOf(number, QChar(0x3b1), 24);
    for (QChar &c : text) {
        c = c.unicode() >= 0x3c2 ? QChar(c.unicode() + 1) : c;
    }
    return text;
}

} // namespace

QString listMark(const QString &kind, int number)
{
    const auto is = [&kind](const char *name) { return kind == QLatin1String(name); };
    const QLatin1String dot(".");
    if (is("none")) {
        return {};
    }
    if (is("decimal") || is("decimal-leading-zero")) {
        return QString::number(number).rightJustified(is("decimal") ? 1 : 2, QLatin1Char('0')) + dot;
    }
    if (is("lower-alpha") || is("lower-latin")) {
        return lettersOf(number, QLatin1Char('a'), 26) + dot;
    }
    if (is("upper-alpha") || is("upper-latin")) {
        return lettersOf(number, QLatin1Char('A'), 26) + dot;
    }
    if (is("lower-roman") || is("upper-roman")) {
        return (is("lower-roman") ? romanOf(number) : romanOf(number).toUpper()) + dot;
    }
    if (is("lower-greek")) {
        return greekOf(number) + dot;
    }
    if (is("circle") || is("square")) {
        return QString(QChar(is("circle") ? 0x25e6 : 0x25aa));
    }
    return QString(QChar(0x2022));
}

} // namespace lessonhost
