// SPDX-License-Identifier: MIT
#include "zqactivityitemtran.h"

#include "domhelpers.h"
#include "markupbuilder.h"

#include <algorithm>
#include <iterator>

namespace {

const QLatin1String flipCard("ZQActivityFlipItem");
const QLatin1String attachments("attachments");

} // namespace

const FamilyVocabulary &ZQActivityItemTran::vocabulary()
{
    static const KeyPaths defaultText = {
        path("defaultTextSize", "data", "content", "defaultTextSize"),
        path("defaultTextFamily", "data", "content", "defaultTextFamily"),
        path("defaultTextAlignment", "data", "content", "defaultTextAlignment"),
        path("defaultTextColor", "data", "content", "defaultTextColor"),
    };
    static const FamilyVocabulary table(
        {{},
         {},
         {path("document", "background", "picture", "document"), path("TextHtml", "data", "content", "text"),
          path("offset", "data", "hot", "offset"), path("TextVOffset", "data", "content", "offset"),
          path("GapFillingContent", "data", "content", "content"), path("hole", "data", "content", "hole"),
          path("animal", "data", "content", "animal")}},
        {
            {{"ZQActivityFlipItem"},
             {},
             {path("frontContent", "data", "front", "frontContent"),
              path("defaultFrontFontFormat", "data", "frontFont", "defaultFrontFontFormat"),
              path("defaultBackFontFormat", "data", "backFont", "defaultBackFontFormat")}},
            {{"container", "material", "ZQActiveContainerItem", "ZQActiveMaterialItem", "ZQActiveContainerClassifyItem",
              "ZQActiveMaterialClassifyItem", "container_classify", "material_classify",
              "ZQActiveContainerGapFillingItem", "ZQActiveMaterialGapFillingItem", "container_gapfilling",
              "material_gapfilling", "ZQActiveMaterialCompetitionItem", "material_competitionItem",
              "ZQActiveMaterialSentenceItem", "ZQActiveContainerSentenceItem"},
             {},
             defaultText},
        });
    return table;
}

namespace {

// Types of which only a part of the name is told. They have the keys of a container.
bool hasActivityName(const QString &type)
{
    static const QLatin1String parts[] = {
        QLatin1String("ZQActiveMaterialStudent"),
        QLatin1String("ZQActiveMaterialComparison"),
        QLatin1String("ZQActiveContainerComparison"),
        QLatin1String("ZQActiveMaterialMark"),
        QLatin1String("ZQActivityPronunciationTestTextItem"),
        QLatin1String("ZQActivityPronunciationTestTipItem"),
    };
    // Most types of a lesson are none of these, and this family is the first to be asked.
    if (!type.contains(QLatin1String("ZQActiv"))) {
        return false;
    }
    return std::any_of(std::begin(parts), std::end(parts), [&type](QLatin1String part) { return type.contains(part); });
}

const TypePairs &typePairs()
{
    static const TypePairs pairs{
        {"ZQActiveContainerItem", "container"},
        {"ZQActiveMaterialItem", "material"},
        {"ZQActiveContainerClassifyItem", "container_classify"},
        {"ZQActiveMaterialClassifyItem", "material_classify"},
        {"ZQActiveContainerGapFillingItem", "container_gapfilling"},
        {"ZQActiveMaterialGapFillingItem", "material_gapfilling"},
        {"ZQActiveMaterialCompetitionItem", "material_competitionItem"},
        {"ZQActivityFlipItem", "ZQActivityFlipItem"},
        {"ZQActiveMaterialSentenceItem", "ZQActiveMaterialSentenceItem"},
        {"ZQActiveContainerSentenceItem", "ZQActiveContainerSentenceItem"},
        {"ZQActiveMaterialStudent1Item", "ZQActiveMaterialStudent1Item"},
        {"ZQActiveMaterialStudent2Item", "ZQActiveMaterialStudent2Item"},
        {"ZQActiveMaterialMarkPKItem", "ZQActiveMaterialMarkPKItem"},
        {"ZQActiveMaterialMarkTipItem", "ZQActiveMaterialMarkTipItem"},
        {"ZQActivityPronunciationTestTipItem", "ZQActivityPronunciationTestTipItem"},
        {"ZQActivityPronunciationTestTextItem", "ZQActivityPronunciationTestTextItem"},
    };
    return pairs;
}

bool keepsItsName(const QString &type)
{
    return type.contains(QLatin1String("ComparisonItem"));
}

QString templateHead()
{
    return QStringLiteral(
        R"(<?xml version="1.0" encoding="UTF-8"?>)"
        R"(<activity_item visible="1" locked="0" type="" uclone="0" id="" name="">)"
        R"(<transform><rotate angle="0"/></transform><background><picture document=""/></background>)");
}

QString templateTail(bool isFlipCard)
{
    const QLatin1String flipRows(R"(<front frontContent=""/><frontFont defaultFrontFontFormat=""/>)"
                                 R"(<backFont defaultBackFontFormat=""/>)");
    const QLatin1String textRows(R"(<content defaultTextSize=""/><content defaultTextFamily=""/>)"
                                 R"(<content defaultTextAlignment=""/><content defaultTextColor=""/>)");
    return QLatin1String(R"(<data><rect points="" controlpoints=""/><content text=""/><content content=""/>)")
        + (isFlipCard ? flipRows : textRows) + QLatin1String(R"(<hot offset=""/></data></activity_item>)");
}

QString attachmentText(const QString &back, const QString &front, const QString &error)
{
    return QLatin1String(R"(<attachments><attachment back=")") + back + QLatin1String(R"(" front=")") + front
        + QLatin1String(R"(" error=")") + error + QLatin1String(R"("/></attachments>)");
}

// The texts stand in the attributes without escaping, so markup in them becomes part of the item.
QDomElement elementWithAttachment(bool isFlipCard, const QJsonObject &texts)
{
    const QString back = texts.value(QLatin1String("back")).toString();
    const QString front = texts.value(QLatin1String("front")).toString();
    const QString error = texts.value(QLatin1String("error")).toString();
    if (!isPlainAttributeValue(back) || !isPlainAttributeValue(front) || !isPlainAttributeValue(error)) {
        return elementFromXml(templateHead() + attachmentText(back, front, error) + templateTail(isFlipCard));
    }
    static const ElementTemplate flip(templateHead() + attachmentText({}, {}, {}) + templateTail(true));
    static const ElementTemplate other(templateHead() + attachmentText({}, {}, {}) + templateTail(false));
    const QDomElement element = (isFlipCard ? flip : other).instance();
    QDomElement attachment = childByTag(element, attachments).firstChildElement();
    attachment.setAttribute(QStringLiteral("back"), back);
    attachment.setAttribute(QStringLiteral("front"), front);
    attachment.setAttribute(QStringLiteral("error"), error);
    return element;
}

QDomElement activityElement(bool isFlipCard, const QJsonObject &json)
{
    const auto found = json.constFind(attachments);
    if (found != json.constEnd()) {
        return elementWithAttachment(isFlipCard, found->toObject());
    }
    static const ElementTemplate flip(templateHead() + templateTail(true));
    static const ElementTemplate other(templateHead() + templateTail(false));
    return (isFlipCard ? flip : other).instance();
}

QJsonObject backAndFront(const QDomElement &element)
{
    const QString back = QStringLiteral("back");
    const QString front = QStringLiteral("front");
    return {{back, element.attribute(back)}, {front, element.attribute(front)}};
}

} // namespace

