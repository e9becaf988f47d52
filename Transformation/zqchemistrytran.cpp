// SPDX-License-Identifier: MIT
#include "zqchemistrytran.h"

const FamilyVocabulary &ZQChemistryTran::vocabulary()
{
    static const KeyPaths withoutVessel = {
        without("ArtObj_DisplayLiquid"),
        without("ArtObj_LiquidColor"),
        without("ArtObj_Mh"),
        without("ArtObj_Mw"),
    };
    static const FamilyVocabulary table(
        {{},
         attributes({"ArtObj_DisplayLiquid", "ArtObj_Mh", "ArtObj_Mw", "XScale"}),
         {property("ArtObj_DisplayLiquid", "Filled with liquid"), property("ArtObj_LiquidColor", "Color of liquid"),
          property("ArtObj_Mh", "m_h"), property("ArtObj_Mw", "m_x")}},
        {
            {{"ZQChemistryShaobei"}, attribute("ArtObj_Direct"), property("ArtObj_Direct", "Opening direction")},
            {{"ZQChemistryShiJiPing", "ZQChemistryYinLiuGuan"}, {}, property("ArtObj_Color", "Color of liquid")},
            {{"ZQChemistryHuoyan"},
             {},
             {property("ArtObj_Color0", "Outer flame color"), property("ArtObj_Color1", "Inner flame color"),
              property("ArtObj_Color2", "Flame core color")}},
            {{"ZQChemistryJDiDingGuan"}, {}, property("ArtObj_Switch", "Switch is on or off")},
            {{"ZQChemistryJiujingdeng"},
             attributes({"ArtObj_Cap", "ArtObj_Fire"}),
             {property("ArtObj_Cap", "With lampshade"), property("ArtObj_Fire", "With Fire"),
              property("ArtObj_DisplayLiquid", "With alcohol inside"), property("ArtObj_LiquidColor", "Alohol color")}},
            {{"ZQChemistryQiuxingfenyeloudou"},
             attributes({"ArtObj_Display1", "ArtObj_Display2", "ArtObj_Display3", "ArtObj_Mh1", "ArtObj_Switch"}),
             {withoutVessel, property("ArtObj_Display1", "Show the underlayer liquid"),
              property("ArtObj_Color0", "Color of underlayer liquid"), property("ArtObj_Display2", "Show upper liquid"),
              property("ArtObj_Color1", "Color of upperlayer liquid"),
              property("ArtObj_Display3", "Filled with liquid"), property("ArtObj_Switch", "Switch is on or off")}},
            {{"ZQChemistryQipufashengqi"},
             attributes({"ArtObj_Display1", "ArtObj_Display2", "ArtObj_Display3", "ArtObj_Switch"}),
             {withoutVessel, property("ArtObj_Display1", "Show liquid 1"), property("ArtObj_Display2", "Show liquid 2"),
              property("ArtObj_Display3", "Show solid reactant"), property("ArtObj_Switch", "Switch is on or off"),
              property("ArtObj_Color0", "Liquid color 1"), property("ArtObj_Color1", "Liquid color 2"),
              property("ArtObj_Color2", "Color of solid reactant")}},
            {{"ZQChemistryYuanzijiegoushiyitu"},
             attributes({"ArtObj_Layer", "ArtObj_Layer0", "ArtObj_Layer1", "ArtObj_Layer2", "ArtObj_Layer3",
                         "ArtObj_Layer4", "ArtObj_Layer5", "ArtObj_Layer6", "ArtObj_Color1"}),
             {}},
            {{"ZQChemistryMuKuai"}, {}, property("ArtObj_Color0", "Color")},
            {{"ZQChemistryJian", "ZQChemistryShuangxianqiao"},
             attribute("ArtObj_Type"),
             {withoutVessel, property("ArtObj_Type", "Type"), property("ArtObj_Color0", "Color of edge")}},
            {{"ZQChemistryMuSai"}, {}, property("ArtObj_Color", "Color of edge")},
            {{"ZQChemistryBenhuan"},
             attributes({"ArtObj_Type", "ArtObj_Fill"}),
             {property("ArtObj_Type", "Benzene"), property("ArtObj_Fill", "Be filled"),
              property("ArtObj_Color0", "Color of edge"), property("ArtObj_Color1", "Fill color")}},
            {{"ZQChemistryLiangtongliangbei"},
             attributes({"ArtObj_Type", "ArtObj_Direct"}),
             {property("ArtObj_Type", "Type"), property("ArtObj_Direct", "Opening direction")}},
            {{"ZQChemistryFlask"},
             attributes({"ArtObj_Mr", "ArtObj_Ms", "ArtObj_Mx", "Discipline_xControl0", "Discipline_yControl0",
                         "Discipline_xControl1", "Discipline_yControl1", "Discipline_xControl2", "Discipline_yControl2",
                         "Discipline_xControl3", "Discipline_yControl3", "Discipline_xControl4",
                         "Discipline_yControl4"}),
             {}},
            {{"ZQChemistryTiejiatai"},
             attribute("ArtObj_DisplayX"),
             {withoutVessel, property("ArtObj_DisplayX", "With the hoop")}},
            {{"ZQChemistryGuZhuangWu"}, {}, property("ArtObj_Color", "Color")},
            {{"ZQChemistryFenYeLouDouA"},
             attributes({"ArtObj_Display1", "ArtObj_Display2", "ArtObj_Display3", "ArtObj_Mh1", "ArtObj_Switch"}),
             {property("ArtObj_Display1", "Show the underlayer liquid"),
              property("ArtObj_LiquidColor1", "Color of underlayer liquid"),
              property("ArtObj_Display2", "Show upper liquid"),
              property("ArtObj_LiquidColor0", "Color of upperlayer liquid"),
              property("ArtObj_Display3", "Filled with liquid"), property("ArtObj_Switch", "Switch is on or off")}},
            {{"ZQChemistryXiangPiGuan"},
             attributes({"ArtObj_Position0", "ArtObj_Position1", "ArtObj_Position2", "ArtObj_Position3"}),
             {without("ArtObj_DisplayLiquid"), without("ArtObj_LiquidColor"), property("ArtObj_Color", "Color")}},
            {{"ZQChemistryQiPao"},
             attributes({"ArtObj_Color", "ArtObj_Speed", "ArtObj_Display"}),
             property("ArtObj_Color", "Bubble Color")},
            {{"ZQChemistryBianJiQi"}, {}, property("Formula")},
            {{"ZQChemistryShiguan",         "ZQChemistryShuiCao",       "ZQChemistryShuiDi",
              "ZQChemistryJiQiPing",        "ZQChemistryGanZaoQiu",     "ZQChemistryUXingGuan",
              "ZQChemistryRongLiangPing",   "ZQChemistryFama",          "ZQChemistryYaoShi",
              "ZQChemistryLouDou",          "ZQChemistryZhengFaMin",    "ZQChemistryBoLiSai",
              "ZQChemistryChangJingLouDou", "ZQChemistryBoLiDaoGuan",   "ZQChemistrySDiDingGuan",
              "ZQChemistryWenDuJi",         "ZQChemistryBoLiGuan",      "ZQChemistryJiaoTouDiGuan",
              "ZQChemistryQujingzhen",      "ZQChemistryRanShaoShi",    "ZQChemistrySanJiaoJia",
              "ZQChemistryLenNingGuan",     "ZQChemistryDiDingGuanJia", "ZQChemistryZhuiXingPing",
              "ZQChemistryNieZi",           "ZQChemistryTianping",      "ZQChemistryShiGuanJia1",
              "ZQChemistryFlask1",          "ZQChemistryShiMianWang",   "ZQChemistryBoLiBang",
              "ZQChemistryQLBoLiDaoGuan",   "ZQChemistryShiGuanJia",    "ZQChemistryExpressions"},
             {},
             {}},
        });
    return table;
}

namespace {

// The way from ZQTX types back to item types.
QHash<QString, QString> readableTypes()
{
    QHash<QString, QString> types;
    for (const QString &type : ZQChemistryTran::vocabulary().types()) {
        types.insert(ZQChemistryTran::toTxType(type), type);
    }
    types.remove(QStringLiteral("Chemistry:expressions"));
    return types;
}

} // namespace

ZQChemistryTran::ZQChemistryTran(const QString &type)
    : ZQDisciplineItemTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QString ZQChemistryTran::toTxType(const QString &type)
{
    if (!type.contains(QLatin1String("ZQChemistry"))) {
        return {};
    }
    return type.toLower().replace(QLatin1String("zqchemistry"), QLatin1String("Chemistry:"));
}

QString ZQChemistryTran::fromTxType(const QString &type)
{
    static const QHash<QString, QString> types = readableTypes();
    return types.value(type);
}
