// SPDX-License-Identifier: MIT
#include "zqslidetran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "slideactivity.h"
#include "zqcomitemcontroltran.h"

#include <QDomDocument>
#include <QHash>

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        path("color", "background", "color", "value"),
        path("document", "background", "picture", "document"),
        childAttribute("effect_type", "effect", "type"),
        childAttribute("effect_time", "effect", "time"),
        childAttribute("effect_direction", "effect", "direction"),
    };
    return paths;
}

// Page colour and picture under the attributes that svg readers know.
const KeyPaths &iwbPaths()
{
    static const KeyPaths paths = {
        attribute("rgb", "fill"),
        attribute("alp", "fill-opacity"),
        attribute("href", "xlink:href"),
        attribute("background-posture"),
    };
    return paths;
}

// Page effects by the names that other formats have for them. A name that isn't listed is a plain cover.
using EffectNames = QHash<QString, QString>;

QString pageEffect(const EffectNames &names, const QString &name)
{
    return names.value(name, QStringLiteral("ID_SLIDE_EFFECT_ZXFG"));
}

EffectNames effectNames(std::initializer_list<std::pair<const char *, const char *>> rows)
{
    EffectNames names;
    for (const auto &row : rows) {
        names.insert(QLatin1String(row.first), QLatin1String(row.second));
    }
    return names;
}

QString pageEffectOfRawName(const QString &name)
{
    static const EffectNames names = effectNames({
        {"", ""},
        {"erase_1_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_2_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_3_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_4_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_22_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_24_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_29_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_32_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"fade_5_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"push_9_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"stripe_1_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"stripe_2_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"stripe_3_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"stripe_4_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"stripe_5_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"stripe_6_mc", "ID_SLIDE_EFFECT_ZXFG"},
        {"erase_6_mc", "ID_SLIDE_EFFECT_XXJK"},
        {"erase_7_mc", "ID_SLIDE_EFFECT_XZJK"},
        {"erase_8_mc", "ID_SLIDE_EFFECT_XYJK"},
        {"erase_9_mc", "ID_SLIDE_EFFECT_XSJK"},
        {"erase_10_mc", "ID_SLIDE_EFFECT_ZXJK"},
        {"erase_11_mc", "ID_SLIDE_EFFECT_ZSJK"},
        {"erase_12_mc", "ID_SLIDE_EFFECT_YXJK"},
        {"erase_13_mc", "ID_SLIDE_EFFECT_YSJK"},
        {"fade_1_mc", "ID_SLIDE_EFFECT_PHDC"},
        {"fade_2_mc", "ID_SLIDE_EFFECT_HZDC"},
        {"fade_3_mc", "ID_SLIDE_EFFECT_QC"},
        {"fade_4_mc", "ID_SLIDE_EFFECT_HZQC"},
        {"push_1_mc", "ID_SLIDE_EFFECT_XXTJ"},
        {"push_2_mc", "ID_SLIDE_EFFECT_XZTJ"},
        {"push_3_mc", "ID_SLIDE_EFFECT_XYTJ"},
        {"push_4_mc", "ID_SLIDE_EFFECT_XSTJ"},
        {"push_5_mc", "ID_SLIDE_EFFECT_XXFG"},
        {"push_6_mc", "ID_SLIDE_EFFECT_XZFG"},
        {"push_7_mc", "ID_SLIDE_EFFECT_XYFG"},
        {"push_8_mc", "ID_SLIDE_EFFECT_XSFG"},
        {"push_10_mc", "ID_SLIDE_EFFECT_ZSFG"},
        {"push_11_mc", "ID_SLIDE_EFFECT_YXFG"},
        {"push_12_mc", "ID_SLIDE_EFFECT_YSFG"},
    });
    return pageEffect(names, name);
}

