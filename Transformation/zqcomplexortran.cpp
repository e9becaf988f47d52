// SPDX-License-Identifier: MIT
#include "zqcomplexortran.h"

#include "domhelpers.h"
#include "numbertext.h"
#include "xmlplaces.h"

#include <QHash>
#include <QVector>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

const FamilyVocabulary &ZQComplexorTran::vocabulary()
{
    static const FamilyVocabulary table(
        {{}, {}, {}},
        {
            {{"ZQVectorJiantou1",        "ZQVectorJiantou2",        "ZQVectorJiantou3",   "ZQVectorJiantou4",
              "ZQVectorJiantou5",        "ZQVectorJiantou6",        "ZQVectorJiantou7",   "ZQVectorTuoyuan",
              "ZQVectorSanjiaoxing",     "ZQVectorLiubianxing",     "ZQVectorJuxing",     "ZQVectorYuanjiaojuxing",
              "ZQVectorYuanjiaojuxing1", "ZQVectorYuanjiaojuxing2", "ZQVectorWujiaoxing", "ZQVectorBaozhaxing",
              "ZQVectorBaozhaer",        "ZQVectorShandian",        "ZQVectorXingxing",   "ZQVectorXiaolian",
              "ZQVectorXiaolian1",       "ZQVectorWapianxing",      "ZQVectorZidanxing",  "ZQVectorBolangxing",
              "ZQVectorBolangxing1",     "ZQVectorPianduan",        "ZQVectorYemian",     "ZQVectorYueliang",
              "ZQVectorXinxing"},
             {attribute("Discipline_xCreate", "ArtInner_CenterPointX"),
              attribute("Discipline_yCreate", "ArtInner_CenterPointY")},
             {property("ArtVectObj_FrameColor", "Color of edge"), property("ArtVectObj_RegionColor", "Fill color")}},
        });
    return table;
}

namespace {

const QLatin1String managerKey("manager");

// The element with the paths, or null. One that can't be printed counts as missing.
QDomElement managerOf(const QDomElement &item)
{
    const QDomElement manager = descendantByTag(item, QStringLiteral("ArtVectObj_Manager"));
    return nestsTooDeep(manager) ? QDomElement() : manager;
}

const int pathCount = 4;

void appendPoint(const QDomElement &point, QJsonArray &numbers)
{
    for (const QString &name : {QStringLiteral("x0"), QStringLiteral("y0"), QStringLiteral("x1"), QStringLiteral("y1"),
                                QStringLiteral("x2"), QStringLiteral("y2")}) {
        numbers.append(double(toSingle(point.attribute(name))));
    }
}

// The number behind the prefix of a tag, or -1 for any other tag.
int numberOfTag(const QString &tag, QLatin1String prefix)
{
    if (!tag.startsWith(prefix)) {
        return -1;
    }
    const QStringRef digits = tag.midRef(prefix.size());
    const bool isPlain = digits.size() == 1 || !digits.startsWith(QLatin1Char('0'));
    bool isNumber = std::all_of(digits.begin(), digits.end(),
                                [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    const int number = isPlain && isNumber ? digits.toInt(&isNumber) : -1;
    return isNumber ? number : -1;
}

// The first path of each number.
std::array<QDomElement, pathCount> pathsOf(const QDomElement &manager)
{
    std::array<QDomElement, pathCount> paths;
    forEachDescendant(manager, [&paths](const QDomElement &element) {
        const int number = numberOfTag(element.tagName(), QLatin1String("ArtVectObj_Path"));
        if (number >= 0 && number < pathCount && paths[std::size_t(number)].isNull()) {
            paths[std::size_t(number)] = element;
        }
        return true;
    });
    return paths;
}

// The points of a path that are numbered from 0; the first missing number ends it. Points come in their order as a
// rule, so the path is walked through once, and only those that come too early are remembered.
QVector<QDomElement> pointsOf(const QDomElement &path)
{
    QVector<QDomElement> points;
    QHash<int, QDomElement> early;
    forEachDescendant(path, [&points, &early](const QDomElement &element) {
        const int number = numberOfTag(element.tagName(), QLatin1String("ArtVectObj_Point"));
        if (number == points.size()) {
            points.append(element);
            while (!early.isEmpty() && early.contains(points.size())) {
                points.append(early.take(points.size()));
            }
        } else if (number > points.size() && !early.contains(number)) {
            early.insert(number, element);
        }
        return true;
    });
    return points;
}

void readPaths(const QDomElement &manager, QJsonObject &json)
{
    const auto paths = pathsOf(manager);
    for (int i = 0; i < pathCount; ++i) {
        const QVector<QDomElement> points = pointsOf(paths[std::size_t(i)]);
        if (points.isEmpty()) {
            continue;
        }
        if (i == 0) {
            json.insert(QLatin1String("VectorPathType"), points.first().attribute(QStringLiteral("Type")).toInt());
        }
        QJsonArray numbers;
        for (const QDomElement &point : points) {
            appendPoint(point, numbers);
        }
        json.insert(QLatin1String("VectorControl") + QString::number(i), numbers);
    }
}

// Moves the element out of its tree into text, and reads its points.
void takeManager(const QDomElement &manager, QJsonObject &json)
{
    QDomDocument document;
    // An empty document takes no child before it has made a node.
    document.createAttributeNS(QStringLiteral("Temp"), QStringLiteral("Temp"));
    document.appendChild(manager);
    json.insert(managerKey, document.toString(1));
    readPaths(document.documentElement(), json);
}

} // namespace

ZQComplexorTran::ZQComplexorTran(const QString &type)
    : ZQDisciplineItemTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QString ZQComplexorTran::toTxType(const QString &type)
{
    const QLatin1String prefix("ZQVector");
    if (!type.contains(prefix)) {
        return {};
    }
    QString txType = type;
    if (txType.size() > prefix.size()) {
        txType[prefix.size()] = txType.at(prefix.size()).toLower();
    }
    return txType.replace(prefix, QLatin1String("Vector:"));
}

QString ZQComplexorTran::fromTxType(const QString &type)
{
    const QLatin1String prefix("Vector:");
    if (!type.contains(prefix)) {
        return {};
    }
    QString itemType = type;
    if (itemType.size() > prefix.size()) {
        itemType[prefix.size()] = itemType.at(prefix.size()).toUpper();
    }
    return itemType.replace(prefix, QLatin1String("ZQVector"));
}

QJsonObject ZQComplexorTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQDisciplineItemTran::tranXML2JSON(element, json, context);
    storeInnerMatrix(element, json);
    const QDomElement manager = managerOf(element);
    if (!manager.isNull()) {
        takeManager(manager, json);
    }
    return json;
}

QJsonObject ZQComplexorTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQDisciplineItemTran::tranZQTX2JSON(element, json, context);
    const QDomElement manager = managerOf(element);
    if (manager.isNull()) {
        json.insert(managerKey, QString());
    } else {
        takeManager(manager, json);
    }
    return json;
}

