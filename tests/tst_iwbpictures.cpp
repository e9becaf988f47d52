// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QDir>
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
};

QTEST_MAIN(TestIwbPictures)
#include "tst_iwbpictures.moc"
