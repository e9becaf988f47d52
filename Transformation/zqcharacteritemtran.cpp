// SPDX-License-Identifier: MIT
#include "zqcharacteritemtran.h"

#include "domhelpers.h"

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        property("current_text"), property("play_time"),      property("current_background_type"),
        property("show_right"),   property("current_pinyin"), attribute("document"),
    };
    return paths;
}

} // namespace

const TypePairs &ZQCharacterItemTran::typePairs()
{
    static const TypePairs pairs{{"ZQChineseCharacterItem", "character"}};
    return pairs;
}

ZQCharacterItemTran::ZQCharacterItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    static const KeyMaps maps = keyMaps().with({}, txPaths());
    setKeyMaps(maps);
}

std::unique_ptr<ZQHTran> ZQCharacterItemTran::create(const QString &type)
{
    return type == QLatin1String("ZQChineseCharacterItem") ? std::make_unique<ZQCharacterItemTran>(type) : nullptr;
}

QDomElement ZQCharacterItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate item(
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<character visible="1" locked="0" type="" uclone="0" id="" name="">)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<data><rect points="" controlpoints=""/></data></character>)"));
    return item.instance();
}
