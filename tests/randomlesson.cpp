// SPDX-License-Identifier: MIT
#include "randomlesson.h"

#include "itemfamilies.h"
#include "pluginfixture.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

// Texts with bars between.
QStringList listOf(const char *texts)
{
    return QString::fromUtf8(texts).split('|');
}

const QStringList flagKeys = listOf("Visible|LockIn|InfiniteClone|HorizonFlip|VerticalFlip|ArtObj_Fill");
const QStringList references = listOf("images/picture.png|images/other.pbm|notes/text.txt|images/missing.png");
const QStringList referenceKeys =
    listOf("AudioPath|DrawTexture|MultiMediaFile|Stamp|document|picture|resource|AttachFile");
const QStringList slideKeys = listOf(
    "AttachFile|BackColor|EffectType|SlideSourceRect|SlideTagsInfo|TextureLineType|activity|animations|color|document|"
    "effect_direction|effect_time|effect_type|objAnimationData|KeepRatio");
const QStringList presentationKeys =
    listOf("Author|Date|Date_modified|Height|ID|Range|Title|Width|Version_app|Other|Delete");
const QStringList oddTexts = listOf(
    "| |0|1|-1|2|+1| 1 |true|false|1.50|1e1|0x10|007|nan|inf|1e39|1e-7|abc|1,2|1,2,3,|1,abc|,|1;2|#f00|red|crimson|"
    "#12345678|300,-1,2,3|1.5,2,3,4|a < b & c|<b>bold</b>|]]>|\"'|a\nb|\tx |\x01|\xc3\xa9\xe6\xbc\xa2\xf0\x9f\x99\x82|"
    "&amp;|\\u0041|%1|../x.png|null|1,2,3,4,5,6,7,8,9|0.1234567890123|16777217|9007199254740993");
const QStringList linkKinds = listOf("ACTION_OPENWEB|ACTION_OPENFILE|ACTION_GOTOSLIDE|ACTION_OPENTOOL|ACTION_SHOWTIP|"
                                     "ACTION_PLAYAUDIO|ACTION_ODD");
const QStringList linkValues =
    listOf("https://www.example.org/?a=1&b=2|www.example.org|notes/text.txt|2|99|A tip: a < b||ftp://example.org/x|"
           "images/missing.png");
const QStringList htmlTexts =
    listOf("<p>Text</p>|plain|<p>One <b>bold</b> and <i>slanted</i></p><p>Two</p>|"
           "<p align=\"center\"><span style=\"font-size:30px; color:#123456\">Large</span></p>|"
           "<p><span style=\"background-color:#ffff00\">marked</span> x<sub>2</sub></p>|"
           "<p><a href=\"https://example.org\">link</a> <u>line</u></p>|<table><tr><td>1</td></tr></table>||  ");
const QStringList matrices =
    listOf("1,0,0,1,0,0|1,0,0,1,10,20|2,0,0,2,5,5|0,1,-1,0,300,0|1,0,0.5,1,0,0|-1,0,0,1,100,0");

// A black point.
const char *const otherPicture = "P1 1 1 1\n";

QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

// Trees that some keys hold, as an editor would leave them.
const char *const mindMap = R"([
    {"borderColor": "#ff08306b", "fillColor": "#ff0d47a1", "lineColor": "#ff5b8db8", "spreadStyle": 0, "style": 2,
     "title": "Water & ice", "type": 1},
    {"style": 1},
    {"nodeHtml": "<p>Water</p>", "pos": "10,20", "position": 1, "width": 120, "height": 56, "fillColor": "#ffeaf2fb",
     "lineColor": "#ff4a6fa5", "visiable": "1", "childrenVisiable": "1", "link": "https://example.org/?a=1&b=2",
     "shade": "0", "stamp": 3, "attachments": [{"type": "1", "name": "a.txt", "path": "notes/text.txt"}],
     "childNodes": [{"nodeHtml": "Ice"}, {"nodeHtml": "a < b", "childNodes": [{"nodeHtml": "", "pos": "1,2"}]}]}])";