ZQActivityItemTran::ZQActivityItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    const QString line = vocabulary().contains(type) ? type : QStringLiteral("container");
    setKeyMaps(vocabulary().keyMaps(line, keyMaps()));
    foldsMatrixIntoBox = true;
}

std::unique_ptr<ZQHTran> ZQActivityItemTran::create(const QString &type)
{
    const bool isMine = vocabulary().contains(type) || hasActivityName(type);
    return isMine ? std::make_unique<ZQActivityItemTran>(type) : nullptr;
}

QString ZQActivityItemTran::toTxType(const QString &type)
{
    QString txType = typePairs().toTxType(type);
    if (!txType.isEmpty()) {
        return txType;
    }
    const bool isTxType = keepsItsName(type) || !typePairs().fromTxType(type).isEmpty();
    return isTxType ? type : QString();
}

QString ZQActivityItemTran::fromTxType(const QString &type)
{
    QString ownType = typePairs().fromTxType(type);
    if (!ownType.isEmpty()) {
        return ownType;
    }
    const bool isItemType = keepsItsName(type) || !typePairs().toTxType(type).isEmpty();
    return isItemType ? type : QString();
}

QJsonObject ZQActivityItemTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranXML2JSON(element, json, context);
    if (element.tagName() == attachments) {
        json.insert(attachments, backAndFront(element));
    }
    return json;
}

QJsonObject ZQActivityItemTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranZQTX2JSON(element, json, context);
    const QString listTag = attachments;
    const QString entryTag = QStringLiteral("attachment");
    QDomElement last;
    for (auto list = element.firstChildElement(listTag); !list.isNull(); list = list.nextSiblingElement(listTag)) {
        const QDomElement entry = list.lastChildElement(entryTag);
        if (!entry.isNull()) {
            last = entry;
        }
    }
    if (!last.isNull()) {
        json.insert(attachments, backAndFront(last));
    }
    return json;
}

QDomElement ZQActivityItemTran::newTxElement(const QJsonObject &json) const
{
    return activityElement(itemType == flipCard, json);
}

QDomElement ZQActivityItemTran::tranJSON2IWB(QDomElement element, QJsonObject, QJsonObject)
{
    return element;
}

QJsonObject ZQActivityItemTran::tranIWB2JSON(QDomElement, QJsonObject json, QJsonObject)
{
    return json;
}
