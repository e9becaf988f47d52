// SPDX-License-Identifier: MIT
#include "zqstrokestran.h"

#include "domhelpers.h"
#include "numbertext.h"

#include <QColor>
#include <QJsonDocument>

const FamilyVocabulary &ZQStrokesTran::vocabulary()
{
    static const KeyPaths pointRows = {
        path("Weight", "data", "weight", "points"),
        path("Time", "data", "time", "points"),
        path("PointBrushWid", "data", "path_width", "points"),
    };
    static const FamilyVocabulary table(
        {{},
         {attributesOfChildren("PixelDeleteInfos")},
         {attribute("resource"), path("PixelDeleteInfos", "element", "property", "pixelDeleteInfos"),
          path("XY", "data", "vertex", "points"), attribute("Width", "width"), attribute("Opacity", "opacity"),
          attribute("Color", "color"), childAttribute("DrawTexture", "element", "href"),
          childAttribute("Stamp", "element", "href"), attribute("Cap", "cap")}},
        {
            {{"ZQSmoothStroke"}, {}, {childAttribute("DashStyle", "property", "stroke_type")}},
            {{"ZQBrushStrokeVelocity"}, {childAttribute("Time", "Time", "Value")}, pointRows},
            {{"ZQChalkStroke", "ZQBrChalkStroke"}, {}, pointRows},
            {{"ZQStrokesMathFormula", "ZQStrokesChemFormula"},
             {},
             {path("Formula_Strokes", "element", "property", "Formula_Strokes")}},
            {{"ZQBrushStroke", "ZQCombineStroke", "ZQStrokesCombine", "ZQFluorescentStroke", "ZQStrokeTexture",
              "ZQStrokesDeletePixel", "ZQStrokesStamp", "stroke"},
             {},
             {}},
        });
    return table;
}

const TypePairs &ZQStrokesTran::typePairs()
{
    static const TypePairs pairs{
        {"ZQSmoothStroke", "Curve"},
        {"ZQFluorescentStroke", "FluorescentCurve"},
        {"ZQStrokesCombine", "BambooBrush"},
        {"ZQStrokeTexture", "TextureBrush"},
        {"ZQBrushStrokeVelocity", "Brush"},
        {"ZQStrokesStamp", "Stamp"},
        {"ZQChalkStroke", "Chalk"},
        {"ZQBrChalkStroke", "BrChalk"},
        {"ZQStrokesMathFormula", "ZQStrokesMathFormula"},
        {"ZQStrokesChemFormula", "ZQStrokesChemFormula"},
    };
    return pairs;
}

namespace {

bool isFormula(const QString &type)
{
    return type == QLatin1String("ZQStrokesMathFormula") || type == QLatin1String("ZQStrokesChemFormula");
}

// Merges Opacity (0 to 255) into the colour's alpha, stores the colour as #aarrggbb, and gives Width its default.
void finishInk(QColor color, QJsonObject &json)
{
    const QLatin1String opacity("Opacity");
    if (json.contains(opacity)) {
        // Out of range, Qt takes the nearer end, but complains.
        color.setAlphaF(qBound(0.0, json.value(opacity).toString().toInt() / 255.0, 1.0));
        json.remove(opacity);
    }
    json.insert(QLatin1String("Color"), color.name(QColor::HexArgb));

    const QLatin1String width("Width");
    if (json.contains(width)) {
        json.insert(width, json.value(width).toString().remove(QLatin1String("[ ,]")));
    } else {
        json.insert(width, QStringLiteral("5.0"));
    }
}

QColor defaultInk()
{
    return QColor(QStringLiteral("#ffff0000"));
}

// Points that are relative to the first one become relative to the one before. A single number at the end is dropped.
// A text without a whole first point stays as it is.
QString pointsAsSteps(const QString &text)
{
    QVector<double> numbers = numbersFromText(text);
    if (text.isEmpty() || text.endsWith(QLatin1Char(','))) {
        numbers.removeLast();
    }
    if (numbers.size() < 2) {
        return text;
    }
    const auto single = [&numbers](int i) { return float(numbers.at(i)); };
    const float x0 = single(0);
    const float y0 = single(1);
    float previousX = x0;
    float previousY = y0;
    QString steps = numberText(qreal(x0)) + QLatin1Char(',') + numberText(qreal(y0));
    steps.reserve(text.size());
    for (int i = 2; i + 1 < numbers.size(); i += 2) {
        const float x = single(i) + x0;
        const float y = single(i + 1) + y0;
        steps +=
            QLatin1Char(',') + numberText(qreal(x - previousX)) + QLatin1Char(',') + numberText(qreal(y - previousY));
        previousX = x;
        previousY = y;
    }
    return steps;
}

} // namespace

ZQStrokesTran::ZQStrokesTran(const QString &type)
    : ZQInkStrokeTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QJsonObject ZQStrokesTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQInkStrokeTran::tranXML2JSON(element, json, context);
    if (isFormula(json.value(QLatin1String("Type")).toString())) {
        return json;
    }
    QColor color = defaultInk();
    const QLatin1String colorKey("Color");
    if (json.contains(colorKey)) {
        // a,r,g,b; the alpha comes from Opacity.
        const QStringList parts = json.value(colorKey).toString().split(QLatin1Char(','));
        color = QColor(integerPart(parts, 1), integerPart(parts, 2), integerPart(parts, 3));
    }
    finishInk(color, json);
    const QLatin1String texture("DrawTexture");
    if (json.contains(texture)) {
        json.insert(texture,
                    joinResourcePath(json.value(texture).toString(), context.value(QLatin1String("path")).toString()));
    }
    return json;
}

QJsonObject ZQStrokesTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQInkStrokeTran::tranZQTX2JSON(element, json, context);
    const int version = lessonVersion(context);
    if (isFormula(json.value(QLatin1String("Type")).toString())) {
        if (version == 3) {
            json.remove(QLatin1String("BoundingBox"));
        }
        readNestedItems(element, json, context);
        return json;
    }
    const QLatin1String colorKey("Color");
    finishInk(json.contains(colorKey) ? QColor(json.value(colorKey).toString()) : defaultInk(), json);

    const QLatin1String pixels("PixelDeleteInfos");
    if (json.contains(pixels)) {
        const auto infos = QJsonDocument::fromJson(json.value(pixels).toString().toLatin1());
        if (infos.isArray()) {
            json.insert(pixels, infos.array());
        }
    }
    const QLatin1String points("XY");
    if (version < 3 && json.contains(points)) {
        json.insert(points, pointsAsSteps(json.value(points).toString()));
    }
    return json;
}

QDomElement ZQStrokesTran::newTxElement(const QJsonObject &json) const
{
    static const ElementTemplate formula(QStringLiteral(R"(<group><element/><data><rect points=""/></data></group>)"));
    static const ElementTemplate stroke(
        QStringLiteral(R"(<stroke id="" color="" width="5" visible="1" locked="0" uclone="0" type="">)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<data><vertex points=""/><path_width points=""/><rect  points="" /></data></stroke>)"));
    return (isFormula(writtenType(json)) ? formula : stroke).instance();
}