const char *const activities[] = {
    R"({"type": "Judgment", "title": "True or false?", "audio": "1", "countdown": "5", "difficulty": "1", "group": "2",
     "hotoffset": "0", "model": "single", "time": "60", "unmatchs": [],
     "matchs": [{"answer": "true", "question": "Seven is a prime number."}, {"answer": "false", "question": ""}],
     "templet": {"answer_font_color": "#ff333333", "background": "Judgment/background.png", "index": "1",
      "right": "Judgment/right.png", "container": {"font_align": "center", "font_color": "#ff333333",
      "font_size": "32", "path": "Judgment/frame.png"}}})",
    R"({"type": "NumberComparison", "title": "Greater?", "audio": "0", "time": "90", "unmatchs": [],
     "matchs": [[{"condition": "3 + 4", "id": "1"}, {"id": "2", "symbol": "<"}, {"condition": "8", "id": "3"}]],
     "templet": {"index": "2", "symbol_less": "Comparison/less.png", "container": {"font_size": "40"}}})",
    R"({"type": "PronunciationTest", "title": "Read", "matchs": ["One.", "Two & three."], "unmatchs": [],
     "templet": {"index": "3", "listen_normal": "Reading/listen.png", "container": {"font_family": "Sans Serif"}}})",
    R"({"type": "Grouping", "title": "Where?", "group": "2", "matchs": [{"answers": [{"c1": ["m1", "m2"]}],
     "container": {"id": "c1", "txt": "Water"}, "materials": [{"id": "m1", "juxtaposedColor": "#ff1f3a93",
     "txt": "Whale"}, {"id": "m2", "txt": "Otter"}]}], "unmatchs": [{"container": {"id": "", "txt": ""},
     "materials": [{"id": "m5", "txt": "Teapot"}]}], "templet": {"index": "2", "material": {"font_align": "center",
     "path": "Match/card.png"}, "container": {"path": "Match/basket.png"}}})",
};

QJsonValue parsed(const char *text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

struct Vocabulary
{
    QStringList types;
    QStringList drawnTypes; // that svg has a form for
};

const Vocabulary &vocabulary()
{
    static const Vocabulary all = [] {
        Vocabulary found;
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                if (type.contains(':') && !type.startsWith("General:")) {
                    continue; // a name of ZQTX
                }
                found.types.append(type);
                const QJsonObject item{{"Type", type},
                                       {"Control", "0,0,9,9,0,9,9,0"},
                                       {"XYValue", "0,0,9,9,0,9,"},
                                       {"ArtObj_Ln", "5"},
                                       {"BoundingBox", "1,1,9,9"}};
                if (type == "General:curtain" || !toSvg(item).isNull()) {
                    found.drawnTypes.append(type);
                }
            }
        }
        return found;
    }();
    return all;
}

const KeyPlaces &placesOf(const QString &type)
{
    static QHash<QString, KeyPlaces> known;
    auto found = known.find(type);
    if (found == known.end()) {
        found = known.insert(type, keyMapsOfType(type));
    }
    return *found;
}

QByteArray valueText(const QJsonValue &value)
{
    if (value.isObject()) {
        QByteArrayList members;
        const QJsonObject object = value.toObject();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            const QString key = it.key().endsWith(sameKeyMark) ? it.key().chopped(1) : it.key();
            members.append(valueText(key) + ':' + valueText(it.value()));
        }
        return '{' + members.join(',') + '}';
    }
    if (value.isArray()) {
        QByteArrayList elements;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array) {
            elements.append(valueText(element));
        }
        return '[' + elements.join(",\n") + ']';
    }
    if (value.toString().startsWith(numberMark)) {
        return value.toString().mid(1).toUtf8();
    }
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return text.mid(1, text.size() - 2);
}

} // namespace

QJsonObject rawPlacesOf(const QString &type)
{
    return vocabulary().types.contains(type) ? placesOf(type).xml : QJsonObject();
}

QByteArray jsonText(const QJsonObject &lesson)
{
    return valueText(lesson);
}

RandomLesson::RandomLesson(quint32 seed)
    : m_random(seed)
    , m_hasEqualIds(oneIn(10))
    , m_isOdd(!oneIn(4))
{
}

QString RandomLesson::number()
{
    switch (m_random.bounded(4)) {
    case 0:
        return QString::number(m_random.bounded(10));
    case 1:
        return QString::number(m_random.bounded(-500, 2000));
    case 2:
        return QString::number(m_random.bounded(8) * 0.25);
    default:
        return QString::number(m_random.bounded(1000.0), 'g', 6);
    }
}

QString RandomLesson::numbers(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list.append(number());
    }
    return list.join(',');
}

