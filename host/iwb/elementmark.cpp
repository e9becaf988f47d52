// SPDX-License-Identifier: MIT
#include "iwb/elementmark.h"

#include "lesson/numbertexts.h"
#include "svg/iwbpage.h"
#include "svg/svgnames.h"
#include "svg/svgvalues.h"

#include <QCryptographicHash>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lessonhost {

namespace {

constexpr int markDigits = 5;

// What marks begin with; those of earlier versions have nothing before their digits.
const QLatin1String markStart("2-");

enum MarkForm { Present, Former };

QString localName(const QString &name)
{
    return name.mid(name.indexOf(QLatin1Char(':')) + 1);
}

// A number in five digits. What is written has six, so that the border between two of five is where none of six may be:
// digits behind these don't move a number over it.
double inFewDigits(double number)
{
    constexpr double border = 0.45;
    constexpr double firstOfSix = 1e5;
    constexpr double smallest = 1e-99;
    const double size = std::fabs(number);
    if (!std::isfinite(number) || size < smallest || (size < firstOfSix && size == std::floor(size))) {
        return number;
    }
    const double last = std::pow(10, std::floor(std::log10(size)) - markDigits + 1);
    return std::copysign(std::floor(size / last + border) * last, number);
}

// Numbers in five digits, with one blank between the parts.
QString plainValue(const QString &value)
{
    QString text;
    text.reserve(value.size());
    for (int at = 0; at < value.size();) {
        const NumberAt number = numberAt(value, at);
        if (number.end > at) {
            appendNumber(text, inFewDigits(number.value), markDigits);
            at = number.end;
        } else {
            text += value.at(at) == QLatin1Char(',') ? QLatin1Char(' ') : value.at(at);
            ++at;
        }
    }
    return text.simplified();
}

/*!
 * The letters of a value, as plainValue() gives them, where each number is digits and perhaps decimals, six at most.
 * Most values are so, and are looked at letter by letter, without the numbers.
 */
class ShortNumbers
{
public:
    //! Puts a value behind a text. False, and nothing is put there, for a value with other numbers.
    static bool append(QString &text, const QString &value)
    {
        const int before = text.size();
        text.resize(before + value.size());
        QChar *const begin = text.data() + before;
        ShortNumbers numbers(value, begin);
        const bool isGood = numbers.writeAll();
        text.resize(before + (isGood ? int(numbers.m_out - begin) : 0));
        return isGood;
    }

private:
    ShortNumbers(const QString &value, QChar *out)
        : m_at(value.constData())
        , m_end(m_at + value.size())
        , m_out(out)
    {
    }

    static bool isDigit(QChar c) { return unsigned(c.unicode()) - '0' <= 9; }

    // No part becomes longer than it was.
    bool writeAll()
    {
        const QChar *const begin = m_out;
        bool isBehindBlank = false;
        while (m_at < m_end) {
            const ushort c = m_at->unicode();
            if (c == ',' || m_at->isSpace()) {
                isBehindBlank = m_out > begin;
                ++m_at;
                continue;
            }
            if (isBehindBlank) {
                *m_out++ = QLatin1Char(' ');
                isBehindBlank = false;
            }
            const bool isSigned = c == '-' && m_at + 1 < m_end;
            if (isDigit(*m_at) || (isSigned && isDigit(m_at[1]))) {
                if (!writeNumber()) {
                    return false;
                }
            } else if (c == '.' || c == '+' || (isSigned && m_at[1] == QLatin1Char('.'))) {
                return false;
            } else {
                *m_out++ = *m_at++;
            }
        }
        return true;
    }

    void copyDigits()
    {
        const QChar *at = m_at;
        QChar *out = m_out;
        while (at < m_end && isDigit(*at)) {
            *out++ = *at++;
        }
        m_at = at;
        m_out = out;
    }

