// SPDX-License-Identifier: MIT
#include "canvas/picturestore.h"
#include "canvas/plainoutlines.h"
#include "drawings/drawings.h"
#include "drawings/symbolfile.h"
#include "hostfixture.h"
#include "itemfamilies.h"
#include "itempictures.h"
#include "lesson/itemview.h"
#include "lesson/planegeometry.h"
#include "typicalitems.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

/*!
 * Draws typical items of every type. Which of their values change the picture, docs/DRAWINGS.md tells, and
 * tst_documents compares.
 */
class TestDrawings : public QObject
{
    Q_OBJECT

private:
    /*!
     * What is seen of an item.
     */
    struct Look
    {
        QByteArray svg;
        bool isNamed;
        QRect ink;
        QPointF balance; //!< the middle of all ink
    };

    ItemPictures m_pictures{plugin()};

    Look look(const QJsonObject &item)
    {
        const ItemPicture picture = m_pictures.draw(withGround(item));
        Look look{picture.svg, !picture.named.isEmpty(), {}, {}};
        QImage page(ItemPictures::pageSize().toSize(), QImage::Format_RGB32);
        QPainter painter(&page);
        m_pictures.paint(painter, page.rect(), withGround(item));
        painter.end();
        double weight = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (page.pixel(x, y) != 0xffffffff) {
                    look.ink |= QRect(x, y, 1, 1);
                    look.balance += QPointF(x + 0.5, y + 0.5) * (255 - qGray(page.pixel(x, y)));
                    weight += 255 - qGray(page.pixel(x, y));
                }
            }
        }
        look.balance /= weight;
        return look;
    }

    static void addTypes()
    {
        const Table<QString, QJsonObject> row("type", "keys");
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                row(type.toLatin1(), type, "{}");
            }
        }
        row("corners, without bends told", "ZQVectorJuxing",
            "{'VectorControl0': [0,0,0,0,0,0, 9,0,0,0,0,0, 9,9,9,9,9,9, 3,9,3,9,3,9]}");
        row("bends out of its points", "ZQVectorXinxing",
            "{'VectorControl0': [0,-30,-40,-100,40,-100, 100,-20,100,-70,100,20, 0,90,30,70,-30,70]}");
        row("a line of two points", "ZQVectorPianduan", "{'VectorControl0': [1,2,0,0,0,0, 3,9,0,0,0,0]}");
        row("a flat line", "ZQVectorPianduan", "{'VectorControl0': [1,2,0,0,0,0, 3,2,0,0,0,0]}");
        row("corners of its own", "ZQMath2DTrapezoid", "{'Control': '1,1,9,2,9,9,0,9'}");
    }

    static QJsonObject typical()
    {
        QFETCH(QString, type);
        QFETCH(QJsonObject, keys);
        QJsonObject item = typicalItem(type, ItemPictures::boxOf(type));
        for (auto it = keys.constBegin(); it != keys.constEnd(); ++it) {
            item.insert(it.key(), it.value());
        }
        return item;
    }

