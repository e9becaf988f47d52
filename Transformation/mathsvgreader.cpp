// SPDX-License-Identifier: MIT
#include "mathsvg.h"

#include "numbertext.h"

#include <QStringList>
#include <QVector>

namespace {

// "rgb(1,2,3)" without "rgb", "(" and ")".
QString stripRgb(const QString &text)
{
    QString stripped = text;
    return stripped.remove(QLatin1String("rgb")).remove(QLatin1Char('(')).remove(QLatin1Char(')'));
}

// The line style (0 to 3) that a dash pattern stands for, by the number of its parts alone.
int dashArrayToLineStyle(const QString &text)
{
    switch (text.count(QLatin1Char(',')) + 1) {
    case 4:
        return 1;
    case 2:
        return 2;
    case 3:
        return 3;
    default:
        return 0;
    }
}

void readStroke(const QDomElement &element, const char *key, QJsonObject &json)
{
    json.insert(QLatin1String(key), stripRgb(element.attribute(QStringLiteral("stroke"))));
}

void readWidth(const QDomElement &element, QJsonObject &json)
{
    json.insert(QLatin1String("ArtObj_Width"), element.attribute(QStringLiteral("stroke-width")));
}

// The opacity of the whole shape goes in front of the colour as its alpha; any but "0" makes the shape a filled one.
void readFill(const QDomElement &element, const char *key, QJsonObject &json)
{
    QString color = stripRgb(element.attribute(QStringLiteral("fill")));
    const QString opacity = element.attribute(QStringLiteral("stroke-opacity"));
    if (!opacity.isEmpty()) {
        color = opacity + QLatin1Char(',') + color;
        if (opacity != QLatin1String("0")) {
            json.insert(QLatin1String("ArtObj_Fill"), QStringLiteral("1"));
        }
    }
    json.insert(QLatin1String(key), color);
}

void readDash(const QDomElement &element, const char *key, QJsonObject &json)
{
    const int style = dashArrayToLineStyle(element.attribute(QStringLiteral("stroke-dasharray")));
    json.insert(QLatin1String(key), QString::number(style));
}

float floatAttribute(const QDomElement &element, const char *name)
{
    return toSingle(element.attribute(QLatin1String(name)));
}

// The sum of two attributes in single precision, as a number text.
QString sumText(const QDomElement &element, const char *first, const char *second)
{
    return numberText(qreal(floatAttribute(element, first) + floatAttribute(element, second)));
}

void readCenter(const QDomElement &element, QJsonObject &json)
{
    json.insert(QLatin1String("Discipline_xCreate"), element.attribute(QStringLiteral("cx")));
    json.insert(QLatin1String("Discipline_yCreate"), element.attribute(QStringLiteral("cy")));
}

void setType(QJsonObject &json, const char *type)
{
    json.insert(QLatin1String("Type"), QLatin1String(type));
}

void setControl(QJsonObject &json, const QStringList &numbers)
{
    json.insert(QLatin1String("Control"), numbers.join(QLatin1Char(',')));
}

// The matrix that puts a rectangle at its place and turns it by the angle of "rotate(radians,x,y)"; any other transform
// turns nothing.
QMatrix matrixFromSvgRect(const QDomElement &element, QJsonObject &json)
{
    QMatrix matrix;
    matrix.translate(qreal(floatAttribute(element, "x")), qreal(floatAttribute(element, "y")));
    QString rotation = element.attribute(QStringLiteral("transform"));
    rotation.remove(QLatin1String("rotate")).remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    const QStringList parts = rotation.split(QLatin1Char(','));
    if (parts.size() == 3) {
        const QPointF center(qreal(toSingle(parts.at(1))), qreal(toSingle(parts.at(2))));
        matrix = matrix * rotationAbout(degreesOf(toSingle(parts.at(0))), center);
    }
    json.insert(QLatin1String("Matrix"), matrixToText(matrix));
    return matrix;
}

} // namespace