QString pageEffectOfTransition(const QString &name)
{
    static const EffectNames names = effectNames({
        {"transition_none", ""},
        {"transition_fade_fadeOutDuration", "ID_SLIDE_EFFECT_PHDC"},
        {"transition_fade_fadeOutfromBlack", "ID_SLIDE_EFFECT_HZDC"},
        {"transition_fade_effectCutOut", "ID_SLIDE_EFFECT_QC"},
        {"transition_fade_cutOutfromBlack", "ID_SLIDE_EFFECT_HZQC"},
        {"transition_fade_effectDissolve", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_down", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_left", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_right", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_up", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_wedged", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_clockwisespoke1", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_clockwisespoke2", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_clockwisespoke3", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_clockwisespoke4", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_clockwisespoke8", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_windowHorizontalIn", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_windowHorizontal", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_windowVerticalIn", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_windowVertical", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_stripeLeftTop", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_stripeLeftDown", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_stripeRightTop", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_stripeRightDown", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_pathcircle", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_diamond", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_plus", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_push_coverLeftDown", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_stripe_BlindsHorizontal", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_stripe_BlindsVertical", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_stripe_RandomBarsHorizontal", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_stripe_RandomBarsVertical", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_stripe_CheckerboardAcross", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_stripe_CheckerboardDown", "ID_SLIDE_EFFECT_ZXFG"},
        {"transition_wipe_pathDiagonalDown", "ID_SLIDE_EFFECT_XXJK"},
        {"transition_wipe_pathDiagonalLeft", "ID_SLIDE_EFFECT_XZJK"},
        {"transition_wipe_pathDiagonalRight", "ID_SLIDE_EFFECT_XYJK"},
        {"transition_wipe_pathDiagonalUp", "ID_SLIDE_EFFECT_XSJK"},
        {"transition_wipe_pathDiagonalDownLeft", "ID_SLIDE_EFFECT_ZXJK"},
        {"transition_wipe_pathDiagonalUpLeft", "ID_SLIDE_EFFECT_ZSJK"},
        {"transition_wipe_pathDiagonalDownRight", "ID_SLIDE_EFFECT_YXJK"},
        {"transition_wipe_pathDiagonalUpRight", "ID_SLIDE_EFFECT_YSJK"},
        {"transition_wipe_boxin", "ID_SLIDE_EFFECT_HZSS"},
        {"transition_wipe_boxout", "ID_SLIDE_EFFECT_HZZK"},
        {"transition_wipe_curvesquare", "ID_SLIDE_EFFECT_XWKB"},
        {"transition_push_pushDown", "ID_SLIDE_EFFECT_XXTJ"},
        {"transition_push_pushLeft", "ID_SLIDE_EFFECT_XZTJ"},
        {"transition_push_pushRight", "ID_SLIDE_EFFECT_XYTJ"},
        {"transition_push_pushUp", "ID_SLIDE_EFFECT_XSTJ"},
        {"transition_push_coverDown", "ID_SLIDE_EFFECT_XXFG"},
        {"transition_push_coverLeft", "ID_SLIDE_EFFECT_XZFG"},
        {"transition_push_coverRight", "ID_SLIDE_EFFECT_XYFG"},
        {"transition_push_coverUp", "ID_SLIDE_EFFECT_XSFG"},
        {"transition_push_coverLeftUp", "ID_SLIDE_EFFECT_ZSFG"},
        {"transition_push_coverRightDown", "ID_SLIDE_EFFECT_YXFG"},
        {"transition_push_coverRightUp", "ID_SLIDE_EFFECT_YSFG"},
    });
    return pageEffect(names, name);
}

// The image of a notebook paper by its number; the empty text for other numbers.
QString notebookPaper(int number)
{
    switch (number) {
    case 1:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_NOTE.png");
    case 2:
    case 3:
    case 4:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_TIAN.png");
    case 5:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_MI.png");
    case 6:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_PINYIN.png");
    case 7:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_COMPOSITION.png");
    case 8:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_WORD.png");
    case 9:
        return QStringLiteral("ID_SLIDE_NOTEBOOK_STAFF.png");
    default:
        return {};
    }
}

// What a raw slide says in attributes of its own, where the object doesn't say it already.
void readSlideAttributes(QDomElement element, QJsonObject &json)
{
    for (const char *key : {"SlideTagsInfo", "BackColor", "AttachFile", "TextureLineType", "SlideSourceRect"}) {
        const QLatin1String name(key);
        const QDomAttr attribute = element.attributeNode(name);
        if (!attribute.isNull() && !json.contains(name)) {
            json.insert(name, attribute.value());
        }
    }
}

// Fields of a colour text a,r,g,b as the number 0xRRGGBB; the alpha is not used. A shorter text stays as it is.
void convertBackColor(QJsonObject &json)
{
    const QLatin1String key("BackColor");
    const QStringList fields = json.value(key).toString().split(QLatin1Char(','));
    if (fields.size() < 4) {
        return;
    }
    // Fields of any size are taken as they are, so the sum needs more than 32 bits.
    const auto field = [&fields](int i) { return qint64(fields.at(i).toInt()); };
    json.insert(key, (field(1) * 256 + field(2)) * 256 + field(3));
}

