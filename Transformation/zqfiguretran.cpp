// SPDX-License-Identifier: MIT
#include "zqfiguretran.h"

#include "zqcomplexortran.h"

namespace {

// The corners of a connection line that has any: ArtObj_InterPoint0x, ArtObj_InterPoint0y and so on.
const int interpointCount = 20;

KeyPaths interpointProperties()
{
    KeyPaths rows;
    for (int i = 0; i < interpointCount; ++i) {
        const QByteArray point = "ArtObj_InterPoint" + QByteArray::number(i);
        const QByteArray x = point + 'x';
        const QByteArray y = point + 'y';
        rows = {rows, property(x.constData()), property(y.constData())};
    }
    return rows;
}

} // namespace

const FamilyVocabulary &ZQFigureTran::vocabulary()
{
    static const FamilyVocabulary table(
        {{}, {}, {}},
        {
            {{"ZQShapeYuntu"},
             attribute("ArtObj_Fill"),
             {property("ArtObj_Color1", "Color of edge"), property("ArtObj_Color0", "Fill Color"),
              property("ArtObj_Fill", "isFill")}},
            {{"ZQShapeFeiji"},
             attribute("ArtObj_Fill"),
             {property("ArtObj_Color0", "Color of edge"), property("ArtObj_Color1", "Fill Color"),
              property("ArtObj_Fill", "isFill")}},
            {{"ZQShapeYiduiduoshu", "ZQShapeLianjiexian"},
             {attribute("ArtObj_InterpointNumber"), coordinatePairs("ArtObj_Point", 1, 3),
              coordinatePairs("ArtObj_InterPoint", 0, interpointCount - 1)},
             {property("ArtObj_Color", "Color of edge"), property("ArtObj_InterpointNumber"),
              property("ArtObj_Point1x", "Point1x"), property("ArtObj_Point1y", "Point1y"),
              property("ArtObj_Point2x", "Point2x"), property("ArtObj_Point2y", "Point2y"),
              property("ArtObj_Point3x", "Point3x"), property("ArtObj_Point3y", "Point3y"), interpointProperties()}},
            {{"ZQShapeGeshijiantou", "ZQShapeShizixing"},
             attributes({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Type", "ArtObj_Fill"}),
             {property("ArtObj_Color1", "Color of edge"), property("ArtObj_Color0", "Fill Color"),
              properties({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Fill", "ArtObj_Type"})}},
            {{"ZQShapeJiantoubiaozhu"},
             attributes({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Mw2", "ArtObj_Mh2",
                         "ArtObj_Type", "ArtObj_Fill"}),
             {property("ArtObj_Color1", "Color of edge"), property("ArtObj_Color0", "Fill Color"),
              properties({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Mw2", "ArtObj_Mh2",
                          "ArtObj_Fill", "ArtObj_Type"})}},
            {{"ZQShapeJiankuohao", "ZQShapeFangkuohao", "ZQShapeYuankuohao"},
             attributes({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Direct"}),
             {property("ArtObj_Color0", "Color of edge"), properties({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Direct"})}},
            {{"ZQShapeHuakuohao"},
             attributes({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Mr", "ArtObj_Direct"}),
             {property("ArtObj_Color0", "Color of edge"),
              properties({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Mh1", "ArtObj_Mr", "ArtObj_Direct"})}},
            {{"ZQShapeZhixianjiantou"},
             {coordinatePairs("ArtObj_Point", 1, 2), attribute("ArtObj_Arrow")},
             {property("ArtObj_Point1x", "Point1x"), property("ArtObj_Point1y", "Point1y"),
              property("ArtObj_Point2x", "Point2x"), property("ArtObj_Point2y", "Point2y"), property("ArtObj_Arrow"),
              property("ArtObj_Color", "Color of edge")}},
            {{"ZQShapeQuxianjiantou"},
             {coordinatePairs("ArtObj_Point", 0, 3), attribute("ArtObj_Arrow")},
             {property("ArtObj_Point0x", "Point0x"), property("ArtObj_Point0y", "Point0y"),
              property("ArtObj_Point1x", "Point1x"), property("ArtObj_Point1y", "Point1y"),
              property("ArtObj_Point2x", "Point2x"), property("ArtObj_Point2y", "Point2y"),
              property("ArtObj_Point3x", "Point3x"), property("ArtObj_Point3y", "Point3y"), property("ArtObj_Arrow"),
              property("ArtObj_Color", "Color of edge")}},
            {{"ZQShapeDanbianjiantou"},
             attributes({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Type"}),
             {property("ArtObj_Color0", "Color of edge"),
              properties({"ArtObj_Mw", "ArtObj_Mh", "ArtObj_Mw1", "ArtObj_Type"})}},
        });
    return table;
}

namespace {

QHash<QString, QString> readableTypes()
{
    QHash<QString, QString> types;
    for (const QString &type : ZQFigureTran::vocabulary().types()) {
        types.insert(QLatin1String("Shape:") + type.mid(int(qstrlen("ZQShape"))).toLower(), type);
    }
    return types;
}

} // namespace

ZQFigureTran::ZQFigureTran(const QString &type)
    : ZQDisciplineItemTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QString ZQFigureTran::fromTxType(const QString &type)
{
    static const QHash<QString, QString> types = readableTypes();
    return types.value(type);
}

QJsonObject ZQFigureTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQDisciplineItemTran::tranXML2JSON(element, json, context);
    ZQComplexorTran::storeInnerMatrix(element, json);
    return json;
}

QJsonObject ZQFigureTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQDisciplineItemTran::tranZQTX2JSON(element, json, context);
    json.remove(QLatin1String("Control"));
    return json;
}
