// SPDX-License-Identifier: MIT
#include "canvas/picturestore.h"
#include "drawings/levelliquid.h"
#include "drawings/symboldrawing.h"
#include "drawings/symbolfile.h"
#include "hostfixture.h"
#include "itemfamilies.h"
#include "iwb/iwbmedia.h"
#include "svg/svgpath.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtTest>

/*!
 * Every file of a symbol: what may stand in it, and what is drawn of it.
 */
class TestSymbols : public QObject
{
    Q_OBJECT

private:
    static void addEverySymbol()
    {
        QTest::addColumn<QString>("type");
        for (const QString &type : SymbolFile::types()) {
            QTest::newRow(type.toUtf8().constData()) << type;
        }
    }

    static QVector<QDomElement> partsOf(const QString &type)
    {
        QVector<QDomElement> parts{SymbolFile::ofType(type)->root()};
        for (int i = 0; i < parts.size(); ++i) {
            const QDomElement part = parts.at(i);
            for (QDomElement child = part.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
                parts.append(child);
            }
        }
        return parts;
    }

    static QByteArray drawn(QJsonObject item, const QString &type, const QSizeF &page)
    {
        item.insert("Type", type);
        IwbMedia media;
        PictureStore pictures;
        PlainSvg svg(page, media, pictures);
        IwbPageWriter pages({});
        Canvas canvas(svg, pages, media);
        return symbolDrawing(type)(canvas, ItemView(item)) ? pictures.text(svg.finished().documentElement())
                                                           : QByteArray();
    }

    static QImage picture(const QByteArray &svg, const QSize &size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QSvgRenderer(svg).render(&painter);
        return image;
    }

    static QRect inkOf(const QImage &image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != 0xffffffff) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    static QRectF outlineOf(const QDomElement &part)
    {
        QRectF all = svgOutline(part).value_or(QPainterPath()).boundingRect().adjusted(0, 0, 1e-3, 1e-3);
        for (QDomElement child = part.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            all = all.width() > 0.01 || all.height() > 0.01 ? all.united(outlineOf(child)) : outlineOf(child);
        }
        return all;
    }

private slots:
    void knowsEveryType()
    {
        for (const TitledTypes &family : itemFamilies()) {
            for (const QString &type : family.types) {
                if (type.startsWith("ZQPhysics"_s) || type.startsWith("ZQChemistry"_s)) {
                    QVERIFY2(symbolDrawing(type), qPrintable(type));
                }
            }
        }
    }

    void keepsToTheForm_data() { addEverySymbol(); }

