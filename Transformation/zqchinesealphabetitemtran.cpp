// SPDX-License-Identifier: MIT
#include "zqchinesealphabetitemtran.h"

#include "domhelpers.h"

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        path("original_alphabet", "data", "content", "original_alphabet"),
        path("notaion_type", "data", "content", "notaion_type"),
        path("brick_width", "data", "content", "brick_width"),
        path("notaion_visible", "data", "content", "notaion_visible"),
        property("play_time"),
    };
    return paths;
}

} // namespace

const TypePairs &ZQChineseAlphabetItemTran::typePairs()
{
    static const TypePairs pairs{{"ZQChineseAlphabetItem", "ZQChineseAlphabetItem"}};
    return pairs;
}

ZQChineseAlphabetItemTran::ZQChineseAlphabetItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    static const KeyMaps maps = keyMaps().with({}, txPaths());
    setKeyMaps(maps);
    foldsMatrixIntoBox = true;
}

std::unique_ptr<ZQHTran> ZQChineseAlphabetItemTran::create(const QString &type)
{
    return type == QLatin1String("ZQChineseAlphabetItem") ? std::make_unique<ZQChineseAlphabetItemTran>(type) : nullptr;
}

QDomElement ZQChineseAlphabetItemTran::tranJSON2IWB(QDomElement element, QJsonObject, QJsonObject)
{
    return element;
}

QJsonObject ZQChineseAlphabetItemTran::tranIWB2JSON(QDomElement, QJsonObject json, QJsonObject)
{
    return json;
}

QDomElement ZQChineseAlphabetItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate item(
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<pinyin_item visible="1" locked="0" type="" uclone="0" id="" name="">)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<background><picture document=""/></background>)"
                       R"(<data><rect points="" controlpoints=""/><content/></data></pinyin_item>)"));
    return item.instance();
}
