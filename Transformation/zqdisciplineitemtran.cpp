// SPDX-License-Identifier: MIT
#include "zqdisciplineitemtran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "numbertext.h"
#include "xmlplaces.h"

namespace {

const KeyPaths &xmlPaths()
{
    static const KeyPaths paths = {
        attribute("Discipline_xCreate"),
        attribute("Discipline_yCreate"),
        attribute("ArtObj_Width"),
    };
    return paths;
}

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        path("Control", "data", "rect", "controlpoints"),
        property("ArtObj_Width", "width"),
    };
    return paths;
}

QStringList allColorKeys()
{
    QStringList keys;
    const auto addNumbered = [&keys](const char *key, int last) {
        const QString name = QLatin1String(key);
        keys.append(name);
        for (int i = 0; i <= last; ++i) {
            keys.append(name + QString::number(i));
        }
    };
    addNumbered("ArtObj_Color", 10);
    addNumbered("DisciplineObj_Color", 10);
    addNumbered("ArtObj_LiquidColor", 3);
    for (const char *key : {"ArtVectObj_RegionColor", "ArtVectObj_FrameColor", "ArtObj_LineColor", "ArtObj_FillColor",
                            "LineColor", "FillColor"}) {
        keys.append(QLatin1String(key));
    }
    return keys;
}

QJsonObject colorObject(double solid, double alpha)
{
    const QLatin1String alphaKey("Alpha");
    const QLatin1String solidKey("Solid");
    // Numbers replace numbers at a fraction of what new keys cost.
    static const QJsonObject black{{alphaKey, 1.0}, {solidKey, 0.0}};
    QJsonObject color = black;
    color.insert(alphaKey, alpha);
    color.insert(solidKey, solid);
    return color;
}

// The colour of an element with the attributes a, r, g, b in decimal; a is 255 if missing, the others 0.
QJsonObject colorOfElement(const QDomElement &element)
{
    // Channels of any size are taken as they are, so the sum needs more than 32 bits.
    const auto channel = [&element](const char *name, const char *missing) {
        return qint64(element.attribute(QLatin1String(name), QLatin1String(missing)).toInt());
    };
    const qint64 solid = ((channel("r", "0") * 256) + channel("g", "0")) * 256 + channel("b", "0");
    return colorObject(double(solid), double(channel("a", "255")) / 255.0);
}

// The colour of three channels, in single precision, which holds them exactly.
QJsonObject colorOfChannels(const float *rgb, double alpha)
{
    const float solid = rgb[0] * 65536.0F + rgb[1] * 256.0F + rgb[2];
    return colorObject(double(solid), alpha);
}

// The colour of a text a,r,g,b, or r,g,b if opaque ones are taken; an empty object for any other text.
QJsonObject colorOfText(const QString &text, bool acceptsOpaque)
{
    const int parts = text.count(QLatin1Char(',')) + 1;
    if (parts == 4) {
        const auto argb = *leadingFloats<4>(text);
        return colorOfChannels(argb.data() + 1, double(argb[0]) / 255.0);
    }
    if (parts == 3 && acceptsOpaque) {
        const auto rgb = *leadingFloats<3>(text);
        return colorOfChannels(rgb.data(), 1.0);
    }
    return {};
}

// The pairs Discipline_xControl0, Discipline_yControl0 and so on, up to the first that isn't whole.
void readRawControl(const QDomElement &element, QJsonObject &json)
{
    QJsonArray control;
    for (int i = 0;; ++i) {
        const QString number = QString::number(i);
        const auto x = attributeText(element, QLatin1String("Discipline_xControl") + number);
        const auto y = attributeText(element, QLatin1String("Discipline_yControl") + number);
        if (!x || !y) {
            break;
        }
        control.append(double(toSingle(*x)));
        control.append(double(toSingle(*y)));
    }
    if (!control.isEmpty()) {
        json.insert(QLatin1String("Control"), control);
    }
}

} // namespace

ZQDisciplineItemTran::ZQDisciplineItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    static const QStringList keys = allColorKeys();
    colorKeys = keys;
    // The base constructor leaves the same maps each time, and so does this one.
    static const KeyMaps maps = keyMaps().with(xmlPaths(), txPaths());
    setKeyMaps(maps);
}

QJsonObject ZQDisciplineItemTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranXML2JSON(element, json, context);
    readRawControl(element, json);
    readRawColors(element, json);
    return json;
}

void ZQDisciplineItemTran::storeRawText(const QString &key, const QString &text, QJsonObject &json)
{
    if (key != QLatin1String("BoundingBox")) {
        ZQComItemControlTran::storeRawText(key, text, json);
    }
}

QJsonObject ZQDisciplineItemTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranZQTX2JSON(element, json, context);
    readTxColors(json);
    const QLatin1String controlKey("Control");
    if (json.contains(controlKey)) {
        const QString text = json.value(controlKey).toString();
        QJsonArray control;
        if (!text.isEmpty()) {
            const QVector<double> numbers = numbersFromText(text);
            for (const double number : numbers) {
                control.append(number);
            }
        }
        json.insert(controlKey, control);
    }
    return json;
}

QDomElement ZQDisciplineItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate discipline(
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<discipline visible="1" locked="0" type="" uclone="0" id="">)"
                       R"(<properties><property value="" name=""/></properties>)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<data><rect points="" controlpoints=""/></data></discipline>)"));
    return discipline.instance();
}

void ZQDisciplineItemTran::readRawColors(const QDomElement &element, QJsonObject &json) const
{
    RawPlaces places(element);
    for (const QString &key : colorKeys) {
        const QDomElement color = places.descendant(key);
        if (!color.isNull()) {
            json.insert(key, colorOfElement(color));
        } else if (const auto text = attributeText(element, key)) {
            // A text without four parts stays as it came.
            const QJsonObject object = colorOfText(*text, false);
            if (object.isEmpty()) {
                json.insert(key, *text);
            } else {
                json.insert(key, object);
            }
        }
    }
}

void ZQDisciplineItemTran::readTxColors(QJsonObject &json) const
{
    // An item has few keys and fewer colours, so its keys are asked and not each colour key in turn.
    for (auto it = json.begin(); it != json.end(); ++it) {
        const QString key = it.key();
        if (key.contains(QLatin1String("Color")) && colorKeys.contains(key)) {
            *it = colorOfText(it->toString(), true);
        }
    }
}
