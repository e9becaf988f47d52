// SPDX-License-Identifier: MIT
#include "iwb/iwbitemreader.h"

#include "iwb/textrunloan.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "lesson/shapeforms.h"
#include "lesson/textruns.h"
#include "svg/svggeometry.h"
#include "svg/svgvalues.h"

namespace lessonhost {

namespace {

// What the plug-in leaves of the element or needs on the way, and what other keys say better.
constexpr const char *passingKeys[] = {
    "x",
    "y",
    "width",
    "height",
    "Width",
    "Height",
    "cx",
    "cy",
    "r",
    "rx",
    "ry",
    "points",
    "stroke",
    "fill",
    "x1",
    "y1",
    "x2",
    "y2",
    "stroke-width",
    "stroke-opacity",
    "stroke-dasharray",
    "stroke-lineshape-start",
    "stroke-lineshape-end",
    "path",
    "saveType",
    "Matrix",
    "BoundingBox_IWB_RECT",
    "Discipline_xCreate",
    "Discipline_yCreate",
};

double number(const QDomElement &element, const char *attribute)
{
    return numberOfText(element.attribute(QLatin1String(attribute)));
}

QString pair(double x, double y)
{
    return exactText(x) + QLatin1Char(',') + exactText(y);
}

// Points around an origin of the shape's own.
void setControl(QJsonObject &json, const ShapeForm &form, const QDomElement &element)
{
    switch (form.outline) {
    case ShapeForm::Circle:
        json.insert(ItemKeys::control, pair(number(element, "r"), 0));
        break;
    case ShapeForm::Ellipse:
        json.insert(ItemKeys::control,
                    QString(pair(number(element, "rx"), 0) + QLatin1Char(',') + pair(0, number(element, "ry"))));
        break;
    case ShapeForm::Angle: {
        const QPolygonF points = pointsOf(svgNumbers(element.attribute(QStringLiteral("points"))));
        if (points.size() == 3) {
            json.insert(ItemKeys::control,
                        pointsText(QPolygonF() << points.at(0) - points.at(2) << points.at(1) - points.at(2)));
        }
        break;
    }
    case ShapeForm::Polyline:
        // Its last character is cut off on the way out.
        json.insert(ItemKeys::polyline, QString(json.value(ItemKeys::polyline).toString() + QLatin1Char(',')));
        break;
    default:
        break;
    }
}

// Colours with all four parts; no key for none.
void completeColors(QJsonObject &json, const ShapeForm &form)
{
    for (const char *key : {form.lineKey, form.fillKey}) {
        if (!key) {
            continue;
        }
        const QLatin1String name(key);
        const auto color = itemColor(json.value(name));
        if (color) {
            json.insert(name, colorText(*color));
        } else {
            json.remove(name);
        }
    }
    if (form.outline == ShapeForm::Polyline) {
        // ZQTX knows no such flag for polylines: the colour alone tells.
        json.remove(ItemKeys::isFilled);
    } else if (form.fillKey && !json.contains(QLatin1String(form.fillKey))) {
        json.insert(ItemKeys::isFilled, QStringLiteral("0"));
    }
}

} // namespace

IwbItemReader::IwbItemReader(IZQTransformation *plugin, const QString &packageFolder)
    : m_plugin(plugin)
    , m_path(packageFolder + QLatin1Char('/'))
{
}

QJsonObject IwbItemReader::read(const IwbElement &item) const
{
    QJsonObject json = m_plugin->tranItemIWB2JSON(item.element, {{QStringLiteral("path"), m_path}});
    const QString type = json.value(ItemKeys::type).toString();
    const auto runs = takeTextRuns(json);
    if (type.isEmpty()) {
        return {};
    }
    if (runs) {
        // The first describes the area; it has a text only where the area itself holds one.
        QVector<RunExtras> extras;
        for (QDomElement span = item.element.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
            extras.append({span.attribute(QStringLiteral("baseline-shift")),
                           span.attribute(QStringLiteral("background-fill")),
                           span.attribute(QStringLiteral("xlink:href"))});
        }
        json.insert(ItemKeys::html, htmlFromTextRuns(runs->mid(1), extras));
    }
    for (const char *key : passingKeys) {
        json.remove(QLatin1String(key));
    }
    if (const ShapeForm *form = shapeForm(type)) {
        setControl(json, *form, item.element);
        completeColors(json, *form);
    }
    if (const auto extent = item.points.isEmpty() ? drawnExtent(item.element) : extentOf(item.points)) {
        json.insert(ItemKeys::box, boxText(*extent));
    }
    json.remove(ItemKeys::angle);
    if (item.angle != 0) {
        json.insert(ItemKeys::angle, exactText(item.angle));
    }
    json.insert(ItemKeys::visible, item.isVisible);
    json.insert(ItemKeys::locked, item.isLocked ? QStringLiteral("1") : QStringLiteral("0"));
    json.insert(ItemKeys::endless, item.isEndless ? QStringLiteral("1") : QStringLiteral("0"));
    if (item.isCovered) {
        json.insert(ItemKeys::cover, QStringLiteral("1"));
    }
    return json;
}

QJsonObject IwbItemReader::readLink(const QString &target, int page) const
{
    QString known = target;
    if (target.startsWith(QLatin1Char('#'))) {
        if (page == 0) {
            return {};
        }
        known = QLatin1String("#page") + QString::number(page);
    } else if (target.contains(QLatin1String("#page")) && !target.contains(QLatin1String("://"))) {
        // The plug-in would cut the number from the wrong place.
        return {};
    }
    // A link around nothing but a name that no item has: the plug-in reads its target all the same.
    QDomDocument document;
    QDomElement link = document.createElement(QStringLiteral("svg:a"));
    document.appendChild(link);
    link.setAttribute(QStringLiteral("xlink:href"), known);
    link.appendChild(document.createElement(QStringLiteral("svg:g")));
    QJsonObject json = m_plugin->tranItemIWB2JSON(link, {});
    if (json.value(ItemKeys::linkType).toString() == QLatin1String("ACTION_OPENFILE")) {
        return {};
    }
    return json;
}

} // namespace lessonhost
