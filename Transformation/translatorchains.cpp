// SPDX-License-Identifier: MIT
#include "translatorchains.h"

#include "zqactivityitemtran.h"
#include "zqbasicgraphitemtran.h"
#include "zqcharacteritemtran.h"
#include "zqchemistrytran.h"
#include "zqchinesealphabetitemtran.h"
#include "zqcomplexortran.h"
#include "zqfiguretran.h"
#include "zqgentooltran.h"
#include "zqgroupitemtran.h"
#include "zqliteraturetran.h"
#include "zqmathematicstran.h"
#include "zqmathsubjecttran.h"
#include "zqmediaitemtran.h"
#include "zqmindmaptran.h"
#include "zqphoneticitemtran.h"
#include "zqphysicstran.h"
#include "zqquestionsitemtran.h"
#include "zqstrokestran.h"
#include "zqtextboxtran.h"
#include "zqwordlatticeitemtran.h"

namespace {

using Create = std::unique_ptr<ZQHTran> (*)(const QString &type);
using MapType = QString (*)(const QString &type);

// Each list in the order in which its families are asked, one a line.
// clang-format off
const Create itemFamilies[] = {
    ZQActivityItemTran::create,
    ZQChemistryTran::create,
    ZQComplexorTran::create,
    ZQFigureTran::create,
    ZQLiteratureTran::create,
    ZQMathematicsTran::create,
    ZQPhysicsTran::create,
    ZQStrokesTran::create,
    ZQMediaItemTran::create,
    ZQTextBoxTran::create,
    ZQGenToolTran::create,
    ZQMindMapTran::create,
    ZQBasicGraphItemTran::create,
    ZQCharacterItemTran::create,
    ZQChineseAlphabetItemTran::create,
    ZQMathSubjectTran::create,
    ZQWordLatticeItemTran::create,
    ZQPhoneticItemTran::create,
    ZQQuestionsItemTran::create,
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
    ZQGenToolTran::create,
    ZQMindMapTran::create,
    ZQQuestionsItemTran::create,
};

const MapType toTxTypeFamilies[] = {
    ZQWordLatticeItemTran::toTxType,
    ZQChineseAlphabetItemTran::toTxType,
    ZQCharacterItemTran::toTxType,
    ZQMathSubjectTran::toTxType,
    ZQActivityItemTran::toTxType,
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
    ZQWordLatticeItemTran::fromTxType,
    ZQChineseAlphabetItemTran::fromTxType,
    ZQCharacterItemTran::fromTxType,
    ZQMathSubjectTran::fromTxType,
    ZQActivityItemTran::fromTxType,
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
        QString answer = mapType(type);
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
