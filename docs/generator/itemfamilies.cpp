// SPDX-License-Identifier: MIT
#include "itemfamilies.h"

#include "translatorchains.h"
#include "zqactivityitemtran.h"
#include "zqbasicgraphitemtran.h"
#include "zqchemistrytran.h"
#include "zqcomplexortran.h"
#include "zqfiguretran.h"
#include "zqgentooltran.h"
#include "zqliteraturetran.h"
#include "zqmathematicstran.h"
#include "zqmathsubjecttran.h"
#include "zqmediaitemtran.h"
#include "zqphysicstran.h"
#include "zqprestran.h"
#include "zqslidetran.h"
#include "zqstrokestran.h"
#include "zqtextboxtran.h"

namespace {

// The way to the maps of any translator, for who isn't a translator.
class MapsOf : public ZQHTran
{
public:
    static KeyPlaces read(const ZQHTran &translator)
    {
        return {translator.*(&MapsOf::xmlKeyMap), translator.*(&MapsOf::txKeyMap), translator.*(&MapsOf::iwbKeyMap)};
    }
};

class ColorKeysOf : public ZQDisciplineItemTran
{
public:
    static QStringList read(const ZQDisciplineItemTran &translator) { return translator.*(&ColorKeysOf::colorKeys); }
};

// Types that the family knows by a part of their names.
QStringList activityTypes()
{
    return ZQActivityItemTran::types()
        + QStringList{
            QStringLiteral("ZQActiveMaterialStudent1Item"),       QStringLiteral("ZQActiveMaterialStudent2Item"),
            QStringLiteral("ZQActiveMaterialMarkPKItem"),         QStringLiteral("ZQActiveMaterialMarkTipItem"),
            QStringLiteral("ZQActiveMaterialComparisonItem"),     QStringLiteral("ZQActiveContainerComparisonItem"),
            QStringLiteral("ZQActivityPronunciationTestTipItem"), QStringLiteral("ZQActivityPronunciationTestTextItem"),
        };
}

} // namespace

QStringList KeyPlaces::keys() const
{
    QStringList all = xml.keys() + tx.keys() + iwb.keys();
    all.removeDuplicates();
    all.sort();
    return all;
}

const QVector<TitledTypes> &itemFamilies()
{
    static const QVector<TitledTypes> families{
        {QStringLiteral("Strokes"), ZQStrokesTran::types()},
        {QStringLiteral("Text boards"), ZQTextBoxTran::types()},
        {QStringLiteral("Pictures, films, sounds and documents"), ZQMediaItemTran::types()},
        {QStringLiteral("Groups"), {QStringLiteral("ZQGroupItem")}},
        {QStringLiteral("Mathematics"), ZQMathematicsTran::types()},
        {QStringLiteral("Physics"), ZQPhysicsTran::types()},
        {QStringLiteral("Chemistry"), ZQChemistryTran::types()},
        {QStringLiteral("Vector shapes"), ZQComplexorTran::types()},
        {QStringLiteral("Figures"), ZQFigureTran::types()},
        {QStringLiteral("Literature"), ZQLiteratureTran::types()},
        {QStringLiteral("General tools"), ZQGenToolTran::types()},
        {QStringLiteral("Mind maps"), {QStringLiteral("ZQMindMapItem")}},
        {QStringLiteral("Basic graphs"), ZQBasicGraphItemTran::types()},
        {QStringLiteral("Activity items"), activityTypes()},
        {QStringLiteral("Words and letters"),
         {QStringLiteral("ZQChineseCharacterItem"), QStringLiteral("ZQWordLatticeItem"),
          QStringLiteral("ZQChinesePhoneticItem"), QStringLiteral("ZQChineseAlphabetItem")}},
        {QStringLiteral("Mathematics subject"), ZQMathSubjectTran::types()},
        {QStringLiteral("Questions"), {QStringLiteral("ZQQuestionItem")}},
    };
    return families;
}

bool isModelType(const QString &type)
{
    return txTypeToJsonType(type) == type;
}

KeyPlaces keyMapsOfType(const QString &type)
{
    const auto translator = createTranslator(type);
    if (!translator) {
        qFatal("No translator serves the type %s.", qPrintable(type));
    }
    return MapsOf::read(*translator);
}

KeyPlaces keyMapsOfEveryItem()
{
    return MapsOf::read(ZQComItemControlTran({}));
}

KeyPlaces keyMapsOfSubjects()
{
    return MapsOf::read(ZQDisciplineItemTran({}));
}

bool isSubjectType(const QString &type)
{
    return dynamic_cast<ZQDisciplineItemTran *>(createTranslator(type).get());
}

QStringList subjectColorKeys()
{
    return ColorKeysOf::read(ZQDisciplineItemTran({}));
}

KeyPlaces keyMapsOfSlide()
{
    return MapsOf::read(ZQSlideTran());
}

KeyPlaces keyMapsOfPresentation()
{
    return MapsOf::read(ZQPresTran());
}
