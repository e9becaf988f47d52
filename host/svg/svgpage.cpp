// SPDX-License-Identifier: MIT
#include "svg/svgpage.h"

#include "lesson/isoneof.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "svg/svggeometry.h"
#include "svg/svgnames.h"
#include "svg/svgvalues.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

// Elements whose own readers look at what is within.
constexpr const char *holders[] = {"g", "svg", "a", "switch", "text", "textarea", "textArea"};

// The part of a transform that hides an element, as any program may write it.
QRegularExpressionMatch awayPart(const QString &transform)
{
    static const QRegularExpression part(
        QStringLiteral("translate\\(\\s*-(?:1000000(?:\\.0*)?|1e\\+?0?6)(?:[\\s,]+0(?:\\.0*)?)?\\s*\\)"),
        QRegularExpression::CaseInsensitiveOption);
    return transform.isEmpty() ? QRegularExpressionMatch() : part.match(transform);
}

// Whether what covers an item comes next to it and the links around it.
bool hasCover(QDomElement element, const QString &id)
{
    while (svgName(element.parentNode().toElement()) == QLatin1String("a")) {
        element = element.parentNode().toElement();
    }
    return !id.isEmpty()
        && elementBehind(element).attribute(QStringLiteral("id")) == QString(id + QLatin1String(coverBefore));
}

} // namespace

SvgPage::SvgPage(const IwbDocumentRules &rules)
    : m_rules(rules)
{
    m_result.root = m_result.document.createElement(QStringLiteral("iwb"));
    m_result.document.appendChild(m_result.root);
    m_result.page = m_result.document.createElement(QStringLiteral("svg:page"));
    m_result.root.appendChild(m_result.page);
    m_items = m_result.document.createElement(QStringLiteral("items"));
    m_result.root.appendChild(m_items);
}

SvgPlace SvgPage::placeOn(const QDomElement &page)
{
    SvgPlace place;
    place.style.matrix = QTransform::fromTranslate(-m_rules.viewBox.x(), -m_rules.viewBox.y());
    place.style = place.style.child(page, transformOf(page), remarkAbout(page));
    return place;
}

SvgPlace SvgPage::placeIn(const SvgPlace &outer, const QDomElement &element)
{
    SvgPlace place = outer;
    place.style = outer.style.child(element, transformOf(element), remarkAbout(element));
    place.isAway = outer.isAway || isAway(element);
    return place;
}

bool SvgPage::isAway(const QDomElement &element) const
{
    return m_rules.isOwn && awayPart(element.attribute(QStringLiteral("transform"))).hasMatch();
}

// rotate(a,x,y) with the angle in degrees, where the plug-in wrote it in radians; what is hidden in its place.
QString SvgPage::transformOf(const QDomElement &element) const
{
    const QString transform = element.attribute(QStringLiteral("transform")).trimmed();
    const QLatin1String rotate("rotate(");
    if (isAway(element)) {
        const QRegularExpressionMatch away = awayPart(transform);
        return QString(transform).remove(away.capturedStart(), away.capturedLength()).trimmed();
    }
    if (!m_rules.isNative || m_rules.hasPlainTurns || !transform.startsWith(rotate)
        || transform.count(QLatin1Char(',')) != 2) {
        return transform;
    }
    const QVector<double> numbers = svgNumbers(transform.mid(rotate.size()));
    if (numbers.size() != 3) {
        return transform;
    }
    return rotate + numberText(numbers.at(0) * 180 / M_PI, 12) + QLatin1Char(' ') + numberText(numbers.at(1), 12)
        + QLatin1Char(' ') + numberText(numbers.at(2), 12) + QLatin1Char(')');
}

IwbRecord SvgPage::recordOf(const QDomElement &element) const
{
    const QString id = element.attribute(QStringLiteral("id"));
    return id.isEmpty() ? IwbRecord() : m_rules.records.value(id);
}

double SvgPage::length(const QDomElement &element, const char *name, double fallback) const
{
    const QLatin1String attribute(name);
    const bool isVertical = attribute == QLatin1String("y") || attribute == QLatin1String("height")
        || attribute == QLatin1String("cy") || attribute == QLatin1String("ry");
    const double reference = isVertical ? m_rules.viewBox.height() : m_rules.viewBox.width();
    return svgLength(element.attribute(attribute), reference).value_or(fallback);
}

SvgPaint SvgPage::paintOf(const QDomElement &element, const SvgStyle &style)
{
    const SvgPaint paint = svgPaint(style, m_rules.isNative, remarkAbout(element));
    if (!m_rules.isNative && !m_rules.isOwn && paint.line.alpha() > 0) {
        for (const Sentence &difference : lineDifferences(style, paint)) {
            remark(element, difference, false);
        }
    }
    return paint;
}

