// SPDX-License-Identifier: MIT
#include "zqliteraturetran.h"

#include "domhelpers.h"

const FamilyVocabulary &ZQLiteratureTran::vocabulary()
{
    static const FamilyVocabulary table(
        {{},
         attributes({"Discipline_xCreate", "Discipline_yCreate", "ArtObj_Width", "ArtObj_Height"}),
         {path("InitBound", "data", "rect", "points"), path("Control", "data", "rect", "controlpoints")}},
        {
            {{"ZQLiteraturePinyin"},
             {attributes({"ArtObj_DispHanzi", "ArtObj_HZcolor", "ArtObj_Pinyin", "ArtObj_Hanzi", "ArtObj_Color",
                          "DispGrid", "Discipline_xControl0", "Discipline_yControl0"}),
              attributesOf("ArtObj_HZFont"), attributesOf("ArtObj_Font")},
             {attribute("DispGrid"), property("ChineseWord", "Chinese word")}},
            {{"ZQLiteratureHanzibihua"}, attribute("ArtObj_HZ"), property("ChineseWord", "Chinese word")},
            {{"ZQLiteratureYinbiao"},
             {attribute("ArtObj_English"), attribute("WordAtLeft", "ArtObj_DanciPos"),
              attribute("WordHide", "ArtObj_WriteDanci")},
             {property("EnglishWord", "English word"), property("WordHide", "Hide word"),
              property("WordAtLeft", "At left")}},
            {{"ZQCommonYishuzi"}, {}, {}},
        });
    return table;
}

const TypePairs &ZQLiteratureTran::typePairs()
{
    static const TypePairs pairs{
        {"ZQLiteraturePinyin", "Chinese:pinyin"},
        {"ZQLiteratureHanzibihua", "Chinese:hanzibihua"},
        {"ZQLiteratureYinbiao", "English:yinbiao"},
    };
    return pairs;
}

ZQLiteratureTran::ZQLiteratureTran(const QString &type)
    : ZQComItemControlTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

ZQLiteratureTran::~ZQLiteratureTran() = default;

std::unique_ptr<ZQHTran> ZQLiteratureTran::create(const QString &type)
{
    const bool known = vocabulary().contains(type) || !fromTxType(type).isEmpty();
    return known ? std::make_unique<ZQLiteratureTran>(type) : nullptr;
}

QJsonObject ZQLiteratureTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    const QString type = element.nodeName();
    if (type == QLatin1String("ZQLiteraturePinyin") || type == QLatin1String("ZQLiteratureHanzibihua")) {
        return {};
    }
    json = ZQComItemControlTran::tranXML2JSON(element, json, context);
    const QLatin1String wordHide("WordHide");
    if (json.contains(wordHide)) {
        json.insert(wordHide, QStringLiteral("1"));
    }
    return json;
}

QDomElement ZQLiteratureTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate discipline(
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<discipline visible="1" locked="0" type="" uclone="0" id="">)"
                       R"(<properties><property value="" name=""/></properties>)"
                       R"(<data><rect points="" controlpoints=""/></data></discipline>)"));
    return discipline.instance();
}
