// SPDX-License-Identifier: MIT
#include "zqwordlatticeitemtran.h"

#include "domhelpers.h"

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        property("Text"),
        property("FontSize"),
        property("TextWidth"),
    };
    return paths;
}

} // namespace

const TypePairs &ZQWordLatticeItemTran::typePairs()
{
    static const TypePairs pairs{{"ZQWordLatticeItem", "wordlattice"}};
    return pairs;
}

ZQWordLatticeItemTran::ZQWordLatticeItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    static const KeyMaps maps = keyMaps().with({}, txPaths());
    setKeyMaps(maps);
}

std::unique_ptr<ZQHTran> ZQWordLatticeItemTran::create(const QString &type)
{
    return type == QLatin1String("ZQWordLatticeItem") ? std::make_unique<ZQWordLatticeItemTran>(type) : nullptr;
}

QDomElement ZQWordLatticeItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate item(
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<wordlattice visible="1" locked="0" type="" uclone="0" id="" name="">)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<data><rect points="" controlpoints=""/></data></wordlattice>)"));
    return item.instance();
}