    void keepsToTheForm()
    {
        QFETCH(QString, type);
        static const QSet<QString> tags{"svg",     "g",    "path",     "rect",    "circle",
                                        "ellipse", "line", "polyline", "polygon", "text"};
        static const QStringList attributes =
            QString("xmlns viewBox x y width height rx ry cx cy r x1 y1 x2 y2 d points fill stroke stroke-width "
                    "stroke-linejoin stroke-dasharray fill-rule font-size text-anchor display transform "
                    "class data-colors data-stretch-x data-stretch-y data-turn data-upright data-keep data-repeat-x "
                    "data-repeat-y data-vessel "
                    "data-count data-if data-unless data-text data-room data-angle data-scale data-values data-tick "
                    "data-pitch data-first data-step data-decimals")
                .split(' ');
        const auto file = SymbolFile::ofType(type);
        const QVector<double> box = svgNumbers(file->root().attribute("viewBox"));
        QVERIFY(box.size() == 4 && box.at(0) == 0 && box.at(1) == 0);
        QVERIFY(qMax(box.at(2), box.at(3)) >= 60 && qMax(box.at(2), box.at(3)) <= 240);
        for (const auto &side : {qMakePair(file->stretchingAcross(), box.at(2)), {file->stretchingDown(), box.at(3)}}) {
            QVERIFY(side.first.size() % 2 == 0 && std::is_sorted(side.first.begin(), side.first.end()));
            QVERIFY(side.first.isEmpty() || (side.first.first() >= 0 && side.first.last() <= side.second));
        }
        QStringList keys = keyMapsOfType(type).keys() + subjectColorKeys();
        QStringList named;
        for (const QDomElement &part : partsOf(type)) {
            const QByteArray line = QString("line %1").arg(part.lineNumber()).toUtf8();
            QVERIFY2(tags.contains(part.tagName()), line);
            const QDomNamedNodeMap own = part.attributes();
            for (int i = 0; i < own.size(); ++i) {
                const QDomAttr attribute = own.item(i).toAttr();
                QVERIFY2(attributes.contains(attribute.name()), qPrintable(attribute.name()));
                QVERIFY2(!attribute.value().contains("url("), line);
                if (QString("data-if data-unless data-text data-count data-first data-step data-decimals")
                        .split(' ')
                        .contains(attribute.name())) {
                    named.append(attribute.value().section('=', 0, 0));
                }
            }
            for (const QString &role : part.attribute("class").split(' ', Qt::SkipEmptyParts)) {
                QVERIFY2(file->roles().contains(role), qPrintable(role));
            }
            if (part.tagName() != "g" && part.tagName() != "svg" && part.tagName() != "text") {
                QVERIFY2(svgOutline(part) && !svgOutline(part)->isEmpty(), line);
            }
            const bool isAcross = part.hasAttribute("data-repeat-x");
            const QVector<double> range = svgNumbers(part.attribute(isAcross ? "data-repeat-x" : "data-repeat-y"));
            if (!range.isEmpty()) {
                QVector<QRectF> outlines;
                for (QDomElement child = part.firstChildElement(); !child.isNull();
                     child = child.nextSiblingElement()) {
                    outlines.append(outlineOf(child));
                }
                const double step = (range.at(1) - range.at(0)) / outlines.size();
                for (int i = 1; i < outlines.size(); ++i) {
                    const QPointF moved = outlines.at(i).topLeft() - outlines.at(0).topLeft();
                    const QPointF expected = isAcross ? QPointF(i * step, 0) : QPointF(0, i * step);
                    QVERIFY2((moved - expected).manhattanLength() < 0.1, line);
                }
            }
        }
        for (const QString &role : file->root().attribute("data-colors").split(' ', Qt::SkipEmptyParts)) {
            named += role.section(':', 1).split(',', Qt::SkipEmptyParts);
        }
        for (const QString &key : qAsConst(named)) {
            QVERIFY2(keys.contains(key), qPrintable(key));
        }
    }

    void isDrawnInEverySize_data() { addEverySymbol(); }

    void isDrawnInEverySize()
    {
        QFETCH(QString, type);
        QSet<QString> all;
        for (const QSize &size : {QSize(40, 40), QSize(200, 200), QSize(1000, 1000), QSize(80, 240), QSize(240, 80)}) {
            const QSize page = size + QSize(40, 40);
            const QRect box(QPoint(20, 20), size);
            const QString corners = QString("20,20,%1,%2").arg(size.width() + 20).arg(size.height() + 20);
            const QByteArray svg = drawn({{"BoundingBox", corners}, {"ArtObj_Width", "2"}}, type, page);
            const QRect ink = inkOf(picture(svg, page));
            const QByteArray where = QString("%1x%2").arg(size.width()).arg(size.height()).toUtf8();
            QVERIFY2(box.adjusted(-3, -3, 3, 3).contains(ink), where);
            QVERIFY2(qMax(ink.width(), ink.height()) > 0.75 * qMin(size.width(), size.height()), where);
            // Lines are as wide in the largest as in the smallest.
            const QRegularExpression width("stroke-width=\"([\\d.]+)\"");
            QSet<QString> widths;
            for (auto it = width.globalMatch(QString::fromUtf8(svg)); it.hasNext();) {
                widths.insert(it.next().captured(1));
            }
            QVERIFY2(all.isEmpty() || widths == all, where);
            all = widths;
        }
    }

    void looksLikeItsFile_data() { addEverySymbol(); }

