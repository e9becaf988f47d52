// SPDX-License-Identifier: MIT
#include "sampleitems.h"

#include "itemfamilies.h"

#include <QBuffer>
#include <QDomDocument>
#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString picturePath = QStringLiteral("images/picture.png");

QJsonObject fromText(const char *text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (document.isNull()) {
        qFatal("A sample is no JSON: %s", qPrintable(error.errorString()));
    }
    return document.object();
}

// Values with a form of their own, by key.
const QJsonObject &formedValues()
{
    static const QJsonObject values = fromText(R"({
        "Angle": "0.5",
        "BoundingBox": "100,100,300,220",
        "Color": "#ff1f3a93",
        "Control": [100, 100, 300, 100, 300, 220, 100, 220],
        "InfiniteClone": "1",
        "InteractiveType": "ACTION_OPENWEB",
        "InteractiveValue": "https://www.example.org/",
        "LockIn": "1",
        "Matrix": "0.877583,0.479426,-0.479426,0.877583,10,20",
        "SlideMatrix": "1,0,0,1,10,20",
        "ArtObj_Fill": "1",
        "ArtObj_Mode": "1",
        "ArtObj_Style": "1",
        "TextHtml": "<p>Text</p>",
        "Visible": false,
        "XY": "100,100,20,10,20,10",
        "XYValue": "100,100,300,100,300,220,100,220,",
        "AudioPath": "images/picture.png",
        "DrawTexture": "images/picture.png",
        "MultiMediaFile": "images/picture.png",
        "Opacity": "255",
        "PixelDeleteInfos": [{"matrix": "1,0,0,1,0,0"}],
        "Stamp": "images/picture.png",
        "document": "images/picture.png",
        "picture": "images/picture.png",
        "resource": "images/picture.png"
    })");
    return values;
}

// What single types hold beyond their tables, or in another form.
const QHash<QString, QJsonObject> &valuesOfTypes()
{
    static const QHash<QString, QJsonObject> values{
        {QStringLiteral("ZQGroupItem"),
         fromText(R"({"Children": [{"Type": "ZQSmoothStroke", "ID": "9001", "XY": "100,100,20,10", "Color": "#ff000000",
             "Width": "3", "BoundingBox": "100,100,120,110", "Visible": true}]})")},
        {QStringLiteral("ZQMath2DSegment"), fromText(R"({"Control": [100, 100, 300, 220], "ArtObj_ArrowType": "0"})")},
        {QStringLiteral("ZQMath2DSegmentWith1Arrow"),
         fromText(R"({"Control": [100, 100, 300, 220], "ArtObj_ArrowType": "1"})")},
        {QStringLiteral("ZQMath2DSegmentWith2Arrow"),
         fromText(R"({"Control": [100, 100, 300, 220], "ArtObj_ArrowType": "2"})")},
        {QStringLiteral("ZQMath2DGeoSegment"), fromText(R"({"Control": [100, 100, 300, 220]})")},
        {QStringLiteral("ZQMath2DAngle"), fromText(R"({"Control": [100, 100, 300, 220]})")},
        {QStringLiteral("ZQMath2DTriangle"), fromText(R"({"Control": [100, 100, 300, 100, 300, 220]})")},
        {QStringLiteral("ZQActivityFlipItem"),
         fromText(R"({"attachments": {"back": "images/picture.png", "error": "images/picture.png",
             "front": "images/picture.png"}})")},
        {QStringLiteral("ZQDyCoursewareItem"),
         fromText(R"({"document": ["images/picture.png", "images/picture.png"]})")},
        {QStringLiteral("ZQMindMapItem"), fromText(R"({"mindMapData": [
             {"borderColor": "#ff08306b", "fillColor": "#ff0d47a1", "lineColor": "#ff5b8db8", "spreadStyle": 0,
              "style": 2, "title": "Water", "type": 1},
             {"style": 1},
             {"nodeHtml": "Water", "childNodes": [{"nodeHtml": "Ice"}, {"nodeHtml": "Steam"}]}]})")},
        {QStringLiteral("ZQQuestionItem"),
         fromText(R"({"R_Content_svg": "1 + 1", "R_Answer_svg": "2", "page_scale": 1.25, "page_state": "1",
             "answer_width": 640, "answer_height": 240, "content_width": 800, "content_height": 360})")},
    };
    return values;
}

QJsonObject colorNumber(int number)
{
    return {{QStringLiteral("Alpha"), 1}, {QStringLiteral("Solid"), 1000 + number}};
}

QJsonValue sampleValue(const QString &type, const QString &key, int number)
{
    if (formedValues().contains(key)) {
        return formedValues().value(key);
    }
    if (isSubjectType(type) && subjectColorKeys().contains(key)) {
        return colorNumber(number);
    }
    if (key.contains(QLatin1String("Color"))) {
        return QStringLiteral("255,10,20,%1").arg(number);
    }
    return QString::number(number);
}

