// SPDX-License-Identifier: MIT
#include "pluginfixture.h"
#include "svg/svgnormalizer.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QtTest>

#include <cmath>

using namespace lessonhost;

namespace {

const char *const head = "<iwb xmlns='http://www.imsglobal.org/xsd/iwb_v1p0' xmlns:svg='http://www.w3.org/2000/svg' "
                         "xmlns:xlink='http://www.w3.org/1999/xlink'><svg:svg viewBox='0 0 800 600'>";
const char *const foot = "</svg:svg></iwb>";
const char *const nativeHead = "<iwb version='1.0'><svg:svg version='tesselmark' width='800' height='600'>";

// "rect x=1 y=2 ..." with attributes in ascending order, those of paint after a bar.
QString describe(const IwbElement &item)
{
    QMap<QString, QString> place;
    QMap<QString, QString> paint;
    const QDomNamedNodeMap attributes = item.element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        const bool isPaint = attribute.name().startsWith("stroke") || attribute.name() == "fill"_s;
        (isPaint ? paint : place).insert(attribute.name(), attribute.value());
    }
    QString text = item.element.tagName().mid(4);
    for (auto it = place.constBegin(); it != place.constEnd(); ++it) {
        text += ' ' + it.key() + '=' + it.value();
    }
    if (item.angle != 0) {
        text += " turned %1"_s.arg(item.angle * 180 / M_PI, 0, 'g', 6);
    }
    text += " |"_s;
    for (auto it = paint.constBegin(); it != paint.constEnd(); ++it) {
        text += ' ' + it.key() + '=' + it.value();
    }
    return text;
}

IwbPage firstPage(const QString &content, const char *start = head)
{
    return SvgNormalizer(xml(start + content + foot)).page(0);
}

} // namespace

/*!
 * Content of other programs in the forms that the plug-in reads. Expected numbers are worked out by hand.
 */
class TestSvgNormalizer : public QObject
{
    Q_OBJECT

private slots:
    void shapes_data()
    {
        const Table<QString, QString> row("svg", "expected");
        // A fill that isn't named is black, a line that isn't named isn't there.
        row("defaults of svg", "<svg:rect x='1' y='2' width='3' height='4'/>",
            "rect height=4 width=3 x=1 y=2 | fill=rgb(0,0,0) stroke=rgb(0,0,0,0) stroke-opacity=255 stroke-width=1");
        row("units and percents: 1in is 96, 50% of 800 is 400",
            "<svg:rect x='1in' y='10pt' width='50%' height='50%' fill='none' stroke='red'/>",
            "rect height=300 width=400 x=96 y=13.33333333 | stroke=rgb(255,0,0) stroke-width=1");
        row("style goes over attributes",
            "<svg:circle cx='5' cy='6' r='7' fill='red' style='fill:#0f0; stroke: rgb(10%,20,30) "
            ";stroke-width:2.5px'/>",
            "circle cx=5 cy=6 r=7 | fill=rgb(0,255,0) stroke=rgb(26,20,30) stroke-opacity=255 stroke-width=2.5");
        row("three points stay a polyline", "<svg:polyline points='0 0 10 0 10-10' fill='none' stroke='black'/>",
            "polyline points=0,0,10,0,10,-10,10,-10 | stroke=rgb(0,0,0) stroke-width=1");
        row("a path of straight lines: 1,1 5,1 5,4 2,4 and back",
            "<svg:path d='M1 1h4v3l-3 0z' fill='none' stroke='black'/>",
            "polyline points=1,1,5,1,5,4,2,4,1,1 | stroke=rgb(0,0,0) stroke-width=1");
        row("an arrow at the end turns the line",
            "<svg:line x1='1' y1='2' x2='3' y2='4' stroke='black' stroke-lineshape-end='arrow'/>",
            "line x1=3 x2=1 y1=4 y2=2 | stroke=rgb(0,0,0) stroke-lineshape-start=arrow stroke-width=1");
        row("a single dash is two", "<svg:line x2='3' stroke='black' stroke-dasharray='5'/>",
            "line x1=0 x2=3 y1=0 y2=0 | stroke=rgb(0,0,0) stroke-dasharray=1,1 stroke-width=1");

        // translate(10,20) scale(2): 3,4 goes to 16,28, lengths double, the line's width too.
        row("nested groups",
            "<svg:g transform='translate(10,20)' stroke='blue' fill='none'><svg:g transform='scale(2)'>"
            "<svg:rect x='3' y='4' width='5' height='6'/></svg:g></svg:g>",
            "rect height=12 width=10 x=16 y=28 | stroke=rgb(0,0,255) stroke-width=2");
    }

    void shapes()
    {
        QFETCH(QString, svg);
        const IwbPage page = firstPage(svg);
        QCOMPARE(page.items.size(), 1);
        QTEST(describe(page.items.first()), "expected");
    }

