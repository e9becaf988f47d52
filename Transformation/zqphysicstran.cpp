// SPDX-License-Identifier: MIT
#include "zqphysicstran.h"

const FamilyVocabulary &ZQPhysicsTran::vocabulary()
{
    static const FamilyVocabulary table(
        {{}, {}, property("ArtObj_Color0", "Color of edge")},
        {
            {{"ZQPhysicsSanjiaoxiemian"},
             {coordinatePair("ArtObj_Pointh"), coordinatePair("ArtObj_Pointw"), attribute("ArtObj_Display")},
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Display", "Show Angle")}},
            {{"ZQPhysicsAnpeibiao", "ZQPhysicsDianLiuJi", "ZQPhysicsFutebiao"},
             coordinatePair("ArtObj_Point"),
             property("ArtObj_Color", "Color of edge")},
            {{"ZQPhysicsAoCao"},
             attributes({"ArtObj_Fill", "ArtObj_Thick1", "ArtObj_Thick2", "ArtObj_Thick3", "ArtObj_Thick4"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Fill", "Be fill")}},
            {{"ZQPhysicsAotoujing"},
             attributes({"ArtObj_Mw", "ArtObj_Mx", "ArtObj_Mh"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Color0", "Fill color")}},
            {{"ZQPhysicsBanAoTouJing"},
             attributes({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mx", "ArtObj_Direct"}),
             {property("ArtObj_Direct", "Type"), property("ArtObj_Color1", "Color of edge")}},
            {{"ZQPhysicsBanTuTouJing"},
             attributes({"ArtObj_Mh", "ArtObj_Mh1", "ArtObj_Mh2", "ArtObj_Mw", "ArtObj_Mw1", "ArtObj_Direct"}),
             {property("ArtObj_Color1", "Color of edge"), property("ArtObj_Direct", "Type")}},
            {{"ZQPhysicsChuanSongDai"},
             attributes({"ArtObj_Mr", "ArtObj_Length", "ArtObj_Fill"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Fill", "Be filled")}},
            {{"ZQPhysicsCiChang"},
             {coordinatePair("ArtObj_Point"), attribute("ArtObj_Direct")},
             property("ArtObj_Direct", "Magnetic field direction")},
            {{"ZQPhysicsHuaLun"},
             {attributes({"ArtObj_Hook", "ArtObj_Mw", "ArtObj_Mr"}), coordinatePair("ArtObj_Point")},
             {property("ArtObj_Color1", "Color of pulley"), property("ArtObj_Hook", "Hook")}},
            {{"ZQPhysicsHuaLunz"},
             attributes({"ArtObj_Mw", "ArtObj_Mw1", "ArtObj_Mw2", "ArtObj_Hook"}),
             property("ArtObj_Color1", "Fill color")},
            {{"ZQPhysicsHuaLunza"},
             attributes({"ArtObj_Mw", "ArtObj_Mw1", "ArtObj_Hook"}),
             property("ArtObj_Color1", "Fill color")},
            {{"ZQPhysicsDaoxian"},
             {attribute("ArtObj_Style"), coordinatePairs("ArtObj_Point", 0, 3)},
             property("ArtObj_Color0", "Color of wire")},
            {{"ZQPhysicsDianChang"},
             {attributes({"ArtObj_Text", "ArtObj_Direct"}), coordinatePair("ArtObj_Point")},
             property("ArtObj_Direct", "Current direction")},
            {{"ZQPhysicsDianChi"},
             attributes({"ArtObj_Text", "ArtObj_RememberText", "ArtObj_Sound"}),
             {property("ArtObj_Color1", "Font color"), property("ArtObj_Text", "Text"),
              property("ArtObj_RememberText", "RememberText")}},
            {{"ZQPhysicsDianChiZu", "ZQPhysicsDianZu"},
             attributes({"ArtObj_Text", "ArtObj_RememberText"}),
             {property("ArtObj_Color1", "Font color"), property("ArtObj_Text", "Text"),
              property("ArtObj_RememberText", "RememberText")}},
            {{"ZQPhysicsDiandeng"},
             attribute("ArtObj_Mw"),
             {property("ArtObj_Color1", "Color when light is on"), property("ArtObj_Mw", "Light is on")}},
            {{"ZQPhysicsDianHe"},
             {attributes({"ArtObj_Mw", "ArtObj_Prop", "ArtObj_Direct"}),
              childAttribute("ArtObj_PointX", "ArtObj_Point", "x"),
              childAttribute("ArtObj_PointY", "ArtObj_Point", "y")},
             {}},
            {{"ZQPhysicsDianLing"}, attribute("ArtObj_Sound"), property("ArtObj_Sound", "Electric bell")},
            {{"ZQPhysicsDianRong"},
             attributes({"ArtObj_Text", "ArtObj_RememberText"}),
             {property("ArtObj_Color1", "Text color"), property("ArtObj_Text", "Text"),
              property("ArtObj_RememberText", "RememberText")}},
            {{"ZQPhysicsDianZi"},
             {attributes({"ArtObj_Mw", "ArtObj_Prop", "ArtObj_Direct"}),
              childAttribute("ArtObj_PointX", "ArtObj_Point", "x"),
              childAttribute("ArtObj_PointY", "ArtObj_Point", "y")},
             {property("ArtObj_Prop", "Positron-electron"), property("ArtObj_Direct", "Show direction or not")}},
            {{"ZQPhysicsGanggan"}, {attribute("ArtObj_Mh"), coordinatePairs("ArtObj_Point", 0, 1)}, {}},
            {{"ZQPhysicsGouma"},
             attributes({"ArtObj_Hook", "ArtObj_Mw", "ArtObj_Mh"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Hook", "Hook")}},
            {{"ZQPhysicsGuangxuezhijia"},
             attributes({"ArtObj_Mh", "ArtObj_State"}),
             property("ArtObj_State", "Bracket location")},
            {{"ZQPhysicsHuadongbianzuqi"},
             attributes({"ArtObj_Mw", "ArtObj_Text", "ArtObj_RememberText"}),
             {property("ArtObj_Text", "Text"), property("ArtObj_RememberText", "RememberText")}},
            {{"ZQPhysicsHuaDongBianZuQi2"},
             attributes({"ArtObj_Text", "ArtObj_RememberText", "ArtObj_Mx"}),
             {property("ArtObj_Text", "Text"), property("ArtObj_RememberText", "RememberText")}},
            {{"ZQPhysicsJuLi"},
             attributes({"ArtObj_Mode", "ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Text"}),
             {property("ArtObj_Mode", "Drawing mode"), property("ArtObj_Text", "Lable text")}},
            {{"ZQPhysicsKaiguan"},
             {attribute("ArtObj_Mw"), coordinatePair("ArtObj_Point")},
             {property("ArtObj_Color1", "FillColor"), property("ArtObj_Mw", "Close")}},
            {{"ZQPhysicsKaiGuan1"}, attribute("ArtObj_Switch"), property("ArtObj_Switch", "Switch is closed")},
            {{"ZQPhysicsKaiGuan2"}, attribute("ArtObj_Switch"), property("ArtObj_Switch", "Switch status")},
            {{"ZQPhysicsLazhu"},
             attributes({"ArtObj_Mh", "ArtObj_DisplayFire"}),
             property("ArtObj_DisplayFire", "Show flame")},
            {{"ZQPhysicsKeDuChaKan"},
             {attributes({"ArtObj_Mh1", "ArtObj_Mh", "ArtObj_Mp", "ArtObj_Mk"}), coordinatePair("ArtObj_Point")},
             {property("ArtObj_Color1", "Color of scale"), property("ArtObj_Mh", "Scale"),
              property("ArtObj_Mh1", "Scale starting point"), property("ArtObj_Mp", "Scale value of each grid"),
              property("ArtObj_Mk", "Number of decimal places retained")}},
            {{"ZQPhysicsLuoXuanJiang"},
             attribute("ArtObj_Fill"),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Fill", "Be fill")}},
            {{"ZQPhysicsMuBang"},
             {attribute("ArtObj_Mh"), coordinatePair("ArtObj_Point")},
             property("ArtObj_Color1", "Fill color")},
            {{"ZQPhysicsMuKuai", "ZQPhysicsXiaoChe"},
             coordinatePair("ArtObj_Point"),
             property("ArtObj_Color1", "Fill color")},
            {{"ZQPhysicsPingMian"}, attributes({"ArtObj_Mw", "ArtObj_Mh"}), property("ArtObj_Color1", "Fill color")},
            {{"ZQPhysicsQiGang"},
             attributes({"ArtObj_Pointhx", "ArtObj_Pointhy", "ArtObj_Pointwx", "ArtObj_Pointwy", "ArtObj_Pointxx",
                         "ArtObj_Pointxy"}),
             property("ArtObj_Color1", "Cylinder filled with color")},
            {{"ZQPhysicsSuiYiBiao"},
             {coordinatePair("ArtObj_Point"), attributes({"ArtObj_Range", "ArtObj_Text"})},
             property("ArtObj_Color", "Color of edge")},
            {{"ZQPhysicsTanHuang"}, attributes({"ArtObj_Mh", "ArtObj_Hook"}), {}},
            {{"ZQPhysicsTanhuangcheng"}, attribute("ArtObj_Mh"), property("ArtObj_Color1", "Fill color")},
            {{"ZQPhysicsTiaoXingCiTie"},
             attributes({"ArtObj_Length", "ArtObj_Height"}),
             {property("ArtObj_Color0", "N pole color"), property("ArtObj_Color1", "S pole color")}},
            {{"ZQPhysicsTieXin"},
             attributes({"ArtObj_Mw", "ArtObj_Mw1", "ArtObj_Mh", "ArtObj_Mh1"}),
             property("ArtObj_Color0", "Fill color")},
            {{"ZQPhysicsTutoujing"},
             attributes({"ArtObj_Mw", "ArtObj_Mh"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Color0", "Fill color")}},
            {{"ZQPhysicsUXingCiTie"},
             {attributes({"ArtObj_Mr", "ArtObj_Height"}), without("ArtObj_Width")},
             {property("ArtObj_Color0", "N pole color"), property("ArtObj_Color1", "S pole color"),
              property("ArtObj_Mr", "m_r")}},
            {{"ZQPhysicsUXingGuan"},
             attributes({"ArtObj_Mx", "ArtObj_Mh", "ArtObj_Mx1", "ArtObj_DisplayLiquid"}),
             property("ArtObj_LiquidColor", "Liquid color")},
            {{"ZQPhysicsXianQuan"},
             attributes({"ArtObj_Mx", "ArtObj_Mh", "ArtObj_Direct"}),
             property("ArtObj_Mx", "Number of force groups")},
            {{"ZQPhysicsXianQuanA"},
             attributes({"ArtObj_Mh", "ArtObj_Mh1", "ArtObj_Mh2", "ArtObj_Mw", "ArtObj_Mw1", "ArtObj_Direct"}),
             {property("ArtObj_Color1", "Color of edge"), property("ArtObj_Direct", "Current direction")}},
            {{"ZQPhysicsXiaocizhen"},
             {attributes({"ArtObj_Mh", "ArtObj_Nog"}), coordinatePairs("ArtObj_Point", 0, 1)},
             property("ArtObj_Nog", "With bracket")},
            {{"ZQPhysicsXiaoqiu"},
             {attributes({"ArtObj_Mw", "ArtObj_DisplayLight"}), childAttribute("ArtObj_PointX", "ArtObj_Point", "x"),
              childAttribute("ArtObj_PointY", "ArtObj_Point", "y")},
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_DisplayLight", "Show hightlight")}},
            {{"ZQPhysicsXieMian"},
             {coordinatePair("ArtObj_Pointh"), coordinatePair("ArtObj_Pointw"), attribute("ArtObj_Display")},
             property("ArtObj_Display", "Display angle")},
            {{"ZQPhysicsXuanNiu"}, coordinatePair("ArtObj_Point"), {}},
            {{"ZQPhysicsYoubiaokachi"},
             attributes({"Discipline_Width", "Discipline_Mh", "Discipline_Grid"}),
             {property("DisciplineObj_Color0", "Color of edge"), property("DisciplineObj_Color1", "Color of edge1")}},
            {{"ZQPhysicsYuanCao"},
             attributes({"ArtObj_Fill", "ArtObj_Thick", "ArtObj_Mr"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Fill", "Be fill")}},
            {{"ZQPhysicsZhiChi"},
             attributes({"Discipline_Unit", "Discipline_Mh"}),
             {property("ArtObj_Color1", "Scale line color"), property("Discipline_Unit", "Unit")}},
            {{"ZQPhysicsYuanhuhuaban"},
             attributes({"ArtObj_Fill", "ArtObj_Thick", "ArtObj_Mr", "ArtObj_Length"}),
             {property("ArtObj_Color1", "Fill color"), property("ArtObj_Fill", "Be fill")}},
            {{"ZQPhysicsLi"},
             {attribute("ArtObj_Power"), coordinatePairs("ArtObj_Point", 0, 9)},
             property("ArtObj_Power", "Number of force groups")},
            {{"ZQPhysicsAnPere", "ZQPhysicsVot", "ZQPhysicsJieDi", "ZQPhysicsTuTouJing1", "ZQPhysicsAoTouJing1",
              "ZQPhysicsLaBa", "ZQPhysicsZLDianDongJi", "ZQPhysicsJLDianDongJi", "ZQPhysicsXDianChi",
              "ZQPhysicsDianDeng2"},
             {},
             {}},
        });
    return table;
}

namespace {

// The item types by their folded names.
QHash<QString, QString> foldedTypes()
{
    QHash<QString, QString> types;
    for (const QString &type : ZQPhysicsTran::vocabulary().types()) {
        types.insert(type.toCaseFolded(), type);
    }
    return types;
}

} // namespace

ZQPhysicsTran::ZQPhysicsTran(const QString &type)
    : ZQDisciplineItemTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QString ZQPhysicsTran::toTxType(const QString &type)
{
    if (!type.contains(QLatin1String("ZQPhysics"))) {
        return {};
    }
    return type.toLower().replace(QLatin1String("zqphysics"), QLatin1String("Physics:"));
}

QString ZQPhysicsTran::fromTxType(const QString &type)
{
    if (!type.contains(QLatin1String("Physics:"))) {
        return {};
    }
    static const QHash<QString, QString> types = foldedTypes();
    return types.value(type.toLower().replace(QLatin1String("physics:"), QLatin1String("zqphysics")).toCaseFolded());
}