QString RandomLesson::colorText()
{
    const int alpha = oneIn(2) ? 255 : m_random.bounded(256);
    const auto channel = [this] { return m_random.bounded(256); };
    switch (m_random.bounded(5)) {
    case 0:
        return "#%1"_s.arg(channel() << 16 | channel() << 8 | channel(), 6, 16, QLatin1Char('0'));
    case 1:
        return "#%1%2"_s.arg(alpha, 2, 16, QLatin1Char('0'))
            .arg(channel() << 16 | channel() << 8 | channel(), 6, 16, QLatin1Char('0'));
    case 2:
        return "%1,%2,%3"_s.arg(channel()).arg(channel()).arg(channel());
    default:
        return "%1,%2,%3,%4"_s.arg(alpha).arg(channel()).arg(channel()).arg(channel());
    }
}

QJsonValue RandomLesson::color()
{
    if (!oneIn(3)) {
        return colorText();
    }
    QJsonObject color{{"Solid", int(m_random.bounded(0x1000000))}, {"Alpha", m_random.bounded(256) / 255.0}};
    if (m_isOdd && oneIn(4)) {
        color.insert(oneIn(2) ? "Solid" : "Alpha", oddValue(3));
    }
    if (m_isOdd && oneIn(6)) {
        color.insert("Solid", 4278190080.0 + m_random.bounded(0x1000000));
    }
    if (m_isOdd && oneIn(6)) {
        color.insert("More", oddValue(3));
    }
    return color;
}

QString RandomLesson::oddText()
{
    return anyOf(oddTexts);
}

QJsonValue RandomLesson::oddValue(int depth)
{
    const double numbers[] = {0, 1, -1, 2, 0.5, 3.0000000000000004, 255, 1e21, 1e-9, 16777217, -0.0, 4294967296.0};
    switch (m_random.bounded(depth > 2 ? 4 : 8)) {
    case 0:
        return anyOf(numbers);
    case 1:
        return oneIn(2);
    case 2:
        return oneIn(3) ? QJsonValue() : QJsonValue(oddText());
    case 4: {
        QJsonArray array;
        for (int i = m_random.bounded(4); i > 0; --i) {
            array.append(oneIn(2) ? QJsonValue(m_random.bounded(100)) : oddValue(depth + 1));
        }
        return array;
    }
    case 5: {
        QJsonObject object;
        for (int i = m_random.bounded(3); i > 0; --i) {
            object.insert(anyOf(QStringList{"a", "b c", "value", "Solid", ""}), oddValue(depth + 1));
        }
        return object;
    }
    case 6:
        return oneIn(4) ? QString(numberMark) + "9007199254740993" : oddText();
    default:
        return oddText();
    }
}

QJsonValue RandomLesson::goodValue(const QString &type, const QString &key)
{
    const auto path = [this] { return anyOf(references); };
    if (flagKeys.contains(key)) {
        return key == "Visible" ? QJsonValue(!oneIn(3)) : QJsonValue(oneIn(2) ? "1" : "0");
    }
    if (referenceKeys.contains(key)) {
        if (type == "ZQDyCoursewareItem" && key == "document") {
            return QJsonArray{path(), path()};
        }
        return oneIn(6) ? path() + ',' + path() : path();
    }
    if (key == "BoundingBox" || key == "SlideSourceRect") {
        const int left = m_random.bounded(800);
        const int top = m_random.bounded(800);
        return "%1,%2,%3,%4"_s.arg(left)
            .arg(top)
            .arg(left + 1 + m_random.bounded(400))
            .arg(top + 1 + m_random.bounded(400));
    }
    if (key.endsWith("Matrix")) {
        return anyOf(matrices);
    }
    if (key == "Control") {
        const QString text = numbers(2 * (1 + m_random.bounded(4)));
        return oneIn(3) ? QJsonValue(text) : parsed(('[' + text + ']').toLatin1());
    }
    if (key == "XY" || key == "XYValue" || key == "points") {
        const QString list = numbers(2 * (1 + m_random.bounded(5)));
        return key == "XYValue" ? QString(list + ',') : list;
    }
    if (key == "TextHtml" || key == "nodeHtml") {
        return anyOf(htmlTexts);
    }
    if (key == "InteractiveType") {
        return anyOf(linkKinds);
    }
    if (key == "InteractiveValue") {
        return anyOf(linkValues);
    }
    if (key == "mindMapData") {
        return parsed(mindMap);
    }
    if (key == "activity") {
        return parsed(anyOf(activities));
    }
    if (key == "animations") {
        return type == "slide" ? parsed(R"({"animation": ["101", "102"]})")
                               : parsed(R"({"appearance": {"duration": "500", "type": "fade"}, "emphasis": {}})");
    }
    if (key == "attachments") {
        return parsed(R"({"back": "images/picture.png", "front": "images/other.pbm", "error": "images/missing.png"})");
    }
    if (key == "PixelDeleteInfos") {
        return parsed(R"([{"Bound": "1,2,3,4", "Path": "5,6"}, {"matrix": "1,0,0,1,0,0"}])");
    }
    if (key == "BackColor" && type == "slide") {
        return oneIn(2) ? QJsonValue(m_random.bounded(0x1000000)) : QJsonValue(colorText());
    }
    if (key.contains("olor")) {
        return key == "Color" && oneIn(2) ? QJsonValue("#ff1f3a93") : color();
    }
    if (key == "Version") {
        return anyOf(QStringList{"3.0.1", "3", "2.4", "1.0"});
    }
    switch (m_random.bounded(4)) {
    case 0:
        return oneIn(2) ? "1" : "0";
    case 1:
        return "some text";
    default:
        return number();
    }
}

