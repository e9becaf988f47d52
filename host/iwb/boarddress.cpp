// SPDX-License-Identifier: MIT
#include "iwb/boarddress.h"

#include "iwb/elementmark.h"
#include "lesson/itemvalues.h"
#include "lesson/numbertexts.h"
#include "lesson/textruns.h"
#include "svg/iwbpage.h"
#include "svg/svggeometry.h"
#include "svg/svgvalues.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String recordTag("iwb:element");
const QLatin1String boardLinkTag("svg:a");
const QLatin1String lineTag("svg:line");
const QLatin1String polylineTag("svg:polyline");
const QLatin1String polygonTag("svg:polygon");
const QLatin1String rectTag("svg:rect");
const QLatin1String idName("id");
const QLatin1String refName("ref");
const QLatin1String fillName("fill");
const QLatin1String transformName("transform");
const QLatin1String nothing("none");
const QLatin1String isTrue("true");

// The first name is one of the format's own.
constexpr std::pair<const char *, const char *> metaKeys[] = {{"owner", "Author"},    {"title", "Title"},
                                                              {"date", "Date"},       {"modified", "Date_modified"},
                                                              {"version", "Version"}, {"application", "Version_app"}};

/*!
 * What elements say in the format.
 */
struct Vocabulary
{
    const char *tag;
    const char *attributes;
};
constexpr Vocabulary vocabularies[] = {
    {"svg:svg", "viewbox|width|height"},
    {"svg:a", "id|xlink:href"},
    {"svg:line", "id|x1|y1|x2|y2|stroke|stroke-width|stroke-opacity|stroke-dasharray|stroke-linecap|transform"},
    {"svg:polyline",
     "id|points|stroke|stroke-width|stroke-opacity|stroke-dasharray|stroke-linecap|stroke-linejoin|transform"},
    {"svg:polygon",
     "id|points|fill|fill-opacity|stroke|stroke-width|stroke-opacity|stroke-dasharray|stroke-linecap|stroke-linejoin|"
     "transform"},
    {"svg:rect",
     "id|x|y|width|height|fill|fill-opacity|stroke|stroke-width|stroke-opacity|stroke-dasharray|stroke-linecap|stroke-"
     "linejoin|transform"},
    {"svg:circle",
     "id|cx|cy|r|fill|fill-opacity|stroke|stroke-width|stroke-opacity|stroke-dasharray|stroke-linecap|transform"},
    {"svg:ellipse",
     "id|cx|cy|rx|ry|fill|fill-opacity|stroke|stroke-width|stroke-opacity|stroke-dasharray|stroke-linecap|transform"},
    {"svg:image", "id|xlink:href|x|y|width|height|transform"},
    {"svg:video", "id|xlink:href|x|y|width|height|transform"},
    {"svg:text", "id|x|y|fill|font-family|font-size|font-style|font-weight|font-stretch|transform"},
    {"svg:textarea",
     "id|x|y|width|height|fill|font-family|font-size|font-style|font-weight|font-stretch|text-align|transform|xml:"
     "space"},
    {"svg:tspan", "id|fill|font-family|font-size|font-style|font-weight|font-stretch|text-align|background-fill"},
    {"iwb:element",
     "ref|locked|replicate|background|background-posture|flip|revealer|freehand|highlight|stroke-lineshape-start|"
     "stroke-lineshape-end"},
};

void removeForeignAttributes(QDomElement element)
{
    static const auto attributesOf = [] {
        QHash<QString, QStringList> all;
        for (const Vocabulary &row : vocabularies) {
            all.insert(QString::fromLatin1(row.tag), QString::fromLatin1(row.attributes).split(QLatin1Char('|')));
        }
        return all;
    }();
    const auto known = attributesOf.constFind(element.tagName());
    if (known == attributesOf.constEnd()) {
        return;
    }
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = attributes.size() - 1; i >= 0; --i) {
        const QString name = attributes.item(i).nodeName();
        if (!known->contains(name)) {
            element.removeAttribute(name);
        }
    }
}

void addMeta(QDomDocument document, QDomNode before, const QString &name, const QString &content)
{
    if (content.isEmpty()) {
        return;
    }
    QDomElement meta = document.createElement(QStringLiteral("iwb:meta"));
    meta.setAttribute(QStringLiteral("name"), name);
    meta.setAttribute(QStringLiteral("content"), content);
    document.documentElement().insertBefore(meta, before);
}

