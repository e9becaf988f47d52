#include "translatorchains.h"

#include "zqgroupitemtran.h"
#include "zqmathematicstran.h"
#include "zqmediaitemtran.h"
#include "zqstrokestran.h"
#include "zqtextboxtran.h"

namespace {

using Create = std::unique_ptr<ZQHTran> (*)(const QString &type);
using MapType = QString (*)(const QString &type);

const Create itemFamilies[] = {
    ZQMathematicsTran::create,
    ZQStrokesTran::create,
    ZQMediaItemTran::create,
    ZQTextBoxTran::create,
};

const Create iwbFamilies[] = {
    ZQMathematicsTran::create,
    ZQStrokesTran::create,
    ZQMediaItemTran::create,
    ZQTextBoxTran::create,
};

const MapType toTxTypeFamilies[] = {
    ZQMathematicsTran::toTxType,
    ZQStrokesTran::toTxType,
    ZQMediaItemTran::toTxType,
    ZQGroupItemTran::toTxType,
};

const MapType fromTxTypeFamilies[] = {
    ZQMathematicsTran::fromTxType,
    ZQStrokesTran::fromTxType,
    ZQMediaItemTran::fromTxType,
    ZQGroupItemTran::fromTxType,
};

template <std::size_t N> QString firstAnswer(const MapType (&families)[N], const QString &type)
{
    for (const MapType mapType : families) {
        const QString answer = mapType(type);
        if (!answer.isEmpty()) {
            return answer;
        }
    }
    return type;
}

template <std::size_t N> std::unique_ptr<ZQHTran> firstTranslator(const Create (&families)[N], const QString &anyType)
{
    const QString type = txTypeToJsonType(anyType);
    if (type == QLatin1String("ZQGroupItem")) {
        return std::make_unique<ZQGroupItemTran>(type);
    }
    for (const Create create : families) {
        if (auto translator = create(type)) {
            return translator;
        }
    }
    return nullptr;
}

} // namespace

std::unique_ptr<ZQHTran> createTranslator(const QString &type)
{
    return firstTranslator(itemFamilies, type);
}

std::unique_ptr<ZQHTran> createIwbTranslator(const QDomDocument &, const QString &type)
{
    return firstTranslator(iwbFamilies, type);
}

QString jsonTypeToTxType(const QString &type)
{
    return firstAnswer(toTxTypeFamilies, type);
}

QString txTypeToJsonType(const QString &type)
{
    return firstAnswer(fromTxTypeFamilies, type);
}