// The same in another kind of JSON, or the tree with another value somewhere within.
QJsonValue RandomLesson::disturbed(const QJsonValue &value)
{
    if (value.isString()) {
        bool isNumber = false;
        const double number = value.toString().toDouble(&isNumber);
        return isNumber ? (oneIn(4) ? QJsonValue(number != 0) : QJsonValue(number)) : oddValue();
    }
    if (value.isBool()) {
        const QJsonValue flags[] = {value.toBool() ? "1" : "0", value.toBool() ? 1 : 0, oddValue()};
        return anyOf(flags);
    }
    if (value.isArray() && !value.toArray().isEmpty() && !oneIn(5)) {
        QJsonArray array = value.toArray();
        const int place = m_random.bounded(array.size());
        array[place] = oneIn(2) ? disturbed(array.at(place)) : oddValue();
        return array;
    }
    if (value.isObject() && !value.toObject().isEmpty() && !oneIn(5)) {
        QJsonObject object = value.toObject();
        const QString key = anyOf(object.keys());
        object.insert(oneIn(6) ? key + 'x' : key, oneIn(3) ? oddValue() : disturbed(object.value(key)));
        return object;
    }
    return oddValue();
}

QJsonValue RandomLesson::value(const QString &type, const QString &key)
{
    const QJsonValue good = goodValue(type, key);
    if (!m_isOdd || !oneIn(3)) {
        return good;
    }
    return oneIn(2) ? disturbed(good) : oddValue();
}

void RandomLesson::addKeys(QJsonObject &object, const QString &type, const QStringList &keys, int most)
{
    for (int i = m_random.bounded(most + 1); i > 0 && !keys.isEmpty(); --i) {
        const QString key = anyOf(keys);
        object.insert(key, value(type, key));
    }
    if (m_isOdd && oneIn(8)) {
        object.insert(anyOf(QStringList{"Mood", "a b", "\xc3\xa9", "Opacity", "Text", "Width"}), value(type, {}));
    }
    if (m_isOdd && oneIn(40) && !object.isEmpty()) {
        const QString key = anyOf(object.keys());
        if (key != "ID" && key != "Type" && key != "Children") {
            object.insert(key + sameKeyMark, value(type, key));
        }
    }
}

QString RandomLesson::nextId()
{
    if (m_isOdd && oneIn(20)) {
        return anyOf(QStringList{"a b", "<&>", "\xc3\xa9", "1/2", "001"}) + QString::number(++m_lastId);
    }
    return QString::number(m_hasEqualIds && oneIn(2) ? 101 : ++m_lastId);
}

QString RandomLesson::type(bool isForIwb)
{
    if (isForIwb && !oneIn(6)) {
        return oneIn(3) ? anyOf(QStringList{"ZQSmoothStroke", "ZQBrushStrokeVelocity", "ZQFluorescentStroke"})
                        : anyOf(vocabulary().drawnTypes);
    }
    if (oneIn(4)) {
        return anyOf(QStringList{"ZQSmoothStroke", "ZQTextBoard", "ZQImagePic", "ZQMindMapItem", "ZQQuestionItem",
                                 "ZQActivityFlipItem", "ZQMediaVideo", "ZQBrushStrokeVelocity"});
    }
    return m_isOdd && oneIn(30) ? "ZQNobodyKnows" : anyOf(vocabulary().types);
}

