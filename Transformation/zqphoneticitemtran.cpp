// SPDX-License-Identifier: MIT
#include "zqphoneticitemtran.h"

#include "domhelpers.h"
#include "keypaths.h"

namespace {

const KeyPaths &txPaths()
{
    static const KeyPaths paths = {
        path("TextPhonetic", "data", "content", "text"),
        path("BoundingBox", "data", "rect", "points"),
        property("Fill_Color", "Fill color"),
        property("Opacity"),
    };
    return paths;
}

} // namespace

ZQPhoneticItemTran::ZQPhoneticItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    static const KeyMaps maps = keyMaps().with({}, txPaths());
    setKeyMaps(maps);
}

std::unique_ptr<ZQHTran> ZQPhoneticItemTran::create(const QString &type)
{
    return type == QLatin1String("ZQChinesePhoneticItem") ? std::make_unique<ZQPhoneticItemTran>(type) : nullptr;
}

QDomElement ZQPhoneticItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate item(
        QStringLiteral(R"(<phonetic id="" visible="1" locked="0" uclone="0"  type="phonetic">)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<data><content text="" type="text"/><rect points="" controlpoints=""/></data></phonetic>)"));
    return item.instance();
}
