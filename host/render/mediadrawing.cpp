#include "render/mediadrawing.h"

#include "lesson/plainnames.h"
#include "lesson/planegeometry.h"
#include "render/itemoutline.h"
#include "render/outline.h"
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
constexpr double smallestLetters = 11;
constexpr double largestLetters = 30;

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

QString pictureOf(const ItemView &item)
{
    const QJsonValue document = item.json().value(ItemKeys::document);
    return valueText(document.isArray() ? document.toArray().at(0) : document);
}

// The name, and the kind below.
QStringList linesOf(const ItemView &item)
{
    const QString file = fileOf(item).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString fileName = QFileInfo(file).fileName();
    const QString ownName = item.text(QLatin1String("name")).simplified();
    QString kind = plainName(item.type());
    const QString suffix = QFileInfo(fileName).suffix();
    constexpr int longestSuffix = 5;
    if (!suffix.isEmpty() && suffix.size() <= longestSuffix) {
        kind += QLatin1String(", ") + suffix.toUpper();
    }
    const QString name = ownName.isEmpty() ? fileName : ownName;
    return name.isEmpty() ? QStringList{kind} : QStringList{name, kind};
}

// Lines of the same size in an area, shortened where they would be small. Nothing where they couldn't be read.
void addLines(PlainSvg &svg, const QStringList &lines, const QRectF &area)
{
    const double height = area.height() / lines.size();
    const double width = area.width() * 0.92;
    double size = qMin(largestLetters, height / 1.3);
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(100);
    double needed = 0; // for letters one pixel high
    for (const QString &line : lines) {
        needed = qMax(needed, QFontMetricsF(font).horizontalAdvance(line) / 100);
    }
    size = qMin(size, qMax(width / qMax(needed, 1.0), qMax(smallestLetters, size * 0.6)));
    constexpr double fewestLetters = 4;
    if (size < smallestLetters || width < fewestLetters * size) {
        return;
    }
    font.setPixelSize(qRound(size));
    const QFontMetricsF metrics(font);
    for (int i = 0; i < lines.size(); ++i) {
        svg.addLabel(metrics.elidedText(lines.at(i), Qt::ElideMiddle, width),
                     QRectF(area.left(), area.top() + i * height, area.width(), height), size,
                     i + 1 < lines.size() ? QColor(Qt::black) : ink);
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
    const bool hasPicture = canvas.addPicture(pictureOf(item), item.box().value_or(QRectF()), placeOnPage(item));
    if (hasPicture && item.type() == QLatin1String("ZQDyCoursewareItem")) {
        return true;
    }
    PlainSvg &svg = canvas.svg();
    const PlainSvg::Scope turn(svg, turnAbout(place->box.center(), place->angle));
    const QRectF &box = place->box;
    svg.addRectangle(box, QColor(0x8a, 0x94, 0xa3), hasPicture ? QColor(255, 255, 255, 0) : paper);
    QStringList lines = linesOf(item);
    QRectF signArea = box;
    QRectF textArea;
    if (box.width() > 2.2 * box.height()) {
        signArea.setWidth(box.height());
        textArea = box.adjusted(box.height(), 0, 0, 0);
    } else {
        const double height = qMin(box.height() * 0.42, lines.size() * largestLetters * 1.4);
        textArea = box.adjusted(0, box.height() - height, 0, 0);
        if (textArea.height() >= lines.size() * smallestLetters * 1.3) {
            signArea.setBottom(textArea.top());
        }
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
    const QRectF text = textArea.adjusted(0, textArea.height() * 0.06, 0, -textArea.height() * 0.1);
    addLines(svg, lines, text);
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