QDomElement ZQComplexorTran::tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context)
{
    element = ZQDisciplineItemTran::tranJSON2ZQTX(element, json, context);
    element.appendChild(elementFromWellFormedXml(json.value(managerKey).toString()));
    return element;
}

QMatrix ZQComplexorTran::innerMatrix(const QDomElement &element)
{
    const auto number = [&element](const QString &name, float missing) {
        const auto text = attributeText(element, name);
        return text ? toSingle(*text) : missing;
    };
    const auto sign = [&element](const QString &flip) {
        return element.attribute(flip) == QLatin1String("0") ? 1.0 : -1.0;
    };
    const double zoomX = double(number(QStringLiteral("ArtInner_Zoom"), 1.0F));
    const double zoomY = double(number(QStringLiteral("ArtInner_Zoom_Y"), 1.0F));
    const auto angle = float(-double(number(QStringLiteral("ArtInner_Rotate"), 0.0F)) * M_PI / 180.0);
    const double cosine = std::cos(double(angle));
    const double sine = std::sin(double(angle));
    const double signX = sign(QStringLiteral("ArtInner_HorzFlip"));
    const double signY = sign(QStringLiteral("ArtInner_VertFlip"));
    // The products pass through single precision before they get their signs.
    const auto product = [](double factor, double zoom) { return double(float(factor * zoom)); };
    return QMatrix(signX * product(cosine, zoomX), signY * product(sine, zoomY), -signX * product(sine, zoomX),
                   signY * product(cosine, zoomY),
                   double(number(QStringLiteral("ArtInner_CenterPointX"), 0.0F))
                       + signX * double(number(QStringLiteral("ArtInner_OfpX"), 0.0F)),
                   double(number(QStringLiteral("ArtInner_CenterPointY"), 0.0F))
                       + signY * double(number(QStringLiteral("ArtInner_OfpY"), 0.0F)));
}

void ZQComplexorTran::storeInnerMatrix(const QDomElement &element, QJsonObject &json)
{
    const auto slide = matrixFromText(json.value(QLatin1String("SlideMatrix")).toString());
    json.insert(QLatin1String("Matrix"), matrixToText(innerMatrix(element) * slide.value_or(QMatrix())));
}