    void nativeConventions()
    {
        // Commas: 0.5235987756 radians are 30 degrees. Blanks: degrees. An alpha of fills out of 255.
        const IwbPage page = firstPage(
            "<svg:rect x='10' y='10' width='20' height='10' transform='rotate(0.5235987756,20,15)' "
            "fill='rgb(1,2,3)' stroke='rgb(4,5,6)' stroke-opacity='128'/>"
            "<svg:rect x='10' y='10' width='20' height='10' transform='rotate(30 20 15)' stroke='rgb(4,5,6)'/>"
            "<svg:polyline points='0,0,10,0,10,10' stroke='rgb(4,5,6)'/>"_s,
            nativeHead);
        QCOMPARE(describe(page.items.at(0)),
                 "rect height=10 width=20 x=10 y=10 turned 30 | fill=rgb(1,2,3) stroke=rgb(4,5,6) "
                 "stroke-opacity=128 stroke-width=2"_s);
        QCOMPARE(describe(page.items.at(1)),
                 "rect height=10 width=20 x=10 y=10 turned 30 | stroke=rgb(4,5,6) stroke-width=2"_s);
        QCOMPARE(describe(page.items.at(2)), // an angle
                 "polyline points=0,0,10,0,10,10 | stroke=rgb(4,5,6) stroke-width=2"_s);
    }

    void backgroundsAreFoundByTheirRecords()
    {
        const SvgNormalizer normalizer(
            xml(QLatin1String(head)
                + "<svg:page><svg:rect id='r' width='5' height='5' fill='red'/>"
                  "<svg:rect id='b' width='800' height='600' fill='blue'/><svg:image id='i' xlink:href='b.png'/>"
                  "</svg:page><svg:page><svg:rect id='r2' width='5' height='5' fill='red'/></svg:page></svg:svg>"
                  "<element ref='b' background='true'/><element ref='i' background='true'/>"
                  "<element ref='r' locked='true'/></iwb>"));
        const IwbPage first = normalizer.page(0);
        const QDomElement rect = first.page.firstChildElement("svg:rect");
        QCOMPARE(rect.attribute("fill"), "rgb(0,0,255)");
        QCOMPARE(first.backgroundReference, "b.png");
        QCOMPARE(first.items.size(), 1);
        QVERIFY(first.items.first().isLocked);
        // Without a record a rectangle is an item, and the page is white.
        const IwbPage second = normalizer.page(1);
        QCOMPARE(second.items.size(), 1);
        QCOMPARE(second.page.firstChildElement().attribute("fill"), "rgb(255,255,255)");
    }

    void textBecomesSpans()
    {
        const IwbPage page = firstPage("<svg:text x='100' y='50' font-size='20' text-anchor='middle' fill='#f00'>one "
                                       "<svg:tspan font-weight='bold'>two"
                                       "</svg:tspan><svg:tspan x='100' dy='1.2em'>three</svg:tspan></svg:text>"_s);
        const QDomElement area = page.items.first().element;
        QStringList spans;
        for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
            spans << span.text() + '|' + span.attribute("font-weight") + '|' + span.attribute("font-style") + '|'
                    + span.attribute("text-align");
        }
        QCOMPARE(
            spans,
            QStringList({"one |normal|normal|center"_s, "two\n|bold|normal|center"_s, "three|normal|normal|center"_s}));
        const double width = area.attribute("width").toDouble();
        QVERIFY(width > 20);
        QVERIFY(qAbs(area.attribute("x").toDouble() + width / 2 - 100) < 1e-6);
        QVERIFY(area.attribute("y").toDouble() < 50);
    }

    void nothingIsDroppedSilently_data()
    {
        const Table<QString, QString> row("svg", "remark");
        row("curves", "<svg:path id='p' d='M0 0C1 1 2 2 3 3'/>", "svg:path p: its curves became fine lines");
        row("use", "<svg:use id='u'/>", "svg:use u: lessons have nothing like it");
        row("other vocabulary", "<x:y xmlns:x='urn:x'/>", "x:y : lessons have nothing like it");
        row("gradient", "<svg:circle r='1' fill='url(#g)'/>", "svg:circle : fill \"url(#g)\" (a gradient");
        row("round corners", "<svg:rect width='9' height='9' rx='2'/>", "svg:rect : its corners");
        row("no size", "<svg:ellipse id='e' rx='3'/>", "svg:ellipse e: it has no size");
        row("odd points", "<svg:polyline points='1 2 3'/>", "svg:polyline : its last point has no y");
        row("clip", "<svg:g clip-path='url(#c)'/>", "svg:g : clip-path is left out");
        row("transform", "<svg:rect width='1' height='1' transform='bend(3)'/>", "svg:rect : transform \"bend(3)\"");
        row("title", "<svg:title>Fractions</svg:title>", "svg:title : lessons have nothing like it");
        row("tip of a shape", "<svg:rect id='r' width='1' height='1'><svg:title>One</svg:title></svg:rect>",
            "svg:rect r: <svg:title> within it is left out");
        row("script", "<svg:circle r='1' onclick='next()'/>", "svg:circle : the script of onclick is left out");
        row("arrow of a polyline", "<svg:g marker-end='url(#m)'><svg:polygon points='1 2 3 4 5 6'/></svg:g>",
            "svg:polygon : marker-end is left out");
        row("no size", "<svg:rect width='0' height='4'/>", "svg:rect : it has no size");
    }

    void nothingIsDroppedSilently()
    {
        const auto [svg, remark] = Table<QString, QString>::cells();
        const IwbPage page = firstPage(svg);
        QVERIFY(!page.remarks.isEmpty());
        const SvgRemark &first = page.remarks.first();
        const QString text = first.tag + ' ' + first.id + ": "_s + first.text.english();
        QVERIFY2(text.startsWith(remark), qPrintable(text));
    }
};

QTEST_MAIN(TestSvgNormalizer)
#include "tst_svgnormalizer.moc"