QDomElement recordAbout(const QDomDocument &document, const QString &tag, const QString &id)
{
    QDomElement row = document.documentElement().lastChildElement(tag);
    while (!row.isNull() && row.attribute(refName) != id) {
        row = row.previousSiblingElement(tag);
    }
    return row;
}

// The record of an element, which is made if there is none.
QDomElement recordOf(const QDomElement &element)
{
    QDomDocument document = element.ownerDocument();
    QDomElement row = recordAbout(document, recordTag, element.attribute(idName));
    if (row.isNull()) {
        row = document.createElement(recordTag);
        row.setAttribute(refName, element.attribute(idName));
        document.documentElement().appendChild(row);
    }
    return row;
}

void removeLinkRecord(const QDomElement &link)
{
    QDomElement root = link.ownerDocument().documentElement();
    root.removeChild(recordAbout(link.ownerDocument(), QStringLiteral("iwb:link"), link.attribute(idName)));
}

bool isWebAddress(const QString &target)
{
    return target.startsWith(QLatin1String("http://")) || target.startsWith(QLatin1String("https://"));
}

// A sound, or a film that is opened.
bool isSoundOf(const QDomElement &link)
{
    const QDomElement inner = link.firstChildElement();
    return inner.isNull() || inner.attribute(idName) == signIdOf(link);
}

void dressPoints(QDomElement element, bool isInk)
{
    const QString name = QStringLiteral("points");
    QString text = element.attribute(name);
    if (isInk && separateCoordinates(text, pluginDigits, ',', ' ')) {
        element.setAttribute(name, text);
        return;
    }
    const QVector<double> numbers = svgNumbers(text);
    if (numbers.isEmpty() || numbers.size() % 2 != 0) {
        return;
    }
    QPolygonF points = pointsOf(numbers);
    // One point more than a triangle's corners; an angle has three points and is none.
    if (!isInk && points.size() > 3 && points.first() == points.last()) {
        points.removeLast();
        element.setTagName(polygonTag);
    }
    element.setAttribute(name, coordinateTexts(points, pluginDigits, ',', ' '));
}

// Where a fill has an opacity of its own, that of the line is one from 0 to 1 alone.
void dressOpacity(QDomElement element)
{
    const QString lineOpacity = QStringLiteral("stroke-opacity");
    const QString fillOpacity = QStringLiteral("fill-opacity");
    if (element.attribute(fillName, nothing) == nothing) {
        return;
    }
    if (!element.hasAttribute(fillOpacity)) {
        element.setAttribute(fillOpacity, QStringLiteral("1"));
    }
    if (numberOfText(element.attribute(lineOpacity)) > 1) {
        element.removeAttribute(lineOpacity);
    }
}

// What isn't to be seen stands where the format shows nothing.
void dressTransform(QDomElement element)
{
    QString transform = element.attribute(transformName);
    if (transform.startsWith(QLatin1String("rotate("))) {
        transform.replace(QLatin1Char(' '), QLatin1Char(','));
    }
    if (element.attribute(QStringLiteral("visibility")) == QLatin1String("hidden")) {
        transform = QString(QLatin1String(awayFromPage) + QLatin1Char(' ') + transform).trimmed();
    }
    if (!transform.isEmpty()) {
        element.setAttribute(transformName, transform);
    }
}

// A closed outline has ends only where it is dashed.
void dressCaps(QDomElement element)
{
    const bool isOpen = element.tagName() == polylineTag || element.tagName() == lineTag;
    if (!isOpen && !element.hasAttribute(QStringLiteral("stroke-dasharray"))) {
        element.removeAttribute(QStringLiteral("stroke-linecap"));
    }
}

// Lines have no fill: what fills one that is open is an outline of its own behind it.
bool addFillBehind(QDomElement line)
{
    if (line.tagName() != polylineTag || line.attribute(fillName, nothing) == nothing) {
        return false;
    }
    QDomElement area = line.ownerDocument().createElement(polygonTag);
    area.setAttribute(idName, line.attribute(idName) + QLatin1String(lineFill));
    for (const char *name : {"points", "fill", "fill-opacity", "transform"}) {
        if (line.hasAttribute(QLatin1String(name))) {
            area.setAttribute(QLatin1String(name), line.attribute(QLatin1String(name)));
        }
    }
    area.setAttribute(QStringLiteral("stroke"), nothing);
    line.parentNode().insertBefore(area, line);
    return true;
}

