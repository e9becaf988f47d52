// SPDX-License-Identifier: MIT
#include "canvas/plainoutlines.h"
#include "hostfixture.h"
#include "testtable.h"

#include <QDir>
#include <QDomDocument>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtTest>

namespace {

const QSize pageSize(400, 300);

QByteArray svgDocument(const QByteArray &content)
{
    return "<svg:svg xmlns:svg='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "viewBox='0 0 400 300'>"
        + content + "</svg:svg>";
}

// The first page of a package as a document of its own, in which lines are never filled.
QByteArray pageOf(const QString &package)
{
    const QByteArray content = fileContent(package + "/content.xml");
    const int start = content.indexOf("<svg:page ");
    const int end = content.indexOf("</svg:page>");
    const QByteArray page = content.mid(start + 10, end - start - 10);
    return svgDocument("<svg:g " + QByteArray(page).replace("<svg:polyline", "<svg:polyline fill='none'") + "</svg:g>");
}

QImage drawn(const QByteArray &document)
{
    QImage image(pageSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    QSvgRenderer renderer(document);
    if (!renderer.isValid()) {
        qFatal("no svg: %s", document.constData());
    }
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

// Pixels that clearly differ; edges of lines may be smoothed otherwise.
int differingPixels(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int difference = qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
            count += difference > 150 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

/*!
 * What svg readers draw of a page before and after it went through the model, on every road.
 */
class TestIwbPictures : public QObject
{
    Q_OBJECT

private slots:
    void foreignPagesLookTheSame_data()
    {
        const Table<QByteArray> row("content");
        row("round shapes, turned and stretched",
            "<svg:circle cx='80' cy='80' r='60' fill='gold' stroke='navy' stroke-width='4'/>"
            "<svg:ellipse cx='250' cy='150' rx='90' ry='40' fill='#0a0' transform='rotate(30 250 150)'/>"
            "<svg:circle r='20' fill='#123456' transform='translate(80 220) scale(3 1.5)'/>"
            "<svg:circle r='30' fill='purple' transform='matrix(1 0 1 1 320 60)'/>");
        row("mirrored and slanted",
            "<svg:polygon points='10,10 90,10 10,90' fill='red' transform='matrix(-1 0 0 1 200 0)'/>"
            "<svg:rect x='20' y='120' width='100' height='60' fill='green' transform='skewX(30)'/>"
            "<svg:rect x='250' y='20' width='60' height='90' fill='blue' transform='translate(560 0) scale(-1 1)'/>"
            "<svg:polyline points='200,200 260,280 320,200' fill='none' stroke='black' stroke-width='5' "
            "transform='translate(0 20) skewY(5)'/>");
        row("paths of straight lines",
            "<svg:path d='M20 20h100v60l-50 40H20z' fill='orange' stroke='black' stroke-width='3' "
            "stroke-linejoin='round' stroke-linecap='round'/><svg:path d='m200,30 80,0 0,80 -80,0zM220 150L300 150 "
            "260 220' fill='none' stroke='red' stroke-linejoin='round' stroke-linecap='round' stroke-width='4'/>"
            "<svg:path d='M30 200 L130 200' stroke='blue' stroke-width='8' stroke-linecap='round'/>");
        row("translucent",
            "<svg:rect x='20' y='20' width='200' height='150' fill='red'/>"
            "<svg:rect x='100' y='80' width='200' height='150' fill='blue' fill-opacity='.5'/>"
            "<svg:circle cx='200' cy='150' r='90' fill='none' stroke='lime' stroke-width='20' stroke-opacity='.4'/>"
            "<svg:circle cx='320' cy='80' r='60' fill='black' stroke='red' stroke-width='10' opacity='.3'/>"
            "<svg:line x1='10' y1='290' x2='390' y2='290' stroke='black' stroke-width='12' stroke-opacity='.5'/>"
            "<svg:polyline points='20,200 120,280 220,200 320,280' fill='none' stroke='#f0f' stroke-width='14' "
            "stroke-opacity='.25'/>");
        row("colours in all forms",
            "<svg:rect width='60' height='60' fill='#f80'/><svg:rect x='70' width='60' height='60' fill='#ff8800'/>"
            "<svg:rect x='140' width='60' height='60' fill='rgb(255,136,0)'/>"
            "<svg:rect x='210' width='60' height='60' fill='rgb(100%,53%,0%)'/>"
            "<svg:rect x='280' width='60' height='60' fill='darkorange'/>"
            "<svg:g fill='cyan' style='stroke:maroon'><svg:rect y='100' width='60' height='60' stroke-width='5'/>"
            "<svg:rect x='80' y='100' width='60' height='60' style='fill:inherit;stroke:none'/></svg:g>");
        row("hidden",
            "<svg:rect x='50' y='50' width='100' height='100' fill='red' visibility='hidden'/>"
            "<svg:g visibility='hidden'><svg:circle cx='250' cy='150' r='50' visibility='visible'/></svg:g>");
        row("a picture, turned",
            "<svg:image x='100' y='60' width='200' height='150' preserveAspectRatio='none' "
            "transform='rotate(40 200 135)' xlink:href='PICTURE'/>");
    }

    void foreignPagesLookTheSame()
    {
        QFETCH(QByteArray, content);
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.setPixelColor(1, 1, Qt::blue);
        QTemporaryDir work;
        const QString file = work.filePath("in/images/a.png");
        QDir().mkpath(QFileInfo(file).path());
        QVERIFY(picture.scaled(64, 64).save(file));
        putFile(work.filePath("in/content.xml"),
                "<iwb xmlns='http://www.imsglobal.org/xsd/iwb_v1p0'>"
                    + svgDocument("<svg:page id='p'>" + QByteArray(content).replace("PICTURE", "images/a.png")
                                  + "</svg:page>")
                    + "</iwb>");
        const QImage wanted = drawn(svgDocument(QByteArray(content).replace("PICTURE", file.toUtf8())));

        const QString report = convertedLesson(work.filePath("in"), work.filePath("1"), "iwb").summary().english();
        convertedLesson(work.filePath("1"), work.filePath("2"), "zqtx");
        convertedLesson(work.filePath("2"), work.filePath("3.json"), "json");
        convertedLesson(work.filePath("3.json"), work.filePath("4"), "iwb");
        for (const char *package : {"1", "4"}) {
            const QString folder = work.filePath(package);
            const QByteArray page = pageOf(folder).replace("images/", (folder + "/images/").toUtf8());
            const QImage found = drawn(page);
            const int count = differingPixels(wanted, found);
            QVERIFY2(count <= 60, qPrintable("%1 pixels differ in package %2. %3"_s.arg(count).arg(package, report)));
        }
    }

    // What a drawing becomes that few elements show, and which needs more.
    void tellsPlainOutlines_data()
    {
        const Table<QString, QString> row("drawing", "elements");
        row("nothing", "", "");
        row("a box", "<path d='M1 2L11 2L11 8L1 8L1 2Z' fill='#0000ff' stroke='none'/>",
            "rect x=1 y=2 width=10 height=6 fill=#0000ff stroke=none");
        row("a turned box", "<rect x='0' y='0' width='10' height='4' fill='red' transform='rotate(90)'/>",
            "rect x=-4 y=0 width=4 height=10 fill=#ff0000 stroke=none");
        row("a slanted box", "<rect width='10' height='4' fill='red' transform='matrix(1 0 1 1 0 0)'/>",
            "polygon points=0,0 10,0 14,4 4,4 fill=#ff0000 stroke=none");
        row("a line and a bent one",
            "<g transform='matrix(2 0 0 2 0 0)' stroke='#123456'><path fill='none' d='M0 0L5 0M1 1L2 2L4 1' "
            "stroke-width='3' stroke-linejoin='round' stroke-dasharray='2,1' stroke-opacity='.2'/></g>",
            "line x1=0 y1=0 x2=10 y2=0 stroke=#123456 stroke-opacity=0.2 stroke-width=6 stroke-dasharray=4,2; "
            "polyline points=2,2 3,3 4,4 8,2 stroke=#123456 stroke-opacity=0.2 stroke-width=6 stroke-linejoin=round "
            "stroke-dasharray=4,2");
        row("an open line with a fill", "<path d='M0 0L5 0L5 5' fill='#00ff00' stroke='#000000'/>",
            "polygon points=0,0 5,0 5,5 fill=#00ff00 stroke=none; "
            "polyline points=0,0 2.5,0 5,0 5,5 stroke=#000000 stroke-width=1");
        row("round", "<circle cx='5' cy='5' r='3' fill='none' stroke='red'/><ellipse rx='2' ry='1'/>",
            "circle cx=5 cy=5 r=3 fill=none stroke=#ff0000 stroke-width=1; "
            "ellipse cx=0 cy=0 rx=2 ry=1 fill=#000000 stroke=none");
        row("a hole", "<path d='M0 0L9 0L9 9L0 9ZM3 3L3 6L6 6L6 3Z' fill='red'/>",
            "polygon points=0,0 9,0 9,9 0,9 0,0 3,3 3,6 6,6 6,3 3,3 fill=#ff0000 stroke=none");
        row("filled where it overlaps", "<path d='M0 0L9 0L9 9L0 9ZM3 3L12 3L12 12L3 12Z' fill='red'/>", "no");
        row("apart", "<path d='M0 0L9 0L9 9ZM30 0L39 0L39 9Z' fill='red'/>",
            "polygon points=0,0 9,0 9,9 fill=#ff0000 stroke=none; polygon points=30,0 39,0 39,9 fill=#ff0000 "
            "stroke=none");
        row("letters",
            "<text x='3' y='9' font-size='20' font-family='Arial' fill='#010203' font-weight='bold'>a b </text>",
            "text x=3 y=9 fill=#010203 font-family=Arial font-size=20 font-weight=bold: a b");
        row("turned letters", "<text x='3' y='9' font-size='20' fill='red' transform='matrix(0 2 -2 0 0 0)'>a</text>",
            "text x=-18 y=6 fill=#ff0000 font-size=40 transform=rotate(90,-18,6): a");
        row("letters of nobody's font", "<text font-family='sans-serif' font-size='9' fill='red'>long line</text>",
            "no");
        row("mirrored letters", "<text transform='matrix(-1 0 0 1 0 0)' font-size='9' fill='red'>a</text>", "no");
        row("letters from the right", "<text font-family='Arial' font-size='9' fill='red'>&#x5d0;</text>", "no");
        row("two blanks", "<text text-anchor='end' font-family='Arial' font-size='9' fill='red'>a  b</text>", "no");
        row("a stretched line", "<path d='M0 0L5 0L3 9' stroke='red' transform='matrix(2 0 0 1 0 0)'/>", "no");
        row("translucent together", "<rect width='9' height='9' stroke='red' opacity='.5'/>", "no");
        row("a translucent group", "<g opacity='.5'><rect width='9' height='9'/></g>", "no");
        row("a pattern", "<rect width='9' height='9' fill='url(#a)'/>", "no");
        row("a cut", "<rect width='9' height='9' clip-path='url(#a)'/>", "no");
        row("a picture", "<rect width='9' height='9'/><image width='9' height='9'/>", "no");
        row("many", QString("<rect width='9' height='9'/>").repeated(9), "no");
    }

    void tellsPlainOutlines()
    {
        QFETCH(QString, drawing);
        QFETCH(QString, elements);
        QDomDocument document;
        QVERIFY(document.setContent("<svg xmlns='http://www.w3.org/2000/svg'>" + drawing + "</svg>", false));
        QStringList found;
        for (const PlainElement &element : plainOutlines(document.documentElement())) {
            QString text = element.tag.mid(4);
            for (const auto &[name, value] : element.attributes) {
                text += ' ' + name + '=' + value;
            }
            found.append(element.text.isEmpty() ? text : text + ": " + element.text);
        }
        QCOMPARE(found.isEmpty() && !drawing.isEmpty() ? "no" : found.join("; "), elements);
    }
};

QTEST_MAIN(TestIwbPictures)
#include "tst_iwbpictures.moc"