QJsonObject sampleItem(const QString &type, int id)
{
    QJsonObject item;
    int number = 0;
    // Of the keys that only IWB knows, most are attributes of svg that the export works out.
    KeyPlaces maps = keyMapsOfType(type);
    const QJsonValue file = maps.iwb.value(QLatin1String("MultiMediaFile"));
    maps.iwb = {};
    if (!file.isUndefined()) {
        maps.iwb.insert(QLatin1String("MultiMediaFile"), file);
    }
    const QStringList keys = maps.keys();
    for (const QString &key : keys) {
        item.insert(key, sampleValue(type, key, ++number));
    }
    const QJsonObject own = valuesOfTypes().value(type);
    for (auto it = own.constBegin(); it != own.constEnd(); ++it) {
        item.insert(it.key(), it.value());
    }
    item.insert(QStringLiteral("Type"), type);
    item.insert(QStringLiteral("ID"), QString::number(id));
    return item;
}

QString pictureText()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.save(&buffer, "PNG");
    return QString::fromLatin1(bytes.toBase64());
}

QString rawText(const QString &key, int number)
{
    static const QHash<QString, QString> texts{
        {QStringLiteral("BoundingBox"), QStringLiteral("300,220,0,0,100,100")},
        {QStringLiteral("Visible"), QStringLiteral("0")},
    };
    return texts.value(key, formedValues().value(key).toString(QString::number(number)));
}

// Elements on the way are made where they are missing; attributes are set once.
void putValue(QDomDocument &document, QDomElement element, const QJsonArray &path, const QString &value)
{
    for (int i = 0; i + 1 < path.size(); ++i) {
        const QString tag = path.at(i).toString();
        QDomElement child = element.firstChildElement(tag);
        if (child.isNull()) {
            child = document.createElement(tag);
            element.appendChild(child);
        }
        element = child;
    }
    QString name = path.last().toString();
    if (name.startsWith(QLatin1Char('['))) {
        name = name.mid(1, name.size() - 2);
        putValue(document, element, {name, QStringLiteral("family")}, value);
    } else if (name.startsWith(QLatin1Char('<'))) {
        name = name.mid(1, name.size() - 2);
        putValue(document, element, {name, QStringLiteral("info"), QStringLiteral("matrix")}, value);
    } else {
        element.setAttribute(name, value);
    }
}

} // namespace

QJsonObject sampleLesson()
{
    QJsonArray items;
    for (const TitledTypes &family : itemFamilies()) {
        for (const QString &type : family.types) {
            if (!isModelType(type)) {
                continue;
            }
            items.append(sampleItem(type, items.size() + 1));
        }
    }
    QJsonObject slide = fromText(R"({"ID": "1", "document": "images/picture.png", "color": "255,10,20,30",
        "effect_type": "ID_SLIDE_EFFECT_ZXFG", "effect_time": "500", "effect_direction": "1", "BackColor": 660510,
        "SlideSourceRect": "0,0,1920,1080", "animations": {"animation": ["1", "2"]}})");
    slide.insert(QStringLiteral("Items"), items);
    QJsonObject lesson = fromText(R"({"Author": "A. Teacher", "Date": "2024-03-01", "Date_modified": "2024-03-02",
        "Height": "1080", "ID": "5001", "Title": "Samples", "Version": "3.0.1", "Version_app": "9", "Width": "1920"})");
    lesson.insert(QStringLiteral("Slides"), QJsonArray{slide});
    lesson.insert(QStringLiteral("Resources"), QJsonObject{{picturePath, pictureText()}});
    return lesson;
}

QString rawSampleLesson()
{
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("presentation"));
    document.appendChild(root);
    root.setAttribute(QStringLiteral("NetID"), QStringLiteral("5001"));
    QDomElement slide = document.createElement(QStringLiteral("slide"));
    root.appendChild(slide);
    slide.setAttribute(QStringLiteral("NetID"), QStringLiteral("1"));
    slide.setAttribute(QStringLiteral("SlideSourceRect"), QStringLiteral("0,0,1920,1080"));
    slide.setAttribute(QStringLiteral("BackColor"), QStringLiteral("255,10,20,30"));
    for (const TitledTypes &family : itemFamilies()) {
        for (const QString &type : family.types) {
            if (type.contains(QLatin1Char(':')) || !isModelType(type)) {
                continue;
            }
            QDomElement item = document.createElement(type);
            const QJsonObject places = keyMapsOfType(type).xml;
            int number = 0;
            for (auto it = places.constBegin(); it != places.constEnd(); ++it) {
                putValue(document, item, it.value().toArray(), rawText(it.key(), ++number));
            }
            slide.appendChild(item);
        }
    }
    return document.toString(1);
}