bool saySame(const QDomElement &one, const QDomElement &other)
{
    const QDomNamedNodeMap attributes = one.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (other.attribute(attribute.name()) != attribute.value()) {
            return false;
        }
    }
    return attributes.size() == other.attributes().size();
}

void setText(QDomElement span, const QString &text)
{
    while (span.hasChildNodes()) {
        span.removeChild(span.firstChild());
    }
    if (!text.isEmpty()) {
        QDomDocument document = span.ownerDocument();
        // The end of a section can't stand in one.
        const bool isPlain = !text.contains(QLatin1String("]]>"));
        span.appendChild(isPlain ? document.createCDATASection(text) : document.createTextNode(text));
    }
}

// Spans that differed in what the format has no word for are one.
void uniteSpans(QDomElement area)
{
    for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
        QDomElement next = span.nextSiblingElement();
        while (next.tagName() == span.tagName() && !span.text().endsWith(QChar::LineSeparator) && saySame(span, next)) {
            setText(span, span.text() + next.text());
            area.removeChild(next);
            next = span.nextSiblingElement();
        }
    }
}

// What lies behind the letters of a span is told by a record of it.
void dressBackgrounds(const QDomElement &area)
{
    const QString behindName = QStringLiteral("background-fill");
    QDomDocument document = area.ownerDocument();
    int count = 0;
    for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
        if (!span.hasAttribute(behindName)) {
            continue;
        }
        const QString id = area.attribute(idName) + QLatin1String(markedSpan) + QString::number(++count);
        QDomElement record = document.createElement(QStringLiteral("iwb:tspan"));
        record.setAttribute(refName, id);
        record.setAttribute(behindName, span.attribute(behindName));
        document.documentElement().appendChild(record);
        span.setAttribute(idName, id);
        span.removeAttribute(behindName);
    }
}

// A break behind a span ends a paragraph, one within it a line. Blanks that nobody may take together are said to be so.
void dressText(QDomElement area)
{
    const QString spanTag = QStringLiteral("svg:tspan");
    const QString breakTag = QStringLiteral("svg:tbreak");
    QDomDocument document = area.ownerDocument();
    QString text;
    for (QDomElement span = area.firstChildElement(spanTag); !span.isNull(); span = span.nextSiblingElement(spanTag)) {
        removeForeignAttributes(span);
    }
    uniteSpans(area);
    dressBackgrounds(area);
    for (QDomElement span = area.firstChildElement(spanTag); !span.isNull(); span = span.nextSiblingElement(spanTag)) {
        QString content = span.text();
        text += content;
        const bool endsLine = content.endsWith(QChar::LineSeparator);
        if (!endsLine && !content.endsWith(QLatin1Char('\n'))) {
            continue;
        }
        content.chop(1);
        setText(span, content);
        if (endsLine) {
            area.removeChild(span.nextSiblingElement(breakTag));
            span.appendChild(document.createElement(breakTag));
        }
    }
    static const QRegularExpression blanks(
        QStringLiteral("[ \\t][ \\t]|\\t|(^|[\\n\\x{2028}])[ \\t]|[ \\t]($|[\\n\\x{2028}])"));
    if (blanks.match(text).hasMatch()) {
        area.setAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    }
}

} // namespace

BoardDress::BoardDress(bool marksInk)
    : m_marksInk(marksInk)
{
}

void BoardDress::startDocument(QDomDocument document, const QJsonObject &presentation)
{
    const QDomNode first = document.documentElement().firstChild();
    addMeta(document, first, QStringLiteral("creator"),
            QLatin1String(creatorName) + QLatin1Char(' ') + QCoreApplication::applicationVersion());
    const QDomElement svg = document.documentElement().firstChildElement(QStringLiteral("svg:svg"));
    addMeta(document, first, QLatin1String(identifierMeta), svg.attribute(idName));
    for (const auto &[name, key] : metaKeys) {
        addMeta(document, first, QLatin1String(name),
                withoutControlCharacters(valueText(presentation.value(QLatin1String(key)))));
    }
    removeForeignAttributes(svg);
}