// A tag part with the page effect: an element "type" somewhere in it names it. A part that is no XML says nothing.
void readPageEffect(const QString &part, QJsonObject &json)
{
    const QDomElement root = elementFromWellFormedXml(part);
    const QString typeTag = QStringLiteral("type");
    const QDomElement type = root.tagName() == typeTag ? root : descendantByTag(root, typeTag);
    if (!type.isNull()) {
        json.insert(QLatin1String("EffectType"), pageEffectOfRawName(type.attribute(QStringLiteral("value"))));
    }
}

} // namespace

ZQSlideTran::ZQSlideTran()
{
    static const KeyMaps maps = keyMaps().with({}, txPaths(), iwbPaths());
    setKeyMaps(maps);
}

QJsonObject ZQSlideTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQHTran::tranXML2JSON(element, json, context);
    readSlideAttributes(element, json);
    if (json.contains(QLatin1String("SlideTagsInfo"))) {
        readTags(json);
    }
    if (json.contains(QLatin1String("BackColor"))) {
        convertBackColor(json);
    }
    const QLatin1String attachFile("AttachFile");
    if (json.contains(attachFile)) {
        json.insert(attachFile,
                    ZQComItemControlTran::joinResourcePaths(json.value(attachFile).toString(), QLatin1Char('|'),
                                                            context.value(QLatin1String("path")).toString()));
    } else if (json.contains(QLatin1String("TextureLineType"))) {
        const QString paper = notebookPaper(json.value(QLatin1String("TextureLineType")).toString().toInt());
        if (!paper.isEmpty()) {
            json.insert(attachFile, paper);
        }
    }
    const QLatin1String sourceRect("SlideSourceRect");
    if (!json.contains(sourceRect)) {
        json.insert(sourceRect, QStringLiteral("0,0,1024,768"));
    }
    return json;
}

QJsonObject ZQSlideTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQHTran::tranZQTX2JSON(element, json, context);
    const QLatin1String transition("ZQTXEffectType");
    if (json.contains(transition)) {
        json.insert(QLatin1String("EffectType"), pageEffectOfTransition(json.value(transition).toString()));
    }
    json = readSlideAnimations(element, json, context);
    return readClassActivity(element, json, context);
}

QDomDocument ZQSlideTran::tranJSON2ZQTXDocument(QDomDocument document, QJsonObject json, QJsonObject context)
{
    if (document.isNull()) {
        document.setContent(QStringLiteral(R"(<slide id=""><background><color value=""/><picture document=""/>)"
                                           R"(</background><items></items><effect type=""/> </slide>)"),
                            false);
    }
    QDomElement slide = document.documentElement();
    tranJSON2ZQTX(slide, json, context);
    writeSlideAnimations(slide, json, context);
    writeClassActivity(slide, json, context);
    return document;
}

void ZQSlideTran::readTags(QJsonObject &json)
{
    const QStringList parts = json.value(QLatin1String("SlideTagsInfo")).toString().split(QLatin1String("|$|"));
    for (const QString &part : parts) {
        if (part.contains(QLatin1String("<pageEffect>"))) {
            readPageEffect(part, json);
        }
    }
    for (const QString &part : parts) {
        if (part.contains(QLatin1String("<interactive>"))) {
            json.insert(QLatin1String("objAnimationData"), interactiveToJson(part));
            json.insert(QLatin1String("iszqt"), true);
            break;
        }
    }
}

QJsonObject ZQSlideTran::readClassActivity(QDomElement element, QJsonObject json, QJsonObject)
{
    const QString tag = QStringLiteral("activity");
    const QDomElement activity = childByTag(element, tag);
    if (!activity.isNull()) {
        json.insert(tag, SlideActivity().read(activity));
    }
    return json;
}

void ZQSlideTran::writeClassActivity(QDomElement element, QJsonObject json, QJsonObject)
{
    const QJsonValue activity = json.value(QLatin1String("activity"));
    if (!element.isNull() && !activity.isUndefined()) {
        element.appendChild(SlideActivity().write(activity.toObject()));
    }
}
