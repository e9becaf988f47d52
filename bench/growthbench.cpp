// SPDX-License-Identifier: MIT
#include "ratiobench.h"

#include <QDomDocument>
#include <QJsonArray>

// Cost must grow with the size and no faster: the time per unit of a large piece over the time per unit of one with 100
// units. Each piece is converted from ZQTX to JSON and back.

namespace {

using Make = QString (*)(int units);

QString repeated(int count, const std::function<QString(int)> &piece)
{
    QString text;
    for (int i = 0; i < count; ++i) {
        text += piece(i);
    }
    return text;
}

QString stroke(int points)
{
    const QString steps = repeated(points, [](int i) { return QStringLiteral(",%1.25,-%2.5").arg(i % 7).arg(i % 5); });
    return QStringLiteral(R"(<stroke id="1" type="Curve"><data><vertex points="%1"/></data></stroke>)")
        .arg(steps.mid(1));
}

QString vectorPath(int points)
{
    const QString outline = repeated(points, [](int i) {
        return QStringLiteral(R"(<ArtVectObj_Point%1 x0="1" y0="2" x1="3" y1="4" x2="5" y2="6" Type="1"/>)").arg(i);
    });
    return QStringLiteral(R"(<discipline id="1" type="Vector:juxing"><data><rect points=""/></data>)"
                          R"(<ArtVectObj_Manager><ArtVectObj_Path0>%1</ArtVectObj_Path0></ArtVectObj_Manager>)"
                          R"(</discipline>)")
        .arg(outline);
}

QString wideGroup(int children)
{
    return QStringLiteral(R"(<group id="1" type="group"><data><rect points=""/>%1</data></group>)")
        .arg(repeated(children, [](int) { return stroke(2); }));
}

QString deepGroup(int levels)
{
    const QString open = QStringLiteral(R"(<group id="1" type="group"><data><rect points="0,0,1,1"/>)");
    return open.repeated(levels) + QStringLiteral("</data></group>").repeated(levels);
}

// Without boxes of their own, each group looks for the box of an item that lies in it.
QString deepGroupWithoutBoxes(int levels)
{
    const QString open = QStringLiteral(R"(<group id="1" type="group"><data>)");
    return open.repeated(levels) + QStringLiteral("</data></group>").repeated(levels);
}

QString mindMap(int nodes)
{
    const QString node = QStringLiteral("<node><pos>1,2</pos><width>100</width><nodeHtml>leaf</nodeHtml></node>");
    return QStringLiteral(R"(<mindmap id="1" type="ZQMindMapItem"><data><mapItemInfo><node><childNodes>%1</childNodes>)"
                          R"(</node></mapItemInfo></data></mindmap>)")
        .arg(node.repeated(nodes));
}

// A slide is converted as a host does it: its own keys, and then item by item.
QString slide(int items)
{
    return QStringLiteral(R"(<slide id="1"><background><color value="255,255,255,255"/></background><items>%1</items>)"
                          R"(</slide>)")
        .arg(repeated(items, [](int) { return stroke(10); }));
}

QJsonObject readPiece(const QDomElement &piece)
{
    if (piece.tagName() != QLatin1String("slide")) {
        return plugin()->tranItemZQTX2JSON(piece, itemContext());
    }
    QJsonObject json = plugin()->tranSlideZQTX2JSON(piece, {});
    QJsonArray items;
    const QJsonObject context = itemContext();
    const QDomElement first = piece.firstChildElement(QStringLiteral("items")).firstChildElement();
    for (QDomElement item = first; !item.isNull(); item = item.nextSiblingElement()) {
        items.append(plugin()->tranItemZQTX2JSON(item, context));
    }
    json.insert(QStringLiteral("Items"), items);
    return json;
}

void writePiece(const QJsonObject &json)
{
    const auto items = json.constFind(QLatin1String("Items"));
    if (items == json.constEnd()) {
        plugin()->tranItemJSON2ZQTX({}, json);
        return;
    }
    const QDomDocument document = plugin()->tranSlideJSON2ZQTX({}, json);
    QDomElement target = document.documentElement().firstChildElement(QStringLiteral("items"));
    const QJsonArray array = items->toArray();
    for (const QJsonValue &item : array) {
        target.appendChild(plugin()->tranItemJSON2ZQTX({}, item.toObject()));
    }
}

// As many pieces as keep the number of units the same for every size.
int piecesFor(int units, int total)
{
    return qMax(1, total / units);
}

Work reading(Make make, int units, int total)
{
    const Work once = workOnCopies(make(units), [](const QDomElement &piece) { readPiece(piece); });
    const int pieces = piecesFor(units, total);
    return {[once, pieces] {
                for (int i = 0; i < pieces; ++i) {
                    once.run();
                }
            },
            [once, pieces](int times) { once.prepare(times * pieces); }};
}

// What the memory of a large document costs by itself.
Work parsing(Make make, int units, int total)
{
    const QString text = make(units);
    const int pieces = piecesFor(units, total);
    return {[text, pieces] {
                for (int i = 0; i < pieces; ++i) {
                    parse(text);
                }
            },
            {}};
}

Work writing(Make make, int units, int total)
{
    QDomDocument document;
    document.setContent(make(units), false);
    const QJsonObject json = readPiece(document.documentElement());
    const int pieces = piecesFor(units, total);
    return {[json, pieces] {
                for (int i = 0; i < pieces; ++i) {
                    writePiece(json);
                }
            },
            {}};
}

void registerGrowth(const QString &name, Make make, const std::vector<int> &sizes)
{
    const int largest = sizes.back();
    for (const int size : sizes) {
        const QString row = QStringLiteral("%1 %2").arg(name).arg(size);
        registerRatio(QStringLiteral("read, per unit"), row, reading(make, size, largest), reading(make, 100, largest));
        registerRatio(QStringLiteral("parse, per unit"), row, parsing(make, size, largest),
                      parsing(make, 100, largest));
        registerRatio(QStringLiteral("write, per unit"), row, writing(make, size, largest),
                      writing(make, 100, largest));
    }
}

} // namespace

int main(int argc, char **argv)
{
    registerGrowth(QStringLiteral("points of a stroke"), stroke, {10, 1000, 10000, 100000});
    registerGrowth(QStringLiteral("items of a slide"), slide, {10, 1000, 10000});
    registerGrowth(QStringLiteral("points of a vector path"), vectorPath, {10, 1000, 10000});
    registerGrowth(QStringLiteral("children of a group"), wideGroup, {10, 1000, 10000});
    registerGrowth(QStringLiteral("levels of groups"), deepGroup, {10, 200, 500});
    registerGrowth(QStringLiteral("levels of groups without boxes"), deepGroupWithoutBoxes, {10, 200, 500});
    registerGrowth(QStringLiteral("nodes of a mind map"), mindMap, {10, 1000, 10000});
    return runRatios(argc, argv);
}