QJsonObject presentationInMeta(const QHash<QString, QString> &meta)
{
    QJsonObject presentation;
    for (const auto &[name, key] : metaKeys) {
        const QString text = meta.value(QLatin1String(name));
        if (!text.isEmpty()) {
            presentation.insert(QLatin1String(key), text);
        }
    }
    return presentation;
}

QString signIdOf(const QDomElement &link)
{
    return link.attribute(idName) + QLatin1String(link.hasAttribute(QLatin1String(filmMark)) ? filmSign : soundSign);
}

QJsonObject changedInMeta(const QHash<QString, QString> &meta, const QJsonObject &presentation)
{
    QJsonObject changed = presentationInMeta(meta);
    for (const auto &[name, key] : metaKeys) {
        const QString was = withoutControlCharacters(valueText(presentation.value(QLatin1String(key))));
        if (changed.value(QLatin1String(key)).toString().simplified() == was.simplified()) {
            changed.remove(QLatin1String(key));
        }
    }
    return changed;
}

void BoardDress::dress(QDomElement page, const Items &items)
{
    m_elements.clear();
    m_parts.clear();
    dressBackground(page);
    for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (isCover(child)) {
            dressElement(child, items);
            const QStringList cover = m_elements.take(child.attribute(idName));
            const QString item = cover.first().chopped(int(qstrlen(coverBefore)));
            if (m_elements.contains(item)) {
                m_elements[item] += cover;
            }
        } else if (child.tagName() != boardLinkTag) {
            dressElement(child, items);
            gatherParts(child);
        } else {
            child = isSoundOf(child) ? dressSound(child, items) : dressLink(child, items);
        }
    }
    for (const QStringList &group : items.groups) {
        addGroup(page.ownerDocument(), group);
    }
    const QStringList others = m_elements.keys();
    for (const QString &id : others) {
        addGroup(page.ownerDocument(), {id});
    }
    QDomElement row = page.ownerDocument().documentElement().firstChildElement(recordTag);
    for (; !row.isNull(); row = row.nextSiblingElement(recordTag)) {
        removeForeignAttributes(row);
    }
}

// Gives what stands in its place.
QDomElement BoardDress::dressLink(QDomElement link, const Items &items)
{
    QDomElement inner = link.firstChildElement();
    const bool isSound = inner.tagName() == boardLinkTag;
    const QString target = link.attribute(QStringLiteral("xlink:href"));
    const bool stays = !isSound && canBeFollowed(target);
    if (!stays || isWebAddress(target)) {
        removeLinkRecord(link);
    }
    if (isSound) {
        link.parentNode().replaceChild(inner, link);
        return dressSound(inner, items);
    }
    removeForeignAttributes(link);
    QDomElement last;
    while (!inner.isNull()) {
        const QDomElement next = inner.nextSiblingElement();
        if (!stays) {
            link.parentNode().insertBefore(inner, link);
        }
        dressElement(inner, items);
        gatherParts(inner);
        last = inner;
        inner = next;
    }
    if (!stays) {
        link.parentNode().removeChild(link);
    }
    return stays ? link : last;
}

// What stands for an item together moves together.
void BoardDress::gatherParts(const QDomElement &element)
{
    const QString id = element.attribute(idName);
    if (itemOfPart(id) != id) {
        m_parts += m_elements.take(id);
    } else if (!m_parts.isEmpty() && m_elements.contains(id)) {
        m_elements[id] = m_parts + m_elements.value(id);
        m_parts.clear();
    }
}