QJsonObject RandomLesson::item(bool isForIwb, int depth)
{
    const bool isGroup = depth < 3 && oneIn(8);
    const QString type = isGroup ? (oneIn(4) ? "ZQStrokesMathFormula" : "ZQGroupItem") : this->type(isForIwb);
    QJsonObject item{{"Type", type}, {"ID", nextId()}};
    if (isForIwb || oneIn(3)) {
        for (const QString &key : {"BoundingBox"_s, "Control"_s, "XY"_s, "XYValue"_s, "resource"_s, "TextHtml"_s}) {
            const bool isInk = type.contains("Stroke");
            const bool isOwn = key == "BoundingBox" || (key == "XY" && isInk)
                || (key == "XYValue" && type == "ZQMath2DPolyline") || (key == "resource" && type.contains("Media"))
                || (key == "resource" && type == "ZQImagePic") || (key == "TextHtml" && type == "ZQTextBoard")
                || (key == "Control" && type.startsWith("ZQMath"));
            if (isOwn) {
                item.insert(key, oneIn(6) ? value(type, key) : goodValue(type, key));
            }
        }
    }
    QStringList keys{"Visible", "LockIn", "InfiniteClone", "Angle", "animations", "InteractiveType"};
    if (type != "ZQNobodyKnows") {
        keys += placesOf(type).keys();
    }
    if (type == "ZQMindMapItem") {
        keys += QStringList{"mindMapData", "mindMapData", "mindMapData", "mindMapData"};
    } else if (type == "ZQQuestionItem") {
        keys +=
            QStringList{"R_Content_svg", "R_Answer_svg", "page_scale", "page_state", "answer_width", "content_height"};
    } else if (type.startsWith("ZQActivity")) {
        keys += QStringList{"attachments", "attachments"};
    } else if (type.startsWith("ZQMath2D")) {
        keys += QStringList{"ArtObj_Width", "LineColor", "ArtObj_Color", "ArtObj_Fill", "ArtObj_Ln", "ArtObj_Mode"};
    }
    keys.removeAll("ID");
    keys.removeAll("Type");
    addKeys(item, type, keys, 5);
    if (item.contains("InteractiveType") && !oneIn(5)) {
        item.insert("InteractiveValue", value(type, "InteractiveValue"));
    }
    if (isGroup) {
        QJsonArray children;
        for (int i = m_random.bounded(4); i > 0; --i) {
            children.append(this->item(isForIwb, depth + 1));
        }
        item.insert("Children", m_isOdd && oneIn(20) ? oddValue() : QJsonValue(children));
    } else if (m_isOdd && oneIn(40)) {
        item.insert("Children", oneIn(2) ? oddValue() : QJsonValue(QJsonArray{this->item(isForIwb, depth + 1)}));
    }
    if (m_isOdd && oneIn(60)) {
        item.insert(oneIn(2) ? "ID" : "Type", oddValue());
    }
    return item;
}

QJsonObject RandomLesson::slide(bool isForIwb, int number)
{
    QJsonObject slide{{"ID", QString::number(number)}};
    addKeys(slide, "slide", slideKeys, 5);
    QJsonArray items;
    for (int i = 1 + m_random.bounded(7); i > 0; --i) {
        items.append(item(isForIwb, 0));
    }
    slide.insert("Items", items);
    return slide;
}

QJsonObject RandomLesson::lesson(bool isForIwb)
{
    QJsonObject lesson{{"Version", goodValue({}, "Version")}, {"Width", "1920"}, {"Height", "1080"}};
    addKeys(lesson, "presentation", presentationKeys, 4);
    QJsonArray slides;
    for (int i = 1 + m_random.bounded(2); i > 0; --i) {
        slides.append(slide(isForIwb, slides.size() + 1));
    }
    lesson.insert("Slides", slides);
    lesson.insert("Resources",
                  QJsonObject{{references.at(0), base64(redPicture())},
                              {references.at(1), base64(QByteArray(otherPicture))},
                              {references.at(2), base64("Text")}});
    return lesson;
}