IwbElement &SvgPage::addItem(const QDomElement &source, const SvgPlace &place, const QString &tag)
{
    IwbElement item;
    item.element = m_result.document.createElement(tag);
    m_items.appendChild(item.element);
    item.id = source.attribute(QStringLiteral("id"));
    item.link = place.link;
    item.leadsOutside = place.leadsOutside;
    item.isVisible = place.style.isVisible() && !place.isAway;
    // A record is of every item of its identifier, on whatever page; the item's own word is of itself.
    const auto isSet = [&source](const QString &attribute, bool isRecorded) {
        const QString own = source.attribute(attribute);
        return own == QLatin1String("1") || (own != QLatin1String("0") && isRecorded);
    };
    const IwbRecord record = recordOf(source);
    item.isLocked = isSet(QStringLiteral("lockin"), m_rules.records.value(item.id).isLocked);
    // A page has one background; nobody drags what another program meant as one.
    if ((tag == QLatin1String("svg:image") || tag == QLatin1String("svg:rect")) && record.isBackground) {
        item.isLocked = true;
    }
    item.isEndless = isSet(QStringLiteral("infiniteclone"), record.isEndless);
    item.isRevealer = record.isRevealer && tag == QLatin1String("svg:rect");
    if (record.isRevealer && !item.isRevealer) {
        remark(source, say("only upright or turned rectangles become curtains"));
    }
    item.isCovered = m_rules.isOwn && hasCover(source, item.id);
    item.isFreehand = record.isFreehand;
    item.isHighlight = record.isHighlight;
    item.flipsAcross = record.flipsAcross && tag == QLatin1String("svg:image");
    item.flipsDown = record.flipsDown && tag == QLatin1String("svg:image");
    if ((record.flipsAcross || record.flipsDown) && tag != QLatin1String("svg:image")) {
        remark(source, say("only pictures can be flipped"));
    }
    item.group = item.id.isEmpty() ? -1 : m_rules.groups.value(item.id, -1);
    m_result.items.append(item);
    return m_result.items.last();
}

void SvgPage::passOver(const QDomElement &source)
{
    IwbElement item;
    item.id = source.attribute(QStringLiteral("id"));
    item.group = m_rules.groups.value(item.id, -1);
    m_result.items.append(item);
}

// The plug-in makes an angle of three points and a polyline of more, of which ink takes nothing.
void SvgPage::placePoints(IwbElement &item, const QPolygonF &points)
{
    constexpr int fewPoints = 4;
    const auto isFinite = [](const QPointF &point) { return qIsFinite(point.x()) && qIsFinite(point.y()); };
    const auto end = std::find_if_not(points.cbegin(), points.cend(), isFinite); // what follows can't be read
    item.points = pointsInDigits(points.mid(0, int(end - points.cbegin())), coordinateDigits);
    const QPolygonF read = item.isInk() ? QPolygonF(points.mid(0, fewPoints)) : points;
    item.element.setAttribute(QStringLiteral("points"), svgPoints(read));
}

void SvgPage::placeBox(const QDomElement &source, IwbElement &item, const QRectF &box, const QTransform &matrix)
{
    const double scaleX = std::hypot(matrix.m11(), matrix.m12());
    const double scaleY = std::hypot(matrix.m21(), matrix.m22());
    const bool isPlain = matrix.type() <= QTransform::TxTranslate;
    if (isPlain) {
        setSvgBox(item.element, matrix.mapRect(box));
    } else {
        const QPointF center = matrix.map(box.center());
        const QSizeF size(box.width() * scaleX, box.height() * scaleY);
        setSvgBox(item.element, QRectF(center - QPointF(size.width(), size.height()) / 2, size));
        item.angle = std::atan2(matrix.m12(), matrix.m11());
        if (qAbs(item.angle) < 1e-9) {
            item.angle = 0;
        }
    }
    if (!scaleAndTurn(matrix)) {
        remark(source, say("it is drawn slanted no longer"), false);
    }
}

void SvgPage::remark(const QDomElement &element, const Sentence &text, bool isLoss)
{
    const QString name = svgName(element);
    const QString tag = name.isEmpty() ? element.tagName() : QString(QLatin1String("svg:") + name);
    m_result.remarks.append({tag, element.attribute(QStringLiteral("id")), text, isLoss});
}

std::function<void(const Sentence &)> SvgPage::remarkAbout(const QDomElement &element)
{
    return [this, element](const Sentence &text) { remark(element, text); };
}

void SvgPage::remarkOnOpacity(const QDomElement &element, const SvgStyle &style, bool isPicture)
{
    const double fillOpacity = svgLength(style.property(QStringLiteral("fill-opacity")), 1).value_or(1);
    if (style.opacity < 1 || (fillOpacity < 1 && isPicture)) {
        remark(element, say("it is no longer translucent"), false);
    }
}

void SvgPage::remarkOnExtras(const QDomElement &element, const QString &name)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString attribute = attributes.item(i).nodeName();
        if (attribute.startsWith(QLatin1String("on"))) {
            remark(element, say("the script of %1 is left out").arg(attribute));
        }
    }
    if (isOneOf(holders, name)) {
        return;
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        remark(element, say("<%1> within it is left out").arg(child.tagName()));
    }
}

} // namespace lessonhost
