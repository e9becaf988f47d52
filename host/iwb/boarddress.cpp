// SPDX-License-Identifier: MIT
#include "iwb/boarddress.h"

#include "lesson/itemvalues.h"
#include "lesson/textruns.h"
#include "svg/svggeometry.h"
#include "svg/svgvalues.h"

#include <QCoreApplication>
#include <QHash>

namespace lessonhost {

namespace {

const QLatin1String recordTag("iwb:element");
const QLatin1String polylineTag("svg:polyline");

// The first name is one of the format's own.
constexpr std::pair<const char *, const char *> metaKeys[] = {
    {"owner", "Author"}, {"title", "Title"}, {"date", "Date"}, {"modified", "Date_modified"}};

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

// The record of an element, which is made if there is none.
QDomElement recordOf(const QDomElement &element)
{
    QDomDocument document = element.ownerDocument();
    const QString id = element.attribute(QStringLiteral("id"));
    QDomElement root = document.documentElement();
    for (QDomElement row = root.lastChildElement(recordTag); !row.isNull();
         row = row.previousSiblingElement(recordTag)) {
        if (row.attribute(QStringLiteral("ref")) == id) {
            return row;
        }
    }
    QDomElement row = document.createElement(recordTag);
    row.setAttribute(QStringLiteral("ref"), id);
    root.appendChild(row);
    return row;
}

QString pairs(const QPolygonF &points)
{
    QStringList texts;
    for (const QPointF &point : points) {
        texts.append(svgCoordinate(point.x(), pluginDigits) + QLatin1Char(',')
                     + svgCoordinate(point.y(), pluginDigits));
    }
    return texts.join(QLatin1Char(' '));
}

void dressPoints(QDomElement element)
{
    const QString name = QStringLiteral("points");
    const QVector<double> numbers = svgNumbers(element.attribute(name));
    if (numbers.isEmpty() || numbers.size() % 2 != 0) {
        return;
    }
    QPolygonF points = pointsOf(numbers);
    // One point more than a triangle's corners; an angle has three points and is none.
    if (points.size() > 3 && points.first() == points.last()) {
        points.removeLast();
        element.setTagName(QStringLiteral("svg:polygon"));
    }
    element.setAttribute(name, pairs(points));
}

// Where a fill has an opacity of its own, that of the line is one from 0 to 1 alone.
void dressOpacity(QDomElement element)
{
    const QString fill = element.attribute(QStringLiteral("fill"), QStringLiteral("none"));
    const QString lineOpacity = QStringLiteral("stroke-opacity");
    const QString fillOpacity = QStringLiteral("fill-opacity");
    const double value = element.attribute(lineOpacity).toDouble();
    if (fill == QLatin1String("none")) {
        return;
    }
    if (!element.hasAttribute(fillOpacity)) {
        element.setAttribute(fillOpacity, QStringLiteral("1"));
    }
    if (value > 1) {
        element.removeAttribute(lineOpacity);
    }
}

void dressTurn(QDomElement element)
{
    const QString name = QStringLiteral("transform");
    QString transform = element.attribute(name);
    if (transform.startsWith(QLatin1String("rotate("))) {
        element.setAttribute(name, transform.replace(QLatin1Char(' '), QLatin1Char(',')));
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
    for (const auto &[name, key] : metaKeys) {
        addMeta(document, first, QLatin1String(name),
                withoutControlCharacters(valueText(presentation.value(QLatin1String(key)))));
    }
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

void BoardDress::dress(QDomElement page, const QHash<QString, bool> &ink) const
{
    dressBackground(page);
    for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        dressElement(child, ink);
    }
}

void BoardDress::dressElement(QDomElement element, const QHash<QString, bool> &ink) const
{
    if (element.tagName() == QLatin1String("svg:a")) {
        const QDomElement inner = element.firstChildElement();
        if (!inner.isNull()) {
            dressElement(inner, ink);
        }
        return;
    }
    const QString id = element.attribute(QStringLiteral("id"));
    if (element.tagName() == polylineTag) {
        dressPoints(element);
        if (m_marksInk && ink.contains(id)) {
            recordOf(element).setAttribute(ink.value(id) ? QStringLiteral("highlight") : QStringLiteral("freehand"),
                                           QStringLiteral("true"));
        }
    }
    dressOpacity(element);
    dressTurn(element);
    for (const char *shape : {"stroke-lineshape-start", "stroke-lineshape-end"}) {
        const QString value = element.attribute(QLatin1String(shape));
        if (!value.isEmpty()) {
            recordOf(element).setAttribute(QLatin1String(shape), value);
        }
    }
    if (element.attribute(QStringLiteral("infiniteclone")) == QLatin1String("1")) {
        recordOf(element).setAttribute(QStringLiteral("replicate"), QStringLiteral("true"));
    }
}

// The plug-in's record of the colour has a slip of the pen in it; of the picture there is none.
void BoardDress::dressBackground(QDomElement page) const
{
    const QDomElement color = page.firstChildElement();
    if (color.tagName() != QLatin1String("svg:rect")
        || !color.attribute(QStringLiteral("id")).endsWith(QLatin1String("_rect"))) {
        return;
    }
    recordOf(color).setAttribute(QStringLiteral("background"), QStringLiteral("true"));
    const QDomElement picture = color.nextSiblingElement();
    if (picture.tagName() == QLatin1String("svg:image") && picture.hasAttribute(QStringLiteral("background-posture"))) {
        QDomElement record = recordOf(picture);
        record.setAttribute(QStringLiteral("background"), QStringLiteral("true"));
        record.setAttribute(QStringLiteral("background-posture"), QStringLiteral("stretched-to-fill"));
    }
}

} // namespace lessonhost