void RandomLesson::disturb(const QDomElement &root)
{
    if (!m_isOdd) {
        return;
    }
    QDomElement element = root;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.name() != "id" && attribute.name() != "NetID" && attribute.name() != "href"
            && !attribute.name().startsWith("xmlns") && oneIn(attribute.name() == "type" ? 60 : 12)) {
            attribute.setValue(oneIn(4) ? goodValue({}, attribute.name()).toVariant().toString()
                                        : oddText().remove('\x01'));
        }
    }
    if (oneIn(30)) {
        element.setAttribute(anyOf(QStringList{"mood", "visible", "color", "width", "angle"}),
                             oddText().remove('\x01'));
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull();) {
        const QDomElement next = child.nextSiblingElement();
        if (child.tagName() != "items" && child.tagName() != "data" && child.tagName() != "properties" && oneIn(60)) {
            oneIn(2) ? element.removeChild(child) : element.insertAfter(child.cloneNode(), child);
        } else {
            disturb(child);
        }
        child = next;
    }
    if (oneIn(60)) {
        element.appendChild(element.ownerDocument().createElement("note"))
            .appendChild(element.ownerDocument().createTextNode(oddText().remove('\x01')));
    }
}

void RandomLesson::putRaw(QDomDocument &document, QDomElement element, const QJsonArray &path, const QString &text)
{
    for (int i = 0; i + 1 < path.size(); ++i) {
        QDomElement child = element.firstChildElement(path.at(i).toString());
        if (child.isNull()) {
            child = document.createElement(path.at(i).toString());
            element.appendChild(child);
        }
        element = child;
    }
    const QString name = path.last().toString();
    if (name.startsWith('[')) {
        putRaw(document, element, {name.mid(1, name.size() - 2), "family"}, text);
    } else if (name.startsWith('<')) {
        putRaw(document, element, {name.mid(1, name.size() - 2), "info", "matrix"}, text);
    } else {
        element.setAttribute(name, text);
    }
}

QDomElement RandomLesson::rawItem(QDomDocument &document, int depth)
{
    const bool isGroup = depth < 2 && oneIn(8);
    const QString type = isGroup ? "ZQGroupItem" : this->type(oneIn(2));
    QDomElement item = document.createElement(type);
    item.setAttribute("NetID", nextId());
    if (type == "ZQNobodyKnows") {
        return item;
    }
    const QJsonObject places = placesOf(type).xml;
    const QStringList keys = places.keys();
    for (int i = m_random.bounded(7); i > 0; --i) {
        const QString key = anyOf(keys);
        QString text = key == "BoundingBox" ? "300,220,0,0,100,100" : goodValue(type, key).toVariant().toString();
        if (key == "Visible") {
            text = oneIn(2) ? "1" : "0";
        }
        putRaw(document, item, places.value(key).toArray(), m_isOdd && oneIn(4) ? oddText().remove('\x01') : text);
    }
    for (int i = oneIn(3) ? m_random.bounded(4) : 0; i > 0; --i) {
        for (const char *name : {"Discipline_xControl", "Discipline_yControl"}) {
            item.setAttribute(name + QString::number(i - 1),
                              m_isOdd && oneIn(12) ? oddText().remove('\x01') : number());
        }
    }
    if (isGroup) {
        QDomNode sons = item.appendChild(document.createElement("GroupSonItems"));
        for (int i = m_random.bounded(4); i > 0; --i) {
            sons.appendChild(rawItem(document, depth + 1));
        }
    }
    return item;
}

QDomDocument RandomLesson::rawLesson()
{
    QDomDocument document;
    QDomElement root = document.createElement("presentation");
    document.appendChild(root);
    root.setAttribute("NetID", "5001");
    root.setAttribute("Version", goodValue({}, "Version").toString());
    for (int i = 1 + m_random.bounded(2); i > 0; --i) {
        QDomElement slide = document.createElement("slide");
        root.appendChild(slide);
        slide.setAttribute("NetID", QString::number(i));
        for (const char *key : {"SlideSourceRect", "BackColor", "AttachFile", "TextureLineType"}) {
            if (oneIn(3)) {
                slide.setAttribute(key, goodValue("slide", key).toVariant().toString());
            }
        }
        for (int j = 1 + m_random.bounded(5); j > 0; --j) {
            slide.appendChild(rawItem(document, 0));
        }
    }
    disturb(root);
    return document;
}

int setting(const char *name, int usual)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : usual;
}

void prepareRandomRun(int seconds)
{
    constexpr qint64 usualTimeout = 300000; // Qt Test ends what takes longer, which a run by hand may
    qputenv("QT_QPA_PLATFORM", "offscreen"); // the host lays out text
    qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(usualTimeout + seconds * 1000LL));
    qSetGlobalQHashSeed(0);
}
