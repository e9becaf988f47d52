// SPDX-License-Identifier: MIT
#include "drawings/mediadrawing.h"

#include "canvas/outline.h"
#include "canvas/svgelements.h"
#include "drawings/itemoutline.h"
#include "lesson/plainnames.h"
#include "lesson/planegeometry.h"
#include "sentences/sentence.h"
#include "svg/svgstyle.h"

#include <QFileInfo>
#include <QFontMetricsF>

namespace lessonhost {

namespace {

/*!
 * The sign of a kind of file, in a square.
 */
struct Sign
{
    const char *type;
    const char *face; //!< filled
    const char *lines; //!< beside it, or cut out of it
    bool isCut = false;
};

const Sign signs[] = {
    {"ZQMediaVideo", "M 0 .12 L 1 .12 L 1 .88 L 0 .88 Z M .38 .3 L .38 .7 L .72 .5 Z", ""},
    {"ZQMediaFlash", "M 0 .12 L 1 .12 L 1 .88 L 0 .88 Z M .56 .2 L .28 .56 L .47 .56 L .42 .8 L .72 .42 L .53 .42 Z",
     ""},
    {"ZQMediaAudio", "M 0 .35 L .22 .35 L .5 .1 L .5 .9 L .22 .65 L 0 .65 Z",
     "M .64 .36 C .74 .44 .74 .56 .64 .64 M .76 .22 C .94 .36 .94 .64 .76 .78"},
    {"ZQMediaDoc", "M .15 0 L .62 0 L .85 .23 L .85 1 L .15 1 Z M .62 0 L .62 .23 L .85 .23 Z",
     "M .28 .42 L .72 .42 M .28 .58 L .72 .58 M .28 .74 L .56 .74", true},
    {"ZQDyCoursewareItem", "M .94 .8 L 1 .84 L .94 .88 Z M .11 .06 L .15 0 L .19 .06 Z",
     "M .15 0 L .15 1 M 0 .84 L 1 .84 M .24 .12 C .42 .94 .62 .94 .8 .12"},
};

const Sign *signOf(const QString &type)
{
    for (const Sign &sign : signs) {
        if (type == QLatin1String(sign.type)) {
            return &sign;
        }
    }
    return nullptr;
}

const QColor ink(0x3d, 0x4f, 0x66);
const QColor paper(0xf3, 0xf5, 0xf8);
constexpr double lineHeight = 1.3;
constexpr double largestName = 30;

// What an item's file is called in the lesson. A worksheet stands behind its picture.
QString fileOf(const ItemView &item)
{
    const QJsonValue document = item.json().value(ItemKeys::document);
    if (document.isArray()) {
        return valueText(document.toArray().at(1));
    }
    for (const QLatin1String key : {ItemKeys::resource, ItemKeys::mediaFiles, ItemKeys::document}) {
        if (item.has(key)) {
            return item.firstText(key);
        }
    }
    return {};
}

QString coverOf(const ItemView &item)
{
    const QJsonValue document = item.json().value(ItemKeys::document);
    return valueText(document.isArray() ? document.toArray().at(0) : document);
}

// The name, and the kind below.
Sentences linesToShow(const ItemView &item)
{
    const QString file = fileOf(item).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString fileName = QFileInfo(file).fileName();
    const QString ownName = item.text(QLatin1String("name")).simplified();
    Sentence kind = saidName(item.type());
    const QString suffix = QFileInfo(fileName).suffix();
    constexpr int longestSuffix = 5;
    if (!suffix.isEmpty() && suffix.size() <= longestSuffix) {
        kind = say("%1, %2").arg(kind, suffix.toUpper());
    }
    const QString name = ownName.isEmpty() ? fileName : ownName;
    return name.isEmpty() ? Sentences{kind} : Sentences{Sentence(name), kind};
}

// As many of the lines as can be read in an area of this height.
Sentences linesWithin(const PlainSvg &svg, const Sentences &lines, double height)
{
    return lines.mid(0, int(height / (svg.readableSize() * lineHeight)));
}

// Lines of the same size in an area, shortened where they would be small.
void addLines(PlainSvg &svg, const Sentences &lines, const QRectF &area)
{
    if (lines.isEmpty()) {
        return;
    }
    const double height = area.height() / lines.size();
    const double width = area.width() * 0.92;
    const double highest = qMin(largestName, height / lineHeight);
    constexpr int pixels = 100;
    QFont font;
    font.setFamilies(labelFamilies());
    font.setPixelSize(pixels);
    const QFontMetricsF metrics(font);
    double needed = 1; // for letters one pixel high
    for (const Sentence &line : lines) {
        needed = qMax(needed, metrics.horizontalAdvance(svg.said(line)) / pixels);
    }
    const double size = qMin(highest, qMax(width / needed, qMax(svg.readableSize(), highest / 2)));
    const auto shortened = [&](const QString &text) {
        return metrics.elidedText(text, Qt::ElideMiddle, width / size * pixels + 1);
    };
    for (int i = 0; i < lines.size(); ++i) {
        svg.addLabel(Sentence(shortened(lines.at(i).english()), shortened(lines.at(i).local())),
                     QRectF(area.left(), area.top() + i * height, area.width(), height), size,
                     i == 0 ? QColor(Qt::black) : ink);
    }
}

void addSign(PlainSvg &svg, const Sign &sign, const QRectF &square)
{
    SvgPaint paint;
    paint.line = Qt::transparent;
    paint.fill = ink;
    QPainterPath face = outlineIn(square, sign.face);
    svg.addPath(face, paint);
    if (*sign.lines) {
        paint.fill = Qt::transparent;
        paint.line = sign.isCut ? paper : ink;
        paint.lineWidth = square.width() * 0.06;
        svg.addPath(outlineIn(square, sign.lines), paint);
    }
}

QRectF squareIn(const QRectF &area, double part)
{
    const double side = qMin(area.width(), area.height()) * part;
    return {area.center().x() - side / 2, area.center().y() - side / 2, side, side};
}

bool drawCard(Canvas &canvas, const ItemView &item)
{
    const auto place = item.place();
    if (!place || !(place->box.width() > 0 && place->box.height() > 0)) {
        return false;
    }
    const Sign &sign = *signOf(item.type());
    const bool hasPicture = canvas.addPicture(coverOf(item), item.box().value_or(QRectF()), placeOnPage(item));
    if (hasPicture && item.type() == QLatin1String("ZQDyCoursewareItem")) {
        return true;
    }
    PlainSvg &svg = canvas.svg();
    const PlainSvg::Scope turn(svg, turnAbout(place->box.center(), place->angle));
    const QRectF &box = place->box;
    svg.addRectangle(box, QColor(0x8a, 0x94, 0xa3), hasPicture ? QColor(255, 255, 255, 0) : paper);
    Sentences lines = linesToShow(item);
    QRectF signArea = box;
    QRectF textArea;
    if (box.width() > 2.2 * box.height()) {
        signArea.setWidth(box.height());
        textArea = box.adjusted(box.height(), 0, 0, 0);
        lines = linesWithin(svg, lines, textArea.height());
    } else {
        constexpr double textShare = 0.42;
        lines = linesWithin(svg, lines, box.height() * textShare);
        const double height = qMin(box.height() * textShare, lines.size() * largestName * lineHeight);
        textArea = box.adjusted(0, box.height() - height, 0, 0);
        signArea.setBottom(textArea.top());
    }
    if (hasPicture) {
        SvgPaint veil;
        veil.line = Qt::transparent;
        veil.fill = QColor(255, 255, 255, 200);
        QPainterPath path;
        path.addRect(textArea);
        path.addRect(squareIn(signArea, 0.5));
        svg.addPath(path, veil);
    }
    addSign(svg, sign, squareIn(signArea, hasPicture ? 0.4 : 0.66));
    addLines(svg, lines, textArea.adjusted(0, 0, 0, -textArea.height() * 0.06));
    return true;
}

bool drawPicture(Canvas &canvas, const ItemView &item)
{
    const auto box = item.box();
    const QString file = item.firstText(item.has(ItemKeys::resource) ? ItemKeys::resource : ItemKeys::mediaFiles);
    return box && canvas.addPicture(file, *box, placeOnPage(item));
}

} // namespace

SvgDrawing mediaDrawing(const QString &type)
{
    if (type == QLatin1String("ZQImagePic")) {
        return &drawPicture;
    }
    return signOf(type) ? &drawCard : nullptr;
}

} // namespace lessonhost