    bool writeNumber()
    {
        const bool isNegative = *m_at == QLatin1Char('-');
        if (isNegative) {
            *m_out++ = *m_at++;
        }
        QChar *const begin = m_out;
        copyDigits();
        QChar *const point = m_out;
        if (m_at < m_end && *m_at == QLatin1Char('.')) {
            *m_out++ = *m_at++;
            copyDigits();
        }
        const bool hasExponent = m_at < m_end && (*m_at == QLatin1Char('e') || *m_at == QLatin1Char('E'));
        const bool isBelowOne = *begin == QLatin1Char('0');
        if (hasExponent || (isBelowOne && point > begin + 1)) {
            return false;
        }
        const QChar *first = begin; // that counts
        if (isBelowOne) {
            first = std::find_if(point, m_out, [](QChar c) { return c > QLatin1Char('0'); });
            if (first == m_out) {
                m_out = point;
                return !isNegative;
            }
        }
        const bool hasDecimals = m_out > point + 1;
        const auto digits = m_out - first - (m_out > point && !isBelowOne ? 1 : 0);
        // Smaller ones may have an exponent.
        if (digits > markDigits + 1 || (digits > markDigits && !hasDecimals) || first > point + 3
            || (digits > markDigits && !dropDigit(begin))) {
            return false;
        }
        if (m_out > point) {
            while (m_out[-1] == QLatin1Char('0')) {
                --m_out;
            }
            m_out -= m_out[-1] == QLatin1Char('.') ? 1 : 0;
        }
        return true;
    }

    // Rounds as inFewDigits() does. False where a digit would come before the first.
    bool dropDigit(const QChar *begin)
    {
        --m_out;
        if (*m_out <= QLatin1Char('5')) {
            return true;
        }
        for (QChar *digit = m_out - 1; digit >= begin; --digit) {
            if (*digit == QLatin1Char('9')) {
                *digit = QLatin1Char('0');
            } else if (*digit != QLatin1Char('.')) {
                ++digit->unicode();
                return true;
            }
        }
        return false;
    }

    const QChar *m_at;
    const QChar *const m_end;
    QChar *m_out;
};

bool isReference(const QString &name)
{
    return localName(name) == QLatin1String("href");
}

bool isColor(const QString &name)
{
    return name == QLatin1String("stroke") || name.endsWith(QLatin1String("fill"));
}

// Numbers in names of files tell one from another, and so do the digits of colours.
void appendValue(QString &text, const QString &name, const QString &value, MarkForm form)
{
    if (isReference(name)) {
        text += value.simplified();
        return;
    }
    const auto color = form == Present && isColor(name) ? svgColor(value) : std::nullopt;
    if (color) {
        text += color->alpha() == 0 ? QStringLiteral("none") : color->name(QColor::HexArgb);
        return;
    }
    const bool hasBrackets = form == Present && value.contains(QLatin1Char('('));
    if (!hasBrackets && ShortNumbers::append(text, value)) {
        return;
    }
    QString plain = plainValue(value);
    if (hasBrackets) {
        plain.replace(QLatin1String(" ("), QLatin1String("("));
        plain.replace(QLatin1String("( "), QLatin1String("("));
        plain.replace(QLatin1String(" )"), QLatin1String(")"));
        plain.replace(QLatin1String(")"), QLatin1String(") "));
        plain = plain.simplified();
    }
    text += plain;
}

// In the order of their names. Of two that differ in their prefixes alone, the last counts.
void appendAttributes(QString &text, const QDomElement &element, MarkForm form)
{
    QVector<std::pair<QString, QString>> attributes;
    const QDomNamedNodeMap all = element.attributes();
    const int count = all.size();
    attributes.reserve(count);
    for (int i = 0; i < count; ++i) {
        const QDomNode attribute = all.item(i);
        const QString name = attribute.nodeName();
        if (!name.startsWith(QLatin1String("xmlns")) && name != QLatin1String("ref")) {
            attributes.append({localName(name), attribute.nodeValue()});
        }
    }
    std::stable_sort(attributes.begin(), attributes.end(),
                     [](const auto &one, const auto &other) { return one.first < other.first; });
    for (int i = 0; i < attributes.size(); ++i) {
        const auto &[name, value] = attributes.at(i);
        if (i + 1 == attributes.size() || attributes.at(i + 1).first != name) {
            text += QLatin1Char(' ') + name + QLatin1Char('=');
            appendValue(text, name, value, form);
        }
    }
}

QString attributesOf(const QDomElement &element, MarkForm form)
{
    QString text;
    appendAttributes(text, element, form);
    return text;
}

// Without a call for each level: elements may stand in each other deeper than calls may.
QString wholeText(const QDomElement &element, const QHash<QString, RecordText> &records, MarkForm form)
{
    QString text;
    QDomNode node = element;
    const auto isTold = [form](const QDomNode &told) {
        return told.isElement() && !(form == Present && isPlainGroup(told.toElement()));
    };
    while (!node.isNull()) {
        if (isTold(node)) {
            const QDomElement inner = node.toElement();
            const RecordText record = records.value(inner.attribute(QStringLiteral("id")));
            text += QLatin1Char('<') + localName(inner.tagName());
            appendAttributes(text, inner, form);
            text += (form == Present ? record.text : record.former) + QLatin1Char('>');
        } else if (node.isText() || node.isCDATASection()) {
            text += node.nodeValue().simplified();
        }
        QDomNode next = node.firstChild();
        while (next.isNull() && node != element) {
            text += isTold(node) ? QStringLiteral("</>") : QString();
            next = node.nextSibling();
            node = next.isNull() ? node.parentNode() : node;
        }
        if (node == element && next.isNull()) {
            break;
        }
        node = next;
    }
    return text;
}

QString markOf(const QDomElement &element, const QHash<QString, RecordText> &records, MarkForm form)
{
    const QDomElement behind = elementBefore(element);
    const QByteArray text =
        ((isFillBehind(behind) ? wholeText(behind, records, form) : QString()) + wholeText(element, records, form))
            .toUtf8();
    const QByteArray digits = QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().left(20);
    return (form == Present ? QString(markStart) : QString()) + QString::fromLatin1(digits);
}

} // namespace