QJsonObject svgLineToJson(const QDomElement &element, QJsonObject json)
{
    const QString arrow = QStringLiteral("arrow");
    const bool startsInArrow = element.attribute(QStringLiteral("stroke-lineshape-start")) == arrow;
    const bool endsInArrow = element.attribute(QStringLiteral("stroke-lineshape-end")) == arrow;
    // A line that only ends in an arrow has no type of its own.
    if (startsInArrow || !endsInArrow) {
        setType(json,
                !startsInArrow     ? "ZQMath2DSegment"
                    : !endsInArrow ? "ZQMath2DSegmentWith1Arrow"
                                   : "ZQMath2DSegmentWith2Arrow");
        json.insert(QLatin1String("ArtObj_ArrowType"), QString::number(int(startsInArrow) + int(endsInArrow)));
    }
    setControl(json,
               {element.attribute(QStringLiteral("x1")), element.attribute(QStringLiteral("y1")),
                element.attribute(QStringLiteral("x2")), element.attribute(QStringLiteral("y2"))});
    readStroke(element, "ArtObj_Color1", json);
    readWidth(element, json);
    readDash(element, "ArtObj_Style", json);
    return json;
}

QJsonObject svgAngleToJson(const QDomElement &element, QJsonObject json)
{
    const QVector<double> numbers = numbersFromText(element.attribute(QStringLiteral("points")));
    Q_ASSERT(numbers.size() == 6);
    setType(json, "ZQMath2DAngle");
    setControl(
        json,
        {numberText(numbers.at(0)), numberText(numbers.at(1)), numberText(numbers.at(2)), numberText(numbers.at(3))});
    json.insert(QLatin1String("Discipline_xCreate"), numberText(numbers.at(4)));
    json.insert(QLatin1String("Discipline_yCreate"), numberText(numbers.at(5)));
    readStroke(element, "LineColor", json);
    readWidth(element, json);
    readDash(element, "ArtObj_Mode", json);
    return json;
}

QJsonObject svgPolylineToJson(const QDomElement &element, QJsonObject json)
{
    setType(json, "ZQMath2DPolyline");
    json.insert(QLatin1String("XYValue"), element.attribute(QStringLiteral("points")));
    readStroke(element, "ArtObj_Color", json);
    readWidth(element, json);
    readFill(element, "ArtObj_FillColor", json);
    readDash(element, "ArtObj_Mode", json);
    return json;
}

QJsonObject svgCircleToJson(const QDomElement &element, QJsonObject json)
{
    setType(json, "ZQMath2DCircle");
    readCenter(element, json);
    setControl(json, {sumText(element, "cx", "r"), element.attribute(QStringLiteral("cy"))});
    readStroke(element, "LineColor", json);
    readWidth(element, json);
    readFill(element, "ArtObj_Color", json);
    readDash(element, "ArtObj_Mode", json);
    return json;
}

QJsonObject svgEllipseToJson(const QDomElement &element, QJsonObject json)
{
    setType(json, "ZQMath2DEllipse");
    readCenter(element, json);
    setControl(json,
               {sumText(element, "cx", "rx"), element.attribute(QStringLiteral("cy")),
                element.attribute(QStringLiteral("cx")), sumText(element, "cy", "ry")});
    readStroke(element, "LineColor", json);
    readWidth(element, json);
    readFill(element, "ArtObj_Color", json);
    readDash(element, "ArtObj_Mode", json);
    return json;
}

QJsonObject readSvgRect(const QDomElement &element, QJsonObject json)
{
    setType(json, "ZQMath2DRectangle");
    matrixFromSvgRect(element, json);
    const QString width = numberText(qreal(floatAttribute(element, "width")));
    const QString height = numberText(qreal(floatAttribute(element, "height")));
    const QString zero = QStringLiteral("0");
    setControl(json, {width, zero, zero, height});
    readStroke(element, "LineColor", json);
    readFill(element, "ArtObj_Color", json);
    readWidth(element, json);
    readDash(element, "ArtObj_Mode", json);
    json.insert(QLatin1String("BoundingBox_IWB_RECT"), QStringList{zero, zero, width, height}.join(QLatin1Char(',')));
    return json;
}