    // In its own size, what is drawn for an item that says nothing is what a viewer shows of the file.
    void looksLikeItsFile()
    {
        QFETCH(QString, type);
        const auto file = SymbolFile::ofType(type);
        const QSize size = file->size().toSize();
        QByteArray text;
        QTextStream stream(&text);
        file->root().save(stream, 0);
        stream.flush();
        const QImage expected = picture(text, size);
        const QByteArray svg =
            drawn({{"BoundingBox", QString("0,0,%1,%2").arg(size.width()).arg(size.height())}}, type, size);
        const QString middle = QString("1,0,0,1,%1,%2").arg(size.width() / 2.0).arg(size.height() / 2.0);
        QCOMPARE(drawn({{"Matrix", middle}}, type, size), svg);
        const QImage image = picture(svg, size);
        int differing = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                differing += qAbs(qGray(image.pixel(x, y)) - qGray(expected.pixel(x, y))) > 60 ? 1 : 0;
            }
        }
        QVERIFY2(differing <= size.width() * size.height() / 100, qPrintable(QString::number(differing)));
    }

    void keepsLiquidsLevel_data() { addEverySymbol(); }

    // In a vessel that is turned stands as much as in its file, with a level surface.
    void keepsLiquidsLevel()
    {
        QFETCH(QString, type);
        for (const QDomElement &part : partsOf(type)) {
            if (!part.hasAttribute("data-vessel")) {
                continue;
            }
            const auto vessel = svgPath(part.attribute("data-vessel"));
            const auto usual = svgOutline(part.firstChildElement());
            QVERIFY(vessel && vessel->boundingRect().adjusted(-1, -1, 1, 1).contains(usual->boundingRect()));
            double upright = 0;
            for (const char *angle : {"0", "0.7", "1.57079633", "3.14159265"}) {
                QJsonObject item{{"BoundingBox", "60,60,360,360"}, {"ArtObj_DisplayLiquid", "1"}, {"Angle", angle}};
                for (const char *key : {"ArtObj_LiquidColor", "ArtObj_Color"}) {
                    item.insert(key, "255,1,2,3");
                }
                const QRegularExpression liquid(" d=\"([^\"]*)\" fill=\"#010203\"");
                const auto body = svgPath(liquid.match(drawn(item, type, {420, 420})).captured(1));
                QVERIFY(body && !body->isEmpty());
                upright = upright > 0 ? upright : enclosedArea(*body);
                QVERIFY2(qAbs(enclosedArea(*body) - upright) < 0.02 * upright, angle);
                int high = 0;
                for (int i = 0; i < body->elementCount(); ++i) {
                    high += body->elementAt(i).y < body->boundingRect().top() + 0.02 ? 1 : 0;
                }
                QVERIFY2(high >= 2, angle);
            }
        }
    }

    void takesWhatItemsSay_data() { addEverySymbol(); }

    // Every colour that the file has a role for, and every condition, is seen.
    void takesWhatItemsSay()
    {
        QFETCH(QString, type);
        const auto file = SymbolFile::ofType(type);
        const QJsonObject plain{{"BoundingBox", "0,0,200,200"}};
        QJsonObject on = plain;
        QJsonObject off = plain;
        QStringList roles;
        for (const QDomElement &part : partsOf(type)) {
            roles += part.attribute("class").split(' ', Qt::SkipEmptyParts);
            for (const char *name : {"data-if", "data-unless"}) {
                const QString condition = part.attribute(name);
                const QString key = condition.section('=', 0, 0);
                if (!key.isEmpty()) {
                    on.insert(key, condition.contains('=') ? condition.section('=', 1) : "1"_s);
                    off.insert(key, condition.contains('=') ? "none"_s : "0"_s);
                    const auto changes = [&](QJsonObject item) {
                        item.insert(key, on.value(key));
                        const QByteArray shown = drawn(item, type, QSizeF(200, 200));
                        item.insert(key, off.value(key));
                        return drawn(item, type, QSizeF(200, 200)) != shown;
                    };
                    QVERIFY2(changes(plain) || changes(on), qPrintable(key));
                }
            }
            if (part.hasAttribute("data-text")) {
                QJsonObject told = plain;
                told.insert(part.attribute("data-text"), "5 V <");
                on.insert(part.attribute("data-text"), "R");
                QVERIFY(drawn(told, type, QSizeF(200, 200)).contains(">5 V &lt;<"));
            }
        }
        for (const QString &role : qAsConst(roles)) {
            for (const QString &key : subjectColorKeys()) {
                on.insert(key, "255,1,2,3");
                off.insert(key, "255,1,2,3");
                if (file->color(role, ItemView(on)) == QColor(1, 2, 3)) {
                    const QByteArray both = drawn(on, type, QSizeF(200, 200)) + drawn(off, type, QSizeF(200, 200));
                    QVERIFY2(both.contains("#010203"), qPrintable(role));
                }
                on.remove(key);
                off.remove(key);
            }
        }
    }
};

QTEST_MAIN(TestSymbols)
#include "tst_symbols.moc"