QDomElement itemElement(QDomElement element)
{
    while (isSvg(element, QLatin1String("a"))) {
        const QDomElement inner = element.lastChildElement();
        const QString id = element.attribute(QStringLiteral("id"));
        const QString innerId = inner.attribute(QStringLiteral("id"));
        if (inner.isNull() || innerId == id + QLatin1String(soundSign) || innerId == id + QLatin1String(filmSign)) {
            break;
        }
        element = inner;
    }
    return element;
}

void RecordTexts::add(const QDomElement &element)
{
    const QDomElement holder = element.parentNode().toElement();
    if (holder.isNull()) {
        return;
    }
    const bool isInRoot = holder.parentNode().isDocument();
    if (!isInRoot && iwbName(holder) == QLatin1String("group") && holder.parentNode().parentNode().isDocument()) {
        // That it moves with others is no part of it; what else is said of it may stand anywhere.
        const QString attributes = attributesOf(element, Former);
        if (!attributes.isEmpty()) {
            add(element, QStringLiteral("element"));
        }
        return;
    }
    const QString name = isInRoot ? iwbName(element) : QString();
    if (isInRoot && name != QLatin1String("group") && svgName(element) != QLatin1String("svg")
        && element.hasAttribute(QStringLiteral("ref"))) {
        add(element, name);
    }
}

void RecordTexts::add(const QDomElement &element, const QString &name)
{
    RecordText &known = m_texts[element.attribute(QStringLiteral("ref"))];
    known.text = *m_shared.insert(known.text + QLatin1Char(' ') + name + attributesOf(element, Present));
    known.former = *m_shared.insert(known.former + QLatin1Char(' ') + name + attributesOf(element, Former));
}

bool isFillBehind(const QDomElement &element)
{
    const QString id = element.attribute(QStringLiteral("id"));
    const QLatin1String fill(lineFill);
    if (id.size() == fill.size() || !id.endsWith(fill) || !isSvg(element, QLatin1String("polygon"))) {
        return false;
    }
    const QDomElement line = elementBehind(element);
    return isSvg(line, QLatin1String("polyline"))
        && line.attribute(QStringLiteral("id")) == id.leftRef(id.size() - fill.size());
}

bool isCover(const QDomElement &element)
{
    return element.attribute(QStringLiteral("id")).endsWith(QLatin1String(coverBefore))
        && isSvg(element, QLatin1String("polygon"));
}

QHash<QString, RecordText> recordTexts(const QDomElement &root)
{
    RecordTexts records;
    for (QDomElement row = root.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        records.add(row);
        if (iwbName(row) == QLatin1String("group")) {
            for (QDomElement member = row.firstChildElement(); !member.isNull(); member = member.nextSiblingElement()) {
                records.add(member);
            }
        }
    }
    return records.texts();
}

QString elementMark(const QDomElement &element, const QHash<QString, RecordText> &records)
{
    return markOf(element, records, Present);
}

bool hasMark(const QDomElement &element, const QString &mark, const QHash<QString, RecordText> &records)
{
    return markOf(element, records, mark.startsWith(markStart) ? Present : Former) == mark;
}

} // namespace lessonhost
