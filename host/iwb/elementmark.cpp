// SPDX-License-Identifier: MIT
#include "iwb/elementmark.h"

#include "lesson/numbertexts.h"
#include "svg/iwbpage.h"
#include "svg/svgnames.h"

#include <QCryptographicHash>
#include <QMap>
#include <QVector>

#include <cmath>

namespace lessonhost {

namespace {

constexpr int markDigits = 5;

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

QString attributesOf(const QDomElement &element)
{
    QMap<QString, QString> attributes;
    const QDomNamedNodeMap all = element.attributes();
    for (int i = 0; i < all.size(); ++i) {
        const QString name = all.item(i).nodeName();
        if (!name.startsWith(QLatin1String("xmlns")) && name != QLatin1String("ref")) {
            // Numbers in names of files tell one from another.
            const QString value = all.item(i).nodeValue();
            attributes.insert(localName(name), isReference(name) ? value.simplified() : plainValue(value));
        }
    }
    QString text;
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        text += QLatin1Char(' ') + it.key() + QLatin1Char('=') + it.value();
    }
    return text;
}

// Without a call for each level: elements may stand in each other deeper than calls may.
QString wholeText(const QDomElement &element, const QHash<QString, QString> &records)
{
    QString text;
    QDomNode node = element;
    while (!node.isNull()) {
        if (node.isElement()) {
            const QDomElement inner = node.toElement();
            text += QLatin1Char('<') + localName(inner.tagName()) + attributesOf(inner)
                + records.value(inner.attribute(QStringLiteral("id"))) + QLatin1Char('>');
        } else if (node.isText() || node.isCDATASection()) {
            text += node.nodeValue().simplified();
        }
        QDomNode next = node.firstChild();
        while (next.isNull() && node != element) {
            text += node.isElement() ? QStringLiteral("</>") : QString();
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
        const QString attributes = attributesOf(element);
        add(element.attribute(QStringLiteral("ref")),
            attributes.isEmpty() ? QString() : QString(QLatin1String(" element") + attributes));
        return;
    }
    const QString name = isInRoot ? iwbName(element) : QString();
    if (isInRoot && name != QLatin1String("group") && svgName(element) != QLatin1String("svg")
        && element.hasAttribute(QStringLiteral("ref"))) {
        add(element.attribute(QStringLiteral("ref")), QLatin1Char(' ') + name + attributesOf(element));
    }
}

void RecordTexts::add(const QString &id, const QString &text)
{
    QString &known = m_texts[id];
    known = *m_shared.insert(known + text);
}

bool isFillBehind(const QDomElement &element)
{
    const QDomElement line = element.nextSiblingElement();
    const QString id = line.attribute(QStringLiteral("id"));
    return !id.isEmpty() && svgName(element) == QLatin1String("polygon") && svgName(line) == QLatin1String("polyline")
        && element.attribute(QStringLiteral("id")) == QString(id + QLatin1String(lineFill));
}

bool isCover(const QDomElement &element)
{
    return svgName(element) == QLatin1String("polygon")
        && element.attribute(QStringLiteral("id")).endsWith(QLatin1String(coverBefore));
}

QHash<QString, QString> recordTexts(const QDomElement &root)
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

QString elementMark(const QDomElement &element, const QHash<QString, QString> &records)
{
    const QDomElement behind = element.previousSiblingElement();
    const QByteArray text =
        ((isFillBehind(behind) ? wholeText(behind, records) : QString()) + wholeText(element, records)).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().left(20));
}

} // namespace lessonhost
