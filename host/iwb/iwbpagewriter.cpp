// SPDX-License-Identifier: MIT
#include "iwb/iwbpagewriter.h"

#include "files/packagenames.h"
#include "files/pictures.h"
#include "iwb/boarddress.h"
#include "iwb/iwbmedia.h"
#include "izqtransformation.h"
#include "lesson/groupplace.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/pagesize.h"
#include "lesson/plainnames.h"
#include "lesson/planegeometry.h"
#include "lesson/shapeforms.h"
#include "lesson/textruns.h"
#include "svg/iwbpage.h"
#include "svg/svggeometry.h"
#include "svg/svgstyle.h"

#include <QLineF>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lessonhost {

namespace {

const QLatin1String svgTag("svg:svg");
const QLatin1String linkTag("svg:a");

// The name of a background's colour.
QString backgroundColor(const QJsonObject &properties)
{
    auto color = backColor(properties.value(SlideKeys::backColor));
    if (!color) {
        color = itemColor(properties.value(SlideKeys::color));
    }
    return color ? color->name(color->alpha() < 255 ? QColor::HexArgb : QColor::HexRgb) : QStringLiteral("#ffffff");
}

// What a picture of an item is called in the package, which is its title on other boards.
QString fileTitle(const QString &type)
{
    QString title;
    const QString name = plainName(type);
    for (const QChar c : name) {
        const bool isPlain = c.unicode() < 128 && (c.isLetterOrNumber() || c == QLatin1Char('-'));
        title += isPlain ? c : QLatin1Char('_');
    }
    return title;
}

QDomElement withinLink(QDomElement element)
{
    while (element.tagName() == linkTag && !element.firstChildElement().isNull()) {
        element = element.firstChildElement();
    }
    return element;
}

// A film of a kind that the format hasn't is a file to open.
QDomElement withFilmLinked(QDomElement element)
{
    QDomElement film = withinLink(element);
    const QString reference = film.attribute(QStringLiteral("xlink:href"));
    if (film.tagName() == QLatin1String("svg:video") && reference.startsWith(QLatin1String("additional/"))) {
        film.setTagName(linkTag);
        film.setAttribute(QLatin1String(filmMark), QStringLiteral("1"));
    }
    return element;
}

// A painted item in a frame of its own instead of the smallest around it.
QImage inFrame(const PaintedItem &item, const QRectF &frame)
{
    const double scale = item.image.width() / item.box.width();
    QImage image((frame.size() * scale).toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawImage((item.box.topLeft() - frame.topLeft()) * scale, item.image);
    return image;
}

const QLatin1String rubbedType("ZQStrokesDeletePixel");

// What a shape's flips do beside its turn, which its element has. Pictures have records for them.
QTransform ownFlips(const ItemView &item)
{
    const bool isFlipped = item.flag(ItemKeys::flippedAcross) || item.flag(ItemKeys::flippedDown);
    const auto box = isFlipped && shapeForm(item.type()) && !item.matrix() ? item.box() : std::nullopt;
    return box ? turnAbout(box->center(), item.angle()).inverted() * turnAndFlips(item, box->center()) : QTransform();
}

// Elements are turned as they are; lines and boxes without an upper side look the same from behind.
bool canMove(const QTransform &moved, const ItemView &item)
{
    if (moved.isIdentity()) {
        return true;
    }
    constexpr double tolerance = 1e-6;
    const auto parts = scaleAndTurn(moved);
    const bool isRigid = parts && qAbs(parts->scaleX - 1) < tolerance && qAbs(qAbs(parts->scaleY) - 1) < tolerance;
    return isRigid && (parts->scaleY > 0 || shapeForm(item.type()) || isInk(item.type()));
}

/*!
 * A stroke on the page, to be asked whether others come near.
 */
struct Track
{
    QPolygonF points;
    double reach; //!< to each side
    QRectF extent;

    explicit Track(const PlacedItem &stroke)
    {
        const ItemView view(stroke.item);
        points = (placeOfStroke(view) * stroke.placed).map(view.strokePoints());
        double width = view.numbers(ItemKeys::width).value(0, strokeWidth);
        const QVector<double> widths = view.numbers(QLatin1String("PointBrushWid"));
        for (const double other : widths) {
            width = qMax(width, other);
        }
        reach = width * view.scale() / 2;
        extent = extentOf(points).adjusted(-reach, -reach, reach, reach);
    }
};

double distanceTo(const QPointF &point, const QPointF &from, const QPointF &to)
{
    const QPointF along = to - from;
    const double length = QPointF::dotProduct(along, along);
    const double part = length > 0 ? qBound(0.0, QPointF::dotProduct(point - from, along) / length, 1.0) : 0;
    const QPointF apart = point - (from + part * along);
    return std::hypot(apart.x(), apart.y());
}

// Whether one stroke comes over the other. Of lines that are too long to be told, their boxes count.
bool meet(const PlacedItem &stroke, const PlacedItem &other)
{
    constexpr double mostWork = 1e7;
    const Track one(stroke);
    const Track two(other);
    if (one.points.isEmpty() || two.points.isEmpty() || !one.extent.intersects(two.extent)) {
        return false;
    }
    if (double(one.points.size()) * two.points.size() > mostWork) {
        return true;
    }
    const double reach = one.reach + two.reach;
    const auto last = [](const Track &track, int i) { return track.points.at(qMin(i + 1, track.points.size() - 1)); };
    for (int i = 0; i < one.points.size(); ++i) {
        const QLineF piece(one.points.at(i), last(one, i));
        for (int k = 0; k < two.points.size(); ++k) {
            const QLineF rubbed(two.points.at(k), last(two, k));
            const double apart = std::min(
                {distanceTo(piece.p1(), rubbed.p1(), rubbed.p2()), distanceTo(rubbed.p1(), piece.p1(), piece.p2()),
                 distanceTo(piece.p2(), rubbed.p1(), rubbed.p2()), distanceTo(rubbed.p2(), piece.p1(), piece.p2())});
            if (apart < reach || piece.intersects(rubbed, nullptr) == QLineF::BoundedIntersection) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

IwbPageWriter::IwbPageWriter(const IwbItemWriter::Setting &setting)
    : m_plugin(setting.plugin)
    , m_media(setting.media)
    , m_isStored(setting.isStored)
    , m_keepsInk(setting.keepsInk)
    , m_items(setting)
{
}

// What stands around an element, in it and behind it is called as it is, with an ending.
void IwbPageWriter::setUniqueInDocument()
{
    m_isUniqueInDocument = true;
    m_ids = UniqueIds({QLatin1String("_link"), QLatin1String(soundSign), QLatin1String(filmSign),
                       QLatin1String(lineFill), QLatin1String(coverBefore)});
}

void IwbPageWriter::start(const QJsonObject &presentation, const QJsonObject &firstSlide)
{
    m_pageSize = QSizeF(itemNumber(presentation.value(PresentationKeys::width)),
                        itemNumber(presentation.value(PresentationKeys::height)));
    if (!(m_pageSize.width() > 0) || !(m_pageSize.height() > 0)) {
        m_pageSize = pageOfSourceRect(valueText(firstSlide.value(SlideKeys::sourceRect)));
    }
    QJsonObject size{{PresentationKeys::width, exactText(m_pageSize.width())},
                     {PresentationKeys::height, exactText(m_pageSize.height())}};
    const QString id = withoutControlCharacters(valueText(presentation.value(PresentationKeys::id)));
    if (!id.isEmpty()) {
        size.insert(PresentationKeys::id, id);
    }
    m_document = m_plugin->tranPresJSON2IWB({}, size);
    QDomElement svg = m_document.documentElement().firstChildElement(svgTag);
    svg.setAttribute(QStringLiteral("viewBox"),
                     QStringLiteral("0 0 %1 %2").arg(exactText(m_pageSize.width()), exactText(m_pageSize.height())));
}

QDomDocument IwbPageWriter::takeDocument()
{
    m_behind.clear();
    m_items.letGo();
    return std::exchange(m_document, {});
}

QDomElement IwbPageWriter::pageSet(const QDomDocument &document)
{
    return document.documentElement().firstChildElement(svgTag).firstChildElement(QStringLiteral("svg:pageset"));
}

QDomElement IwbPageWriter::addPage(const QJsonObject &slide, int number, const SlideLosses &losses)
{
    m_number = number;
    m_paintedWords.clear();
    m_paintedFamilies.clear();
    if (!m_isUniqueInDocument) {
        m_ids = {};
    }
    // The identifier names a file.
    QString id = withoutControlCharacters(valueText(slide.value(SlideKeys::id)));
    if (!problemWithFileName(id).isEmpty()) {
        id = QLatin1String("slide") + QString::number(number);
    }
    m_ids.take(id + QLatin1String("_rect"));
    m_ids.take(id + QLatin1String("_bgd"));
    const QString picture = background(slide, id, losses);
    QDomElement page = m_plugin->tranSlideJSON2IWB(m_document,
                                                   {
                                                       {QStringLiteral("index"), number},
                                                       {SlideKeys::id, id},
                                                       {QStringLiteral("x"), QStringLiteral("0")},
                                                       {QStringLiteral("y"), QStringLiteral("0")},
                                                       {PresentationKeys::width, exactText(m_pageSize.width())},
                                                       {PresentationKeys::height, exactText(m_pageSize.height())},
                                                       {SlideKeys::backColor, backgroundColor(slide)},
                                                       {QStringLiteral("AttachFile"), picture},
                                                   });
    if (!page.isNull()) {
        pageSet(m_document).appendChild(page);
        fillPage(page, picture);
    }
    return page;
}

// The reference of the background picture, which the plug-in will say is a png, or nothing.
QString IwbPageWriter::background(const QJsonObject &slide, const QString &id, const SlideLosses &losses)
{
    const QString owner = QStringLiteral("slide");
    QStringList references = slide.value(SlideKeys::files).toString().split(QLatin1Char(','));
    references.append(slide.value(SlideKeys::document).toString());
    references.removeAll(QString());
    QString chosen;
    for (const QString &reference : qAsConst(references)) {
        IwbMedia::File file;
        file.source = m_media->find(reference);
        if (file.source.isEmpty()) {
            const bool isPaper = reference.startsWith(QLatin1String("ID_SLIDE_NOTEBOOK_"));
            losses.file(owner, reference,
                        isPaper ? say("it is a paper of the editor, not a file of the lesson")
                                : say("the lesson has no such file"));
            continue;
        }
        if (m_media->file(chosen).source == file.source) {
            continue;
        }
        if (!chosen.isEmpty()) {
            losses.file(owner, reference, say("a page has one background picture"));
            continue;
        }
        const Picture picture(file.source);
        if (!picture.problem().isEmpty()) {
            losses.file(owner, reference, picture.problem());
            continue;
        }
        file.isConverted = picture.format() != "png";
        if (file.isConverted && m_isStored) {
            file.picture = picture.image();
            if (file.picture.isNull()) {
                losses.file(owner, reference, say("it can't be made a PNG picture"));
                continue;
            }
        }
        if (picture.format() == "svg" && m_isStored) {
            const QStringList leftOut = picture.drawing().leftOut;
            for (const QString &name : leftOut) {
                losses.file(owner, reference, say("it shows \"%1\", which isn't beside it in the lesson").arg(name));
            }
        }
        chosen = m_media->place(QStringLiteral("images"), file, id + QLatin1String("_bgd.png"));
    }
    return chosen;
}

// The picture is said to be stretched to the page; readers of svg need its size for that.
void IwbPageWriter::fillPage(QDomElement &page, const QString &picture) const
{
    QDomElement image = page.firstChildElement(QStringLiteral("svg:image"));
    if (image.isNull()) {
        return;
    }
    image.setAttribute(QStringLiteral("xlink:href"), picture);
    image.setAttribute(QStringLiteral("width"), exactText(m_pageSize.width()));
    image.setAttribute(QStringLiteral("height"), exactText(m_pageSize.height()));
    image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
}

QVector<IwbPageWriter::WrittenItem> IwbPageWriter::addItems(QDomElement &page, const LessonSlide &slide,
                                                            const SlideLosses &losses)
{
    m_rubbing.clear();
    m_place = 0;
    int place = 0;
    for (const QJsonValue &item : slide.items) {
        findRubbing(item.toObject(), {}, place);
    }
    addGame(page, slide);
    QVector<WrittenItem> written;
    for (int i = 0; i < slide.items.size(); ++i) {
        const int first = written.size();
        const QJsonObject item = slide.items.at(i).toObject();
        addItem(page, item, item, losses, written, Around());
        for (int k = first; k < written.size(); ++k) {
            written[k].top = i;
        }
    }
    return written;
}

// Places are counted as addItem() comes by.
void IwbPageWriter::findRubbing(const QJsonObject &item, const QTransform &placed, int &place)
{
    const ItemView view(item);
    const QVector<QJsonObject> children = view.looseChildren();
    if (!children.isEmpty()) {
        const QTransform inner = placeOfChildren(view) * placed;
        for (const QJsonObject &child : children) {
            findRubbing(child, inner, place);
        }
        return;
    }
    ++place;
    if (view.type() == rubbedType && view.isVisible()) {
        m_rubbing.append({place, {item, placed}});
    }
}

void IwbPageWriter::addItem(QDomElement &page, const QJsonObject &given, const QJsonObject &item,
                            const SlideLosses &losses, QVector<WrittenItem> &written, const Around &around)
{
    const ItemView view(item);
    const QVector<QJsonObject> children = view.looseChildren();
    const bool isCovered = m_isUniqueInDocument && view.flag(ItemKeys::cover) && view.isVisible();
    if (!children.isEmpty()) {
        const QVector<QJsonObject> own = ItemView(given).childObjects();
        const int first = written.size();
        const Around inner{true, placeOfChildren(view) * around.placed,
                           around.ignoresEraser || view.flag(ItemKeys::ignoresEraser)};
        for (int i = 0; i < children.size(); ++i) {
            addItem(page, own.at(i), children.at(i), losses, written, inner);
        }
        const auto shown = std::count_if(written.cbegin() + first, written.cend(),
                                         [](const WrittenItem &row) { return !row.id.isEmpty(); });
        if (isCovered) {
            addCover(page, idOf(given), extentOfChildren(view), inner.placed);
        }
        // Boards have groups, but none within groups.
        const bool staysGroup = m_isUniqueInDocument && !around.isGroup && shown > 1
            && ItemView(given).type() == QLatin1String("ZQGroupItem");
        if (!staysGroup) {
            losses.takenApart(given);
        }
        return;
    }
    ++m_place;
    WrittenItem row;
    row.given = given;
    row.item = item;
    row.id = idOf(given);
    QDomElement element = write({item, around.placed}, row, around, losses);
    if (m_isUniqueInDocument) {
        element = withFilmLinked(element);
    }
    const QDomElement media = withinLink(element);
    if (m_makesPictures && media.tagName() == linkTag) {
        addSign(media, item);
    }
    if (media.hasAttribute(QLatin1String(filmMark))) {
        losses.note(given, say("other boards show a picture that opens it"));
    }
    if (element.isNull()) {
        m_ids.giveBack(row.id);
        row.id.clear();
    } else {
        for (const QDomElement &behind : qAsConst(m_behind)) {
            page.appendChild(behind);
        }
        page.appendChild(element);
        if (isCovered) {
            const auto place = view.place();
            const QTransform turned = place ? turnAbout(place->box.center(), place->angle) : QTransform();
            addCover(page, row.id, place ? place->box : toldExtent(view), turned * around.placed);
        }
    }
    // What the group would open is lost with the group. A number names no file.
    if (!element.isNull() && !m_items.missingFile().isEmpty() && ItemView(given).has(ItemKeys::linkType)
        && given.value(ItemKeys::linkValue).isString()) {
        losses.file(given, m_items.missingFile(), say("the lesson has no such file to open"));
    }
    written.append(row);
}

// The element of an item, or of what shows it.
QDomElement IwbPageWriter::write(const PlacedItem &item, WrittenItem &row, const Around &around,
                                 const SlideLosses &losses)
{
    const ItemView view(item.item);
    const QVector<PlacedItem> rubbing = around.ignoresEraser ? QVector<PlacedItem>() : rubbingOf(item);
    const QTransform moved = ownFlips(view) * item.placed;
    const bool isDrawn = needsPicture(item, rubbing, moved);
    m_behind.clear();
    QDomElement element;
    if (!isDrawn) {
        element = m_items.write(m_document, item.item, row.id, losses, !moved.isIdentity());
        row.line = m_items.shortLine();
        QDomElement inner = withinLink(element);
        if (canMove(moved, view) && !inner.isNull()) {
            moveOnPage(inner, moved);
            row.placed = moved;
            row.isMoved = !item.placed.isIdentity();
        }
    }
    const bool isLine = isInk(view.type()) && !isDrawn; // that was asked to be left out, or has no points
    if (element.isNull() && m_painter) {
        element = isLine ? QDomElement() : paintedOf(item, rubbing, isDrawn, row);
        const Sentence why = isDrawn ? Sentence() : m_items.whyNot();
        const bool isHidden = why.isEmpty() && !view.isVisible() && m_makesPictures;
        row.isPicture        ? losses.picture(row.given)
            : row.isOutlined ? losses.outlined(row.given)
                             : losses.item(row.given, isHidden ? say("it is hidden") : why);
    }
    return element;
}

// Of an item that isn't to be seen there are elements at most. Ink of which something was rubbed out is no more than a
// picture.
QDomElement IwbPageWriter::paintedOf(const PlacedItem &item, const QVector<PlacedItem> &rubbing, bool isDrawn,
                                     WrittenItem &row)
{
    const ItemView view(item.item);
    const bool isPicture = isDrawn && isInk(view.type());
    const ItemPainter::Form form = isPicture  ? ItemPainter::Picture
        : m_makesPictures && view.isVisible() ? ItemPainter::Either
                                              : ItemPainter::Elements;
    PlacedItem shown = item;
    shown.item.insert(ItemKeys::visible, true);
    const auto painted = m_painter->paint(shown, rubbing, m_pageSize, form);
    if (!painted) {
        return {};
    }
    if (painted->elements.isEmpty()) {
        const QDomElement picture = addPicture(*painted, item.item, row.id, fileTitle(view.type()));
        row.isPicture = !picture.isNull();
        return picture;
    }
    noteTexts(*painted);
    m_behind = m_items.writeElements(m_document, item.item, row.id, painted->elements);
    row.isOutlined = !m_behind.isEmpty();
    row.elements = painted->elements.size();
    return row.isOutlined ? m_behind.takeLast() : QDomElement();
}

// What rubs out a part of a stroke.
QVector<PlacedItem> IwbPageWriter::rubbingOf(const PlacedItem &item) const
{
    const ItemView view(item.item);
    QVector<PlacedItem> rubbing;
    if (!isInk(view.type()) || view.flag(ItemKeys::ignoresEraser)) {
        return rubbing;
    }
    for (const Rubbing &other : m_rubbing) {
        if (other.place > m_place && meet(item, other.item)) {
            rubbing.append(other.item);
        }
    }
    return rubbing;
}

// Whether an element of an item wouldn't show what the slide does.
bool IwbPageWriter::needsPicture(const PlacedItem &item, const QVector<PlacedItem> &rubbing, const QTransform &moved)
{
    const ItemView view(item.item);
    const bool isStroke = isInk(view.type());
    if (!m_makesPictures || !view.isVisible() || (isStroke && !m_keepsInk)) {
        return false;
    }
    const bool hasTexture = view.type() == QLatin1String("ZQStrokeTexture")
        && !m_media->find(view.text(QLatin1String("DrawTexture"))).isEmpty();
    return !rubbing.isEmpty() || hasTexture || !canMove(moved, view);
}

void IwbPageWriter::setPainter(ItemPainter *painter, bool makesPictures)
{
    m_painter = painter;
    m_makesPictures = painter && makesPictures;
    m_items.setTellsFormless(!painter);
}

void IwbPageWriter::noteTexts(const PaintedItem &painted)
{
    m_paintedWords += painted.words;
    m_paintedFamilies += painted.families;
}

QDomElement IwbPageWriter::addPicture(const PaintedItem &picture, const QJsonObject &item, const QString &id,
                                      const QString &title)
{
    noteTexts(picture);
    IwbMedia::File file;
    file.source = QStringLiteral("page%1/%2.png").arg(m_number).arg(id);
    file.isConverted = true;
    file.isMade = true;
    file.picture = picture.image;
    const QString name = QStringLiteral("%1_%2-%3.png").arg(title).arg(m_number).arg(++m_pictures);
    const QString reference = m_media->place(QStringLiteral("images"), file, name);
    return m_items.writePicture(m_document, item, id, reference, picture.box);
}

// It moves with nothing.
void IwbPageWriter::addGame(QDomElement &page, const LessonSlide &slide)
{
    const auto picture = m_makesPictures ? m_painter->paintGame(slide, m_pageSize) : std::nullopt;
    if (picture) {
        const QString id = m_ids.take(page.attribute(QStringLiteral("id")) + QLatin1String(slideGame));
        page.appendChild(addPicture(*picture, {}, id, QStringLiteral("Game")));
    }
}

// Whatever groups do to its box, it keeps its corners.
void IwbPageWriter::addCover(QDomElement &page, const QString &id, const QRectF &box, const QTransform &placed)
{
    if (box.isEmpty()) {
        return;
    }
    QDomElement cover = m_document.createElement(QStringLiteral("svg:polygon"));
    QPolygonF corners = placed.map(QPolygonF(box));
    corners.removeLast();
    QStringList points;
    for (const QPointF &corner : qAsConst(corners)) {
        points.append(svgCoordinate(corner.x(), pluginDigits) + QLatin1Char(',')
                      + svgCoordinate(corner.y(), pluginDigits));
    }
    cover.setAttribute(QStringLiteral("id"), id + QLatin1String(coverBefore));
    cover.setAttribute(QStringLiteral("points"), points.join(QLatin1Char(' ')));
    const SvgPaint paint = coverPaint();
    cover.setAttribute(QStringLiteral("fill"), paint.fill.name());
    cover.setAttribute(QStringLiteral("fill-opacity"), svgCoordinate(paint.fill.alphaF(), pluginDigits));
    cover.setAttribute(QStringLiteral("stroke"), paint.line.name());
    cover.setAttribute(QStringLiteral("stroke-width"), svgCoordinate(paint.lineWidth));
    page.appendChild(cover);
}

// Others see a sound only where its link holds something, and so it is with films that they can't play.
void IwbPageWriter::addSign(QDomElement link, const QJsonObject &item)
{
    QJsonObject sound = item;
    for (const QLatin1String key : {ItemKeys::linkType, ItemKeys::locked, ItemKeys::angle, ItemKeys::matrix}) {
        sound.remove(key);
    }
    const auto place = ItemView(item).place();
    const QRectF frame = place ? place->box : QRectF();
    if (place) {
        sound.insert(ItemKeys::box, boxText(frame));
    }
    auto painted = ItemView(sound).isVisible() ? m_painter->paint({sound, {}}, {}, m_pageSize, ItemPainter::Picture)
                                               : std::nullopt;
    if (!painted) {
        return;
    }
    if (!frame.isEmpty()) {
        painted->image = painted->image.isNull() ? QImage() : inFrame(*painted, frame);
        painted->box = frame;
    }
    const QDomElement sign = addPicture(*painted, sound, signIdOf(link), fileTitle(ItemView(sound).type()));
    if (!sign.isNull() && sign.tagName() == QLatin1String("svg:image")) {
        link.appendChild(sign);
    }
}

// Of an identifier that two items have, the second gets one of its own: records know elements by it.
QString IwbPageWriter::idOf(const QJsonObject &item)
{
    QString id = withoutControlCharacters(ItemView(item).id());
    id = id.isEmpty() ? QStringLiteral("item%1_%2").arg(m_number).arg(++m_generatedIds) : id;
    if (!m_isUniqueInDocument) {
        return m_ids.take(id);
    }
    // The format's identifiers are of one line.
    static const QRegularExpression lineBreaks(QStringLiteral("[\\t\\n\\r]+"));
    id.replace(lineBreaks, QStringLiteral(" "));
    // Pages have identifiers, too, and so have what stands around an element, in it and behind it.
    static const QRegularExpression otherName(QStringLiteral("^page\\d+$|%1\\d+$|%2$|%3$|%4\\d+$")
                                                  .arg(QLatin1String(markedSpan), QLatin1String(coverBefore),
                                                       QLatin1String(slideGame), QLatin1String(partOfItem)));
    id = otherName.match(id).hasMatch() ? id + QLatin1String("_item") : id;
    QString own = m_ids.take(id);
    while (!m_ids.takeEndings(own)) {
        own = m_ids.take(id);
    }
    return own;
}

} // namespace lessonhost
