// SPDX-License-Identifier: MIT
#include "iwb/elementmark.h"

#include "lesson/numbertexts.h"
#include "svg/iwbpage.h"
#include "svg/svgnames.h"
#include "svg/svgvalues.h"

#include <QCryptographicHash>
#include <QMap>
#include <QVector>

#include <cmath>

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

bool isReference(const QString &name)
{
    return localName(name) == QLatin1String("href");
}

bool isColor(const QString &name)
{
    return name == QLatin1String("stroke") || name.endsWith(QLatin1String("fill"));
}

// Numbers in names of files tell one from another, and so do the digits of colours.
QString valueOf(const QString &name, const QString &value, MarkForm form)
{
    if (isReference(name)) {
        return value.simplified();
    }
    const auto color = form == Present && isColor(name) ? svgColor(value) : std::nullopt;
    if (color) {
        return color->alpha() == 0 ? QStringLiteral("none") : color->name(QColor::HexArgb);
    }
    QString text = plainValue(value);
    if (form == Present && text.contains(QLatin1Char('('))) {
        text.replace(QLatin1String(" ("), QLatin1String("("));
        text.replace(QLatin1String("( "), QLatin1String("("));
        text.replace(QLatin1String(" )"), QLatin1String(")"));
        text.replace(QLatin1String(")"), QLatin1String(") "));
        text = text.simplified();
    }
    return text;
}

QString attributesOf(const QDomElement &element, MarkForm form)
{
    QMap<QString, QString> attributes;
    const QDomNamedNodeMap all = element.attributes();
    for (int i = 0; i < all.size(); ++i) {
        const QString name = all.item(i).nodeName();
        if (!name.startsWith(QLatin1String("xmlns")) && name != QLatin1String("ref")) {
            attributes.insert(localName(name), valueOf(localName(name), all.item(i).nodeValue(), form));
        }
    }
    QString text;
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        text += QLatin1Char(' ') + it.key() + QLatin1Char('=') + it.value();
    }
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
            text += QLatin1Char('<') + localName(inner.tagName()) + attributesOf(inner, form)
                + (form == Present ? record.text : record.former) + QLatin1Char('>');
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
    while (svgName(element) == QLatin1String("a")) {
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
    const QDomElement line = elementBehind(element);
    const QString id = line.attribute(QStringLiteral("id"));
    return !id.isEmpty() && svgName(element) == QLatin1String("polygon") && svgName(line) == QLatin1String("polyline")
        && element.attribute(QStringLiteral("id")) == QString(id + QLatin1String(lineFill));
}

bool isCover(const QDomElement &element)
{
    return svgName(element) == QLatin1String("polygon")
        && element.attribute(QStringLiteral("id")).endsWith(QLatin1String(coverBefore));
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