// A sound stands where its sign does, which is what others see, touch and move.
QDomElement BoardDress::dressSound(QDomElement link, const Items &items)
{
    QDomElement sign = link.firstChildElement();
    if (sign.isNull()) {
        sign = link.ownerDocument().createElement(rectTag);
        sign.setAttribute(idName, signIdOf(link));
        sign.setAttribute(fillName, QStringLiteral("white"));
        sign.setAttribute(QStringLiteral("fill-opacity"), QStringLiteral("0"));
        sign.setAttribute(QStringLiteral("stroke"), nothing);
        link.appendChild(sign);
    }
    for (const char *name : {"x", "y", "width", "height", "transform", "visibility", "infiniteclone"}) {
        const QString value = link.attribute(QLatin1String(name));
        if (!value.isEmpty() || !sign.hasAttribute(QLatin1String(name))) {
            sign.setAttribute(QLatin1String(name), value.isEmpty() ? QStringLiteral("0") : value);
        }
    }
    if (!link.hasAttribute(transformName)) {
        sign.removeAttribute(transformName);
    }
    QDomElement record = recordAbout(link.ownerDocument(), recordTag, link.attribute(idName));
    if (!record.isNull()) {
        record.setAttribute(refName, sign.attribute(idName));
    }
    removeForeignAttributes(link);
    dressElement(sign, items);
    m_elements.insert(link.attribute(idName), m_elements.take(sign.attribute(idName)));
    return link;
}

void BoardDress::dressElement(QDomElement element, const Items &items)
{
    const QString id = element.attribute(idName);
    if (element.tagName() == polylineTag) {
        dressPoints(element, items.ink.contains(id));
        if (m_marksInk && items.ink.contains(id)) {
            recordOf(element).setAttribute(
                items.ink.value(id) ? QStringLiteral("highlight") : QStringLiteral("freehand"), isTrue);
        }
    } else if (element.tagName() == QLatin1String("svg:textarea")) {
        dressText(element);
    }
    dressOpacity(element);
    dressTransform(element);
    dressCaps(element);
    for (const char *shape : {"stroke-lineshape-start", "stroke-lineshape-end"}) {
        const QString value = element.attribute(QLatin1String(shape));
        if (!value.isEmpty()) {
            recordOf(element).setAttribute(QLatin1String(shape), value);
        }
    }
    if (element.attribute(QStringLiteral("infiniteclone")) == QLatin1String("1")) {
        recordOf(element).setAttribute(QStringLiteral("replicate"), isTrue);
    }
    if (items.covers.contains(id)) {
        recordOf(element).setAttribute(QStringLiteral("revealer"), isTrue);
    }
    if (items.flips.contains(id)) {
        recordOf(element).setAttribute(QStringLiteral("flip"), items.flips.value(id));
    }
    if (addFillBehind(element)) {
        m_elements.insert(id, {id + QLatin1String(lineFill), id});
    } else {
        m_elements.insert(id, {id});
    }
    removeForeignAttributes(element);
}

// The plug-in's record of the colour has a slip of the pen in it; of the picture there is none.
void BoardDress::dressBackground(QDomElement page) const
{
    const QDomElement color = page.firstChildElement();
    if (color.tagName() != rectTag || !color.attribute(idName).endsWith(QLatin1String("_rect"))) {
        return;
    }
    recordOf(color).setAttribute(QStringLiteral("background"), isTrue);
    const QDomElement picture = color.nextSiblingElement();
    if (picture.tagName() == QLatin1String("svg:image") && picture.hasAttribute(QStringLiteral("background-posture"))) {
        QDomElement record = recordOf(picture);
        record.setAttribute(QStringLiteral("background"), isTrue);
        record.setAttribute(QStringLiteral("background-posture"), QStringLiteral("stretched-to-fill"));
    }
}

// Elements that move together. No element is in two groups, and none is alone.
void BoardDress::addGroup(QDomDocument document, const QStringList &items)
{
    QStringList elements;
    for (const QString &item : items) {
        elements += m_elements.take(item);
    }
    if (elements.size() < 2) {
        return;
    }
    QDomElement group = document.createElement(QStringLiteral("iwb:group"));
    for (const QString &id : qAsConst(elements)) {
        QDomElement member = document.createElement(recordTag);
        member.setAttribute(refName, id);
        group.appendChild(member);
    }
    document.documentElement().appendChild(group);
}

// Pages, addresses, and files of the package; the format has no tools and no tips.
bool BoardDress::canBeFollowed(const QString &target) const
{
    const QLatin1String page("#page");
    if (!target.startsWith(page)) {
        return isWebAddress(target) || target.startsWith(QLatin1String("additional/"));
    }
    const int number = target.mid(page.size()).toInt();
    return number > 0 && target == page + QString::number(number) && (m_pageCount == 0 || number <= m_pageCount);
}

} // namespace lessonhost
