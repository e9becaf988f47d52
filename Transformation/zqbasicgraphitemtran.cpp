// SPDX-License-Identifier: MIT
#include "zqbasicgraphitemtran.h"

#include "domhelpers.h"

const FamilyVocabulary &ZQBasicGraphItemTran::vocabulary()
{
    static const KeyPaths shapeRows = {
        property("ArtObj_Mode"),
        property("ArtObj_Width"),
        property("LineColor", "Color"),
        property("ArtObj_Color", "Fill color"),
        property("ArtObj_Fill", "Be filled"),
        property("ArtObj_Color1"),
        path("TextHtml", "data", "content", "text"),
    };
    static const KeyPaths controlPoints = path("Control", "data", "rect", "controlpoints");
    static const FamilyVocabulary table(
        {{},
         {childAttribute("FillType", "ArtObj_Color", "FileType"),
          childAttribute("FillTypeF", "ArtObj_FillColor", "FileType"), attribute("ArtObj_Fill"),
          attribute("ArtObj_Mode")},
         {}},
        {
            {{"ZQBasicPentacleItem",       "ZQBasicHeartShapeItem",  "ZQBasicPlusItem",        "ZQBasicMinusItem",
              "ZQBasicMultiplicationItem", "ZQBasicDivisionItem",    "ZQBasicFlagItem",        "ZQBasicDialog1Item",
              "ZQBasicDialog2Item",        "ZQBasicSingleArrowItem", "ZQBasicDoubleArrowItem", "ZQBasicBraceItem",
              "ZQBasicBracketItem",        "ZQBasicEqualItem",       "ZQBasicUnequalItem",     "ZQBasicRightItem",
              "ZQBasicWrongItem",          "ZQBasicEllipseItem",     "ZQBasicRectangleItem",   "ZQBasicRhombusItem",
              "ZQBasicNormalItem"},
             {attribute("ArtObj_Display"), attribute("ArtObj_Center"), attribute("ArtObj_Unit")},
             shapeRows},
            {{"ZQBasicTriangleItem", "ZQBasicTrapezoidItem", "ZQBasicParallelogramItem"},
             {},
             {shapeRows, controlPoints}},
            {{"ZQBasicSegmentItem"},
             {attribute("ArtObj_Point1"), attribute("ArtObj_Point2"), attribute("Width", "ArtObj_Width"),
              attribute("ArtObj_ArrowType"), attribute("ArtObj_Style")},
             {property("LineColor", "Color"), property("ArtObj_Point1"), property("ArtObj_Point2"),
              property("ArtObj_ArrowType"), property("ArtObj_Style"), property("ArtObj_Width"), controlPoints}},
            {{"ZQBasicFreeDraw"},
             {},
             {property("LineColor", "FreeItem_LineColor"), property("FreeItem_FillControlColor"),
              property("ArtObject_LineMode", "FreeItem_LineStyle"), property("FreeItem_PtnPosVec"),
              property("FreeItem_PtnElemLenVec"), property("FreeItem_PtnConinueVec"), property("Opacity")}},
        });
    return table;
}

namespace {

// The type of the table whose line serves a type, or the empty text. Some types only need to contain a name.
QString servingType(const QString &type)
{
    if (ZQBasicGraphItemTran::vocabulary().contains(type)) {
        return type;
    }
    for (const QString &name : {QStringLiteral("ZQBasicNormalItem"), QStringLiteral("ZQBasicSegmentItem"),
                                QStringLiteral("ZQBasicFreeDraw")}) {
        if (type.contains(name)) {
            return name;
        }
    }
    return {};
}

} // namespace

ZQBasicGraphItemTran::ZQBasicGraphItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    setKeyMaps(vocabulary().keyMaps(servingType(type), keyMaps()));
}

std::unique_ptr<ZQHTran> ZQBasicGraphItemTran::create(const QString &type)
{
    return servingType(type).isEmpty() ? nullptr : std::make_unique<ZQBasicGraphItemTran>(type);
}

QDomElement ZQBasicGraphItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate graph(
        QStringLiteral(R"(<basicgraph id="" visible="1" locked="0" uclone="0"  type="basicgraph">)"
                       R"(<transform><rotate angle="0"/></transform><data><rect points="" controlpoints="" />)"
                       R"(<content text="" type="html"/></data></basicgraph>)"));
    return graph.instance();
}