private slots:
    void drawsTypicalItems_data() { addTypes(); }

    void drawsTypicalItems()
    {
        const QJsonObject item = typical();
        const QRectF box = *ItemView(item).box();
        const Look plain = look(item);
        QVERIFY(!plain.ink.isEmpty());

        // Lines reach beyond the box by half of their width.
        const ItemView view(item);
        const int reach = 2 + int(qMax(view.number(ItemKeys::lineWidth), view.number(ItemKeys::width)) / 2);
        QVERIFY2(box.toAlignedRect().adjusted(-reach, -reach, reach, reach).contains(plain.ink), plain.svg);

        if (plain.isNamed || view.type() == "ZQStrokesDeletePixel") {
            return;
        }

        // A quarter turn of the item is one of the picture, and a flip a flip, but for words on shapes and for liquids,
        // which stay upright. Items with points of their own may be turned by a matrix.
        QJsonObject steady = item;
        for (const QString &key : item.keys()) {
            if (key.startsWith("ArtObj_Display") || (key == "TextHtml" && view.type().startsWith("ZQBasic"))) {
                steady[key] = key == "TextHtml" ? "" : "0";
            }
        }
        const bool keepsUpright = view.type() == "ZQMindMapItem" || view.type() == "ZQChemistryBianJiQi";
        const bool isPatterned = view.type() == "ZQStrokeTexture";
        const Look before = look(steady);
        const QTransform turn = turnAbout(box.center(), M_PI_2);
        const QTransform flip = QTransform(-1, 0, 0, 1, 2 * box.center().x(), 0);
        QVector<std::tuple<const char *, QString, QTransform>> changes{{"Angle", "1.5707963", turn}};
        if (!keepsUpright) {
            changes.append({"HorizonFlip", "1", flip});
        }
        QFETCH(QJsonObject, keys);
        if (!keys.isEmpty()) {
            changes.append({"Matrix", transformText(turn), turn});
        }
        for (const auto &[key, value, change] : qAsConst(changes)) {
            QJsonObject changed = steady;
            changed.insert(key, value);
            const QRectF there = change.mapRect(QRectF(before.ink));
            const Look found = look(changed);
            const QRectF ink(found.ink);
            QVERIFY2(there.adjusted(-3, -3, 3, 3).contains(ink) && ink.adjusted(-3, -3, 3, 3).contains(there), key);
            QVERIFY2(isPatterned || QLineF(change.map(before.balance), found.balance).length() < 3, key);
        }

        // Of the colours that an item has, some are seen. Apparatus without a liquid has that of a liquid all the same.
        const QJsonObject colored = itemVariants().at(4).changed(item);
        const QByteArray svg = look(colored).svg;
        QStringList colors;
        for (auto it = colored.constBegin(); it != colored.constEnd(); ++it) {
            const auto color = itemColor(it.value());
            if (it.key().contains("color", Qt::CaseInsensitive) && color) {
                colors << color->name() << "rgb(%1,%2,%3)"_s.arg(color->red()).arg(color->green()).arg(color->blue());
            }
        }
        const auto isSeen = [&svg](const QString &color) { return svg.contains(color.toLatin1()); };
        QVERIFY2(SymbolFile::ofType(view.type()) || colors.isEmpty()
                     || std::any_of(colors.cbegin(), colors.cend(), isSeen),
                 svg);
    }

    void drawsWhatItemsSay_data()
    {
        const Table<QJsonObject, QByteArray> row("item", "drawn");
        row("arrow at the start",
            "{'Type':'ZQBasicSegmentItem','ArtObj_Point1':'0,50','ArtObj_Point2':'90,50','ArtObj_ArrowType':'1'}",
            "\"M0.00 50.00L10.00 46.00L10.00 54.00L0.00 50.00Z\"");
        row("lines of a free drawing",
            "{'Type':'ZQBasicFreeDraw','FreeItem_PtnPosVec':'1,1,2,2,3,3,4,4,5,5','FreeItem_PtnElemLenVec':'2,1,2',"
            "'FreeItem_PtnConinueVec':'0,1,0'}",
            "\"M1.00 1.00L2.00 2.00L3.00 3.00M4.00 4.00L5.00 5.00\"");
        row("line that isn't stretched",
            "{'Type':'ZQBasicMinusItem','BoundingBox':'0,0,9,9','Matrix':'9,0,0,1,0,0','ArtObj_Width':'3'}",
            "stroke-width=\"3.00\"");
        row("bracket that opens to the left",
            "{'Type':'ZQShapeJiankuohao','BoundingBox':'0,0,10,10','ArtObj_Direct':'1'}",
            "\"M0.00 0.00L10.00 5.00L0.00 10.00\"");
        row("bracket that opens nobody knows where",
            "{'Type':'ZQShapeHuakuohao','BoundingBox':'0,0,90,90','ArtObj_Direct':'7'}", "");
        row("curve",
            "{'Type':'ZQShapeQuxianjiantou','ArtObj_Arrow':'0','ArtObj_Point0x':0,'ArtObj_Point0y':0,"
            "'ArtObj_Point1x':0,'ArtObj_Point1y':50,'ArtObj_Point2x':50,'ArtObj_Point2y':50,'ArtObj_Point3x':50,"
            "'ArtObj_Point3y':0}",
            "\"M0.00 0.00C0.00 50.00 50.00 50.00 50.00 0.00\"");
        row("head at the end",
            "{'Type':'ZQShapeZhixianjiantou','ArtObj_Point1x':0,'ArtObj_Point1y':50,'ArtObj_Point2x':90,"
            "'ArtObj_Point2y':50}",
            "\"M90.00 50.00L80.00 54.00L80.00 46.00L90.00 50.00Z\"");
        row("line by its shortest way",
            "{'Type':'ZQShapeLianjiexian','ArtObj_InterpointNumber':'1','ArtObj_Point1x':0,'ArtObj_Point1y':9,"
            "'ArtObj_InterPoint0x':40,'ArtObj_InterPoint0y':9,'ArtObj_Point2x':90,'ArtObj_Point2y':80,"
            "'ArtObj_Point3x':40,'ArtObj_Point3y':80}",
            "\"M0.00 9.00L40.00 9.00L40.00 80.00L90.00 80.00\"");
        row("one to many",
            "{'Type':'ZQShapeYiduiduoshu','ArtObj_Point1x':50,'ArtObj_Point1y':0,'ArtObj_Point2x':10,"
            "'ArtObj_Point2y':60,'ArtObj_Point3x':90,'ArtObj_Point3y':80}",
            "\"M50.00 0.00L50.00 30.00M10.00 30.00L90.00 30.00M10.00 30.00L10.00 60.00M90.00 30.00L90.00 80.00\"");
        row("hose by its points", "{'Type':'ZQChemistryXiangPiGuan','Control':'0,0,30,60,60,0,90,30'}",
            "\"M0.00 0.00C30.00 60.00 60.00 0.00 90.00 30.00\"");
        row("corners by its name", "{'Type':'ZQBasicNormalItem4','BoundingBox':'0,0,20,40','ArtObj_Mode':'2'}",
            "\"M10.00 0.00L20.00 20.00L10.00 40.00L0.00 20.00L10.00 0.00Z\"");
        row("dashed edge", "{'Type':'ZQBasicEllipseItem','BoundingBox':'0,0,20,40','ArtObj_Mode':'2'}",
            "stroke-dasharray=\"10.00,10.00\"");
        row("raw figure", "{'Type':'ZQShapeFangkuohao','ArtObj_Mw':'20','ArtObj_Mh':'40','Matrix':'1,0,0,1,50,60'}",
            "\"M60.00 40.00L40.00 40.00L40.00 80.00L60.00 80.00\"");
        row("arrow that nobody knows", "{'Type':'ZQShapeGeshijiantou','BoundingBox':'0,0,9,9','ArtObj_Type':'4'}", "");
        row("no path", "{'Type':'ZQVectorJuxing','BoundingBox':'0,0,90,90'}", "<path");
        row("no path of a form without a name", "{'Type':'ZQVectorPianduan','BoundingBox':'0,0,9,9'}", "");
        row("a box without an area", "{'Type':'ZQMathToolCoordinatePolar','BoundingBox':'5,5,5,9'}", "");
        row("nowhere", "{'Type':'ZQBasicFlagItem'}", "");
    }

    void drawsWhatItemsSay()
    {
        QFETCH(QJsonObject, item);
        QFETCH(QByteArray, drawn);
        const ItemPicture picture = m_pictures.draw({item});
        QCOMPARE(picture.named.isEmpty(), !drawn.isEmpty());
        QVERIFY2(picture.svg.contains(drawn), picture.svg);
    }

    void findsTheSameElements_data() { addTypes(); }

    // Before its shapes are written, where nobody asks for more, and in what they become.
    void findsTheSameElements()
    {
        const QJsonObject item = typical();
        QStringList found[2];
        for (const bool isWritten : {false, true}) {
            IwbMedia media;
            PictureStore store;
            IwbItemWriter::Setting setting;
            setting.plugin = plugin();
            setting.media = &media;
            IwbPageWriter pages(setting);
            pages.start({{"Width", "1280"}, {"Height", "720"}}, {});
            PlainSvg svg({1280, 720}, media, store, Qt::transparent);
            isWritten ? void() : svg.setForElements();
            Drawings(svg, pages, media).draw(item);
            const auto elements = isWritten ? plainOutlines(svg.finished().documentElement())
                : svg.isInVain()            ? QVector<PlainElement>()
                                            : plainOutlines(svg.sketch(), svg.shapes());
            for (const PlainElement &element : elements) {
                found[isWritten].append(element.tag + element.text);
                for (const auto &[name, value] : element.attributes) {
                    found[isWritten].append(name + "=" + value);
                }
            }
        }
        QCOMPARE(found[0], found[1]);
    }

    void drawsExtremeItems_data() { addTypes(); }

    void drawsExtremeItems()
    {
        const QJsonObject item = typical();
        static const QRegularExpression badNumber("=\"[^\">]*(\\bnan\\b|\\binf\\b|[0-9]{8})");
        const QStringList boxes{item.value("BoundingBox").toString(), "5,5,5,5", "1e308,-1e308,1e308,9", "300,300,2,2"};
        int box = 0;
        for (const char *number : {"0", "1e9", "-1e9", "1e308", "-1e-308", "nan", "inf", ""}) {
            QJsonObject extreme = withValues(item, number, QString("Extraordinarily ").repeated(30));
            extreme.insert("BoundingBox", boxes.at(box++ % boxes.size()));
            const QByteArray svg = m_pictures.draw({extreme}).svg;
            QVERIFY2(!badNumber.match(svg).hasMatch(), svg);
        }
    }
};

QTEST_MAIN(TestDrawings)
#include "tst_drawings.moc"
