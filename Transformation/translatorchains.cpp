#include "translatorchains.h"

#include "zqchemistrytran.h"
#include "zqcomplexortran.h"
#include "zqfiguretran.h"
#include "zqgroupitemtran.h"
#include "zqliteraturetran.h"
#include "zqmathematicstran.h"
#include "zqmediaitemtran.h"
#include "zqphysicstran.h"
#include "zqstrokestran.h"
#include "zqtextboxtran.h"

namespace {

using Create = std::unique_ptr<ZQHTran> (*)(const QString &type);
using MapType = QString (*)(const QString &type);

// Each list in the order its families are asked, one a line.
// clang-format off
const Create itemFamilies[] = {
    ZQChemistryTran::create,
    ZQComplexorTran::create,
    ZQFigureTran::create,
    ZQLiteratureTran::create,
    ZQMathematicsTran::create,
    ZQPhysicsTran::create,
    ZQStrokesTran::create,
    ZQMediaItemTran::create,
    ZQTextBoxTran::create,
};

const Create iwbFamilies[] = {
    ZQChemistryTran::create,
    ZQComplexorTran::create,
    ZQFigureTran::create,
    ZQLiteratureTran::create,
    ZQMathematicsTran::create,
    ZQPhysicsTran::create,
    ZQStrokesTran::create,
    ZQMediaItemTran::create,
    ZQTextBoxTran::create,
};

const MapType toTxTypeFamilies[] = {
    ZQMathematicsTran::toTxType,
    ZQChemistryTran::toTxType,
    ZQPhysicsTran::toTxType,
    ZQStrokesTran::toTxType,
    ZQMediaItemTran::toTxType,
    ZQComplexorTran::toTxType,
    ZQGroupItemTran::toTxType,
    ZQLiteratureTran::toTxType,
};

const MapType fromTxTypeFamilies[] = {
    ZQMathematicsTran::fromTxType,
    ZQChemistryTran::fromTxType,
    ZQPhysicsTran::fromTxType,
    ZQStrokesTran::fromTxType,
    ZQMediaItemTran::fromTxType,
    ZQComplexorTran::fromTxType,
    ZQLiteratureTran::fromTxType,
    ZQFigureTran::fromTxType,
    ZQGroupItemTran::fromTxType,
};
// clang-format on

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
