// SPDX-License-Identifier: MIT
#include "svg/svgpagebuilder.h"

#include "lesson/curtain.h"
#include "lesson/isoneof.h"
#include "lesson/itemvalues.h"
#include "lesson/missingfonts.h"
#include "lesson/numbertexts.h"
#include "lesson/planegeometry.h"
#include "svg/inkline.h"
#include "svg/svggeometry.h"
#include "svg/svgnames.h"
#include "svg/svgpath.h"
#include "svg/svgtext.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <cmath>

namespace lessonhost {

namespace {

// Names that the plug-in compares, so that the background is found whatever the file called it.
const QLatin1String backgroundRect("background_rect");
const QLatin1String backgroundImage("background_bgd");

// Elements that show nothing by themselves.
constexpr const char *silentElements[] = {"defs", "pageset", "pageSet", "page"};

// Elements whose own readers look at what is within.
constexpr const char *holders[] = {"g", "svg", "a", "switch", "text", "textarea", "textArea"};

bool hasOwnFill(const QDomElement &element)
{
    return element.hasAttribute(QStringLiteral("fill"))
        || svgDeclarations(element.attribute(QStringLiteral("style"))).contains(QStringLiteral("fill"));
}

// Curves as lines that nobody tells from them at a scale.
QVector<SvgOutline> flattened(const QPainterPath &path, double scale)
{
    QVector<SvgOutline> outlines;
    const double largest = scale > 0 ? qBound(1e-3, scale, 1e3) : 1;
    const QList<QPolygonF> polygons = path.toSubpathPolygons(QTransform::fromScale(4 * largest, 4 * largest));
    for (const QPolygonF &polygon : polygons) {
        SvgOutline outline;
        for (const QPointF &point : polygon) {
            outline.points.append(point / (4 * largest));
        }
        outline.closed = polygon.isClosed();
        outlines.append(outline);
    }
    return outlines;
}

// The format that an alternative asks for and that nothing here draws; empty for one that can be shown.
QString unknownFormat(const QDomElement &element)
{
    constexpr const char *known[] = {"bmp", "png",  "jpg", "jpeg", "gif", "svg",
                                     "mpg", "mpeg", "mp4", "swf",  "mp3", "wav"};
    for (const char *name : {"requiredExtensions", "requiredExtension"}) {
        const QString required = element.attribute(QLatin1String(name)).trimmed();
        const QString format = required.section(QLatin1Char('/'), -1).toLower();
        if (!required.isEmpty() && !isOneOf(known, format)) {
            return format;
        }
    }
    const QString suffix = linkTarget(element).section(QLatin1Char('.'), -1).toLower();
    constexpr const char *undrawn[] = {"wmf", "emf", "wmz", "emz"};
    return svgName(element) == QLatin1String("image") && isOneOf(undrawn, suffix) ? suffix : QString();
}

// What fills an open line, and stands behind it.
bool isFillOf(const QDomElement &line, const QDomElement &area)
{
    const QString id = line.attribute(QStringLiteral("id"));
    return !id.isEmpty() && svgName(line) == QLatin1String("polyline") && svgName(area) == QLatin1String("polygon")
        && area.attribute(QStringLiteral("id")) == QString(id + QLatin1String(lineFill));
}

bool isSignOf(const QDomElement &element, const QString &linkId)
{
    const QString id = element.attribute(QStringLiteral("id"));
    return id == linkId + QLatin1String(soundSign) || id == linkId + QLatin1String(filmSign);
}

// The part of a transform that hides an element, as any program may write it.
QRegularExpressionMatch awayPart(const QString &transform)
{
    static const QRegularExpression part(
        QStringLiteral("translate\\(\\s*-(?:1000000(?:\\.0*)?|1e\\+?0?6)(?:[\\s,]+0(?:\\.0*)?)?\\s*\\)"),
        QRegularExpression::CaseInsensitiveOption);
    return transform.isEmpty() ? QRegularExpressionMatch() : part.match(transform);
}

// What covers an item, or a group.
bool isCover(const QDomElement &element)
{
    return svgName(element) == QLatin1String("polygon")
        && element.attribute(QStringLiteral("id")).endsWith(QLatin1String(coverBefore));
}

// Whether what covers an item comes next to it and the links around it.
bool hasCover(QDomElement element, const QString &id)
{
    while (svgName(element.parentNode().toElement()) == QLatin1String("a")) {
        element = element.parentNode().toElement();
    }
    return !id.isEmpty()
        && elementBehind(element).attribute(QStringLiteral("id")) == QString(id + QLatin1String(coverBefore));
}

bool isArrow(const QString &text)
{
    return text == QLatin1String("arrow") || text.startsWith(QLatin1String("url("));
}

} // namespace

SvgPageBuilder::SvgPageBuilder(const IwbDocumentRules &rules)
    : m_rules(rules)
    , m_background(Qt::white)
{
    m_result.root = m_result.document.createElement(QStringLiteral("iwb"));
    m_result.document.appendChild(m_result.root);
    m_result.page = m_result.document.createElement(QStringLiteral("svg:page"));
    m_result.root.appendChild(m_result.page);
    m_items = m_result.document.createElement(QStringLiteral("items"));
    m_result.root.appendChild(m_items);
}

const QHash<QString, SvgPageBuilder::Convert> &SvgPageBuilder::conversions()
{
    static const QHash<QString, Convert> table{
        {QStringLiteral("g"), &SvgPageBuilder::group},
        {QStringLiteral("svg"), &SvgPageBuilder::nestedSvg},
        {QStringLiteral("switch"), &SvgPageBuilder::alternatives},
        {QStringLiteral("a"), &SvgPageBuilder::link},
        {QStringLiteral("rect"), &SvgPageBuilder::rectangle},
        {QStringLiteral("circle"), &SvgPageBuilder::ellipse},
        {QStringLiteral("ellipse"), &SvgPageBuilder::ellipse},
        {QStringLiteral("line"), &SvgPageBuilder::line},
        {QStringLiteral("polyline"), &SvgPageBuilder::polyline},
        {QStringLiteral("polygon"), &SvgPageBuilder::polygon},
        {QStringLiteral("path"), &SvgPageBuilder::path},
        {QStringLiteral("image"), &SvgPageBuilder::image},
        {QStringLiteral("video"), &SvgPageBuilder::image},
        {QStringLiteral("audio"), &SvgPageBuilder::sound},
        {QStringLiteral("text"), &SvgPageBuilder::text},
        {QStringLiteral("textarea"), &SvgPageBuilder::textArea},
        {QStringLiteral("textArea"), &SvgPageBuilder::textArea},
    };
    return table;
}

bool SvgPageBuilder::isDrawn(const QString &svgName)
{
    return !svgName.isEmpty() && !isOneOf(silentElements, svgName);
}

IwbPage SvgPageBuilder::build(const QVector<XmlPart> &layers)
{
    for (const XmlPart &layer : layers) {
        children(layer.element, placeOn(layer.element));
    }
    finishBackground();
    return m_result;
}

IwbPage SvgPageBuilder::build(const QDomElement &page, const QVector<QDomElement> &chosen,
                              const QVector<QDomElement> &backgrounds)
{
    const Place place = placeOn(page);
    m_isPart = true;
    m_otherBackgrounds = backgrounds;
    for (const QDomElement &child : chosen) {
        convert(child, place);
    }
    finishBackground();
    return m_result;
}

SvgPageBuilder::Place SvgPageBuilder::placeOn(const QDomElement &page)
{
    Place place;
    place.style.matrix = QTransform::fromTranslate(-m_rules.viewBox.x(), -m_rules.viewBox.y());
    place.style = place.style.child(page, nativeTransform(page), remarkAbout(page));
    return place;
}

void SvgPageBuilder::children(const QDomElement &holder, const Place &place)
{
    for (QDomElement child = holder.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QVector<QDomElement> pieces = strokePieces(child);
        if (pieces.isEmpty()) {
            convert(child, place);
            continue;
        }
        if (!stroke(pieces, place)) {
            for (const QDomElement &piece : pieces) {
                convert(piece, place);
            }
        }
        child = pieces.last();
    }
}

// Polygons beside each other that are ink and that the writer put into one group.
QVector<QDomElement> SvgPageBuilder::strokePieces(const QDomElement &first) const
{
    const auto groupOf = [this](const QDomElement &element) {
        return m_rules.groups.value(element.attribute(QStringLiteral("id")), -1);
    };
    const bool isInSvgGroup = svgName(first.parentNode().toElement()) == QLatin1String("g");
    QVector<QDomElement> pieces;
    for (QDomElement piece = first; !piece.isNull(); piece = piece.nextSiblingElement()) {
        const IwbRecord record = recordOf(piece);
        const bool isOfStroke =
            pieces.isEmpty() || isInSvgGroup || (groupOf(piece) >= 0 && groupOf(piece) == groupOf(first));
        if (svgName(piece) != QLatin1String("polygon") || !(record.isFreehand || record.isHighlight) || !isOfStroke) {
            break;
        }
        pieces.append(piece);
    }
    return pieces;
}

// One line for what a pen has drawn. False where that would look otherwise.
bool SvgPageBuilder::stroke(const QVector<QDomElement> &pieces, const Place &outer)
{
    QVector<QPolygonF> polygons;
    QColor color;
    Place place = outer;
    const auto nobody = [](const Sentence &) {};
    for (const QDomElement &piece : pieces) {
        const SvgStyle style = outer.style.child(piece, nativeTransform(piece), nobody);
        const SvgPaint paint = svgPaint(style, m_rules.isNative, nobody);
        if (polygons.isEmpty()) {
            color = paint.fill;
            place.style = style;
        }
        if (color.alpha() == 0 || paint.fill != color || style.isVisible() != place.style.isVisible()) {
            return false;
        }
        polygons.append(style.matrix.map(pointsOf(svgNumbers(piece.attribute(QStringLiteral("points"))))));
    }
    const auto line = inkLineOf(polygons);
    if (!line) {
        return false;
    }
    if (pieces.size() > 1) {
        remark(pieces.first(), sayNumber("%n polygons became one stroke", pieces.size()), false);
    } else {
        remark(pieces.first(), say("the polygon became a stroke"), false);
    }
    QPolygonF points = line->points;
    if (points.size() == 1) {
        points.append(points.first());
    }
    IwbElement &item = addItem(pieces.first(), place, QStringLiteral("svg:polyline"));
    item.element.setAttribute(QStringLiteral("points"), svgPoints(points));
    SvgPaint paint;
    paint.fill = QColor(0, 0, 0, 0);
    paint.line = color;
    paint.lineWidth = line->width;
    setPluginPaint(item.element, paint);
    for (const QDomElement &piece : pieces) {
        outer.style.child(piece, nativeTransform(piece), remarkAbout(piece));
        remarkOnExtras(piece, svgName(piece));
        if (piece != pieces.first()) {
            remark(piece, say("it became a part of a stroke"), false);
        }
    }
    return true;
}

void SvgPageBuilder::convert(const QDomElement &element, const Place &outer)
{
    const QString name = svgName(element);
    if (isOneOf(silentElements, name)) {
        nameWithoutPage(element, name);
        return;
    }
    if (isIwbRecord(element)) {
        return; // which was read before
    }
    const auto conversion = conversions().constFind(name);
    if (conversion == conversions().constEnd()) {
        remark(element, say("lessons have nothing like it"));
        return;
    }
    Place place = outer;
    place.style = outer.style.child(element, nativeTransform(element), remarkAbout(element));
    place.isAway = outer.isAway || isAway(element);
    if (!takeBackground(element, name, place.style)) {
        (this->*conversion.value())(element, place);
    }
    remarkOnExtras(element, name);
}

// A set of pages that has none.
void SvgPageBuilder::nameWithoutPage(const QDomElement &element, const QString &name)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull() && name != QLatin1String("defs");
         child = child.nextSiblingElement()) {
        if (isDrawn(svgName(child))) {
            remark(child, say("it stands on no page and is left out"));
        }
    }
}

// What elements may have about them that shows something or acts, and that no item has.
void SvgPageBuilder::remarkOnExtras(const QDomElement &element, const QString &name)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QString attribute = attributes.item(i).nodeName();
        if (attribute.startsWith(QLatin1String("on"))) {
            remark(element, say("the script of %1 is left out").arg(attribute));
        }
    }
    if (isOneOf(holders, name)) {
        return;
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        remark(element, say("<%1> within it is left out").arg(child.tagName()));
    }
}

bool SvgPageBuilder::isAway(const QDomElement &element) const
{
    return m_rules.isOwn && awayPart(element.attribute(QStringLiteral("transform"))).hasMatch();
}

// rotate(a,x,y) with the angle in degrees, where the plug-in wrote it in radians; what is hidden in its place.
QString SvgPageBuilder::nativeTransform(const QDomElement &element) const
{
    const QString transform = element.attribute(QStringLiteral("transform")).trimmed();
    const QLatin1String rotate("rotate(");
    if (isAway(element)) {
        const QRegularExpressionMatch away = awayPart(transform);
        return QString(transform).remove(away.capturedStart(), away.capturedLength()).trimmed();
    }
    if (!m_rules.isNative || m_rules.hasPlainTurns || !transform.startsWith(rotate)
        || transform.count(QLatin1Char(',')) != 2) {
        return transform;
    }
    const QVector<double> numbers = svgNumbers(transform.mid(rotate.size()));
    if (numbers.size() != 3) {
        return transform;
    }
    return rotate + numberText(numbers.at(0) * 180 / M_PI, 12) + QLatin1Char(' ') + numberText(numbers.at(1), 12)
        + QLatin1Char(' ') + numberText(numbers.at(2), 12) + QLatin1Char(')');
}

void SvgPageBuilder::group(const QDomElement &element, const Place &place)
{
    children(element, place);
}

void SvgPageBuilder::nestedSvg(const QDomElement &element, const Place &place)
{
    Place inner = place;
    const QVector<double> box = svgNumbers(element.attribute(QStringLiteral("viewBox")));
    QTransform fit;
    if (box.size() == 4 && box.at(2) > 0 && box.at(3) > 0) {
        const double width = length(element, "width", box.at(2));
        const double height = length(element, "height", box.at(3));
        const double scale = qMin(width / box.at(2), height / box.at(3));
        fit = QTransform::fromTranslate(-box.at(0) - box.at(2) / 2, -box.at(1) - box.at(3) / 2)
            * QTransform::fromScale(scale, scale) * QTransform::fromTranslate(width / 2, height / 2);
    }
    inner.style.matrix =
        fit * QTransform::fromTranslate(length(element, "x"), length(element, "y")) * place.style.matrix;
    children(element, inner);
}

// The first that can be shown, alone.
void SvgPageBuilder::alternatives(const QDomElement &element, const Place &place)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString format = unknownFormat(child);
        if (format.isEmpty()) {
            convert(child, place);
            return;
        }
        const bool hasOther = !child.nextSiblingElement().isNull();
        remark(child,
               (hasOther ? say("%1 can't be shown here, and what stands for it is taken")
                         : say("%1 can't be shown here, and nothing stands for it"))
                   .arg(format),
               !hasOther);
    }
}

void SvgPageBuilder::link(const QDomElement &element, const Place &place)
{
    const QString id = element.attribute(QStringLiteral("id"));
    const QDomElement only = element.firstChildElement();
    if (!only.isNull() && only.nextSiblingElement().isNull() && !id.isEmpty() && isSignOf(only, id)) {
        sound(element, place);
        return;
    }
    if (only.isNull()) {
        if (!element.text().trimmed().isEmpty()) {
            remark(element, say("it links a text that stands in no text element"));
            return;
        }
        media(element, place, QStringLiteral("svg:a"));
        return;
    }
    Place inner = place;
    inner.link = linkTarget(element);
    inner.leadsOutside = recordOf(element).isOutside;
    children(element, inner);
}

void SvgPageBuilder::rectangle(const QDomElement &element, const Place &place)
{
    const QRectF box(length(element, "x"), length(element, "y"), length(element, "width"), length(element, "height"));
    if (!(box.width() > 0) || !(box.height() > 0)) {
        remark(element, say("it has no size"));
        return;
    }
    if (length(element, "rx") > 0 || length(element, "ry") > 0) {
        remark(element, say("its corners are no longer round"), false);
    }
    if (!scaleAndTurn(place.style.matrix)) {
        outline(element, place, QPolygonF() << box.topLeft() << box.topRight() << box.bottomRight() << box.bottomLeft(),
                true);
        return;
    }
    IwbElement &item = addItem(element, place, QStringLiteral("svg:rect"));
    placeBox(item, box, place.style.matrix);
    const SvgPaint paint = paintOf(element, place.style);
    setPluginPaint(item.element, paint);
    if (item.isRevealer && (paint.fill.rgba() != curtainCloth || (paint.line.alpha() > 0 && paint.lineWidth > 0))) {
        remark(element, say("it became a curtain, which has a cloth of its own"), false);
    }
}

void SvgPageBuilder::ellipse(const QDomElement &element, const Place &place)
{
    const bool isCircle = svgName(element) == QLatin1String("circle");
    const double rx = length(element, isCircle ? "r" : "rx");
    const double ry = isCircle ? rx : length(element, "ry");
    if (!(rx > 0) || !(ry > 0)) {
        remark(element, say("it has no size"));
        return;
    }
    const QPointF center = place.style.matrix.map(QPointF(length(element, "cx"), length(element, "cy")));
    const ScaleAndTurn axes = ellipseUnder(place.style.matrix, rx, ry);
    const bool staysCircle = isCircle && qAbs(axes.scaleX - axes.scaleY) <= 1e-6 * axes.scaleX;
    IwbElement &item =
        addItem(element, place, staysCircle ? QStringLiteral("svg:circle") : QStringLiteral("svg:ellipse"));
    item.element.setAttribute(QStringLiteral("cx"), svgCoordinate(center.x()));
    item.element.setAttribute(QStringLiteral("cy"), svgCoordinate(center.y()));
    if (staysCircle) {
        item.element.setAttribute(QStringLiteral("r"), svgCoordinate(axes.scaleX));
    } else {
        item.element.setAttribute(QStringLiteral("rx"), svgCoordinate(axes.scaleX));
        item.element.setAttribute(QStringLiteral("ry"), svgCoordinate(axes.scaleY));
        item.angle = axes.angle;
    }
    setPluginPaint(item.element, paintOf(element, place.style));
}

void SvgPageBuilder::line(const QDomElement &element, const Place &place)
{
    lineBetween(element, place, QPointF(length(element, "x1"), length(element, "y1")),
                QPointF(length(element, "x2"), length(element, "y2")));
}

// from, to: before the transform.
void SvgPageBuilder::lineBetween(const QDomElement &element, const Place &place, QPointF from, QPointF to)
{
    from = place.style.matrix.map(from);
    to = place.style.matrix.map(to);
    const IwbRecord record = recordOf(element);
    bool startsWithArrow = isArrow(element.attribute(QStringLiteral("stroke-lineshape-start"), record.startShape))
        || isArrow(place.style.property(QStringLiteral("marker-start")));
    bool endsWithArrow = isArrow(element.attribute(QStringLiteral("stroke-lineshape-end"), record.endShape))
        || isArrow(place.style.property(QStringLiteral("marker-end")));
    if (endsWithArrow && !startsWithArrow) {
        // Lessons know a single arrow at the start only.
        std::swap(from, to);
        std::swap(startsWithArrow, endsWithArrow);
    }
    IwbElement &item = addItem(element, place, QStringLiteral("svg:line"));
    item.element.setAttribute(QStringLiteral("x1"), svgCoordinate(from.x()));
    item.element.setAttribute(QStringLiteral("y1"), svgCoordinate(from.y()));
    item.element.setAttribute(QStringLiteral("x2"), svgCoordinate(to.x()));
    item.element.setAttribute(QStringLiteral("y2"), svgCoordinate(to.y()));
    if (startsWithArrow) {
        item.element.setAttribute(QStringLiteral("stroke-lineshape-start"), QStringLiteral("arrow"));
    }
    if (endsWithArrow) {
        item.element.setAttribute(QStringLiteral("stroke-lineshape-end"), QStringLiteral("arrow"));
    }
    SvgStyle style = place.style;
    style.set(QStringLiteral("fill"), QStringLiteral("none"));
    setPluginPaint(item.element, paintOf(element, style));
}

void SvgPageBuilder::polyline(const QDomElement &element, const Place &place)
{
    const QVector<double> numbers = svgNumbers(element.attribute(QStringLiteral("points")));
    if (numbers.size() % 2 == 1) {
        remark(element, say("its last point has no y and is left out"));
    }
    Place inner = place;
    if (m_rules.isIwb && !hasOwnFill(element)) {
        inner.style.set(QStringLiteral("fill"), QStringLiteral("none"));
    }
    const QDomElement area = elementBefore(element);
    if (isFillOf(element, area)) {
        for (const char *name : {"fill", "fill-opacity"}) {
            inner.style.set(QLatin1String(name), area.attribute(QLatin1String(name)));
        }
    }
    outline(element, inner, pointsOf(numbers), false);
}

void SvgPageBuilder::polygon(const QDomElement &element, const Place &place)
{
    if (isFillOf(elementBehind(element), element)) {
        return;
    }
    // What it covers says so; that of a group was told when it was written.
    if (m_rules.isOwn && isCover(element)) {
        return;
    }
    const QVector<double> numbers = svgNumbers(element.attribute(QStringLiteral("points")));
    if (numbers.size() % 2 == 1) {
        remark(element, say("its last point has no y and is left out"));
    }
    outline(element, place, pointsOf(numbers), true);
}

void SvgPageBuilder::path(const QDomElement &element, const Place &place)
{
    const QString data = element.attribute(QStringLiteral("d"));
    auto outlines = svgStraightPath(data);
    if (!outlines) {
        const auto curves = svgPath(data);
        if (!curves) {
            remark(element, say("its data can't be read"));
            return;
        }
        outlines = flattened(*curves, meanScale(place.style.matrix));
        remark(element, say("its curves became fine lines"), false);
    }
    if (outlines->size() > 1) {
        remark(element, sayNumber("%n outlines became an item each", outlines->size()), false);
    }
    for (const SvgOutline &shape : qAsConst(*outlines)) {
        if (shape.points.size() > 1) {
            outline(element, place, shape.points, shape.closed);
        }
    }
}

// A polyline of the page. One with three points would be read as an angle: it gets its last point twice.
void SvgPageBuilder::outline(const QDomElement &source, const Place &place, QPolygonF points, bool isClosed)
{
    if (points.isEmpty()) {
        remark(source, say("it has no points"));
        return;
    }
    if (isClosed && points.first() != points.last()) {
        points.append(points.first());
    }
    for (const char *marker : {"marker-start", "marker-end"}) {
        const QString value = place.style.property(QLatin1String(marker));
        if (!value.isEmpty() && value != QLatin1String("none")) {
            remark(source, say("%1 is left out").arg(QLatin1String(marker)));
        }
    }
    const SvgPaint paint = paintOf(source, place.style);
    const IwbRecord record = recordOf(source);
    const bool isInk = record.isFreehand || record.isHighlight;
    if (points.size() == 2 && (isArrow(record.startShape) || isArrow(record.endShape)) && !isInk) {
        lineBetween(source, place, points.first(), points.last());
        return;
    }
    for (const QString &shape : {record.startShape, record.endShape}) {
        if (isArrow(shape)) {
            remark(source, say("an arrow at its end is left out"));
        }
    }
    const bool mayBeAngle = m_rules.isNative || m_rules.isOwn;
    if (points.size() == 3 && !isInk && (!mayBeAngle || paint.fill.alpha() > 0)) {
        points.append(points.last());
    }
    const bool isEvenOdd =
        m_rules.isIwb || place.style.property(QStringLiteral("fill-rule")) == QLatin1String("evenodd");
    if (!m_rules.isNative && paint.fill.alpha() > 0 && isEvenOdd && !isFilledAlike(points)) {
        remark(source, say("it is filled also where it crosses itself"), false);
    }
    IwbElement &item = addItem(source, place, QStringLiteral("svg:polyline"));
    item.element.setAttribute(QStringLiteral("points"), svgPoints(place.style.matrix.map(points)));
    setPluginPaint(item.element, paint);
    if (isClosed && isInk) {
        item.isFreehand = false;
        item.isHighlight = false;
        remark(source, say("it isn't drawn as a pen does, so it is no ink"), false);
    }
}

// With a word on what lines have no form for.
SvgPaint SvgPageBuilder::paintOf(const QDomElement &element, const SvgStyle &style)
{
    const SvgPaint paint = svgPaint(style, m_rules.isNative, remarkAbout(element));
    if (!m_rules.isNative && !m_rules.isOwn && paint.line.alpha() > 0) {
        for (const Sentence &difference : lineDifferences(style, paint)) {
            remark(element, difference, false);
        }
    }
    return paint;
}

void SvgPageBuilder::image(const QDomElement &element, const Place &place)
{
    media(element, place, QLatin1String("svg:") + svgName(element));
}

// A sound stands by itself, or where its sign does; a film that is linked where its still does.
void SvgPageBuilder::sound(const QDomElement &element, const Place &place)
{
    const QDomElement sign = element.firstChildElement();
    const bool isFilm = sign.attribute(QStringLiteral("id")).endsWith(QLatin1String(filmSign));
    const QString tag = isFilm ? QStringLiteral("svg:video") : QStringLiteral("svg:a");
    if (sign.isNull() || element.hasAttribute(QStringLiteral("width"))) {
        media(element, place, tag);
        return;
    }
    Place inner = place;
    inner.style = place.style.child(sign, nativeTransform(sign), remarkAbout(sign));
    inner.isAway = place.isAway || isAway(sign);
    media(sign, inner, tag);
    IwbElement &item = m_result.items.last();
    item.id = element.attribute(QStringLiteral("id"));
    item.reference = linkTarget(element);
}

void SvgPageBuilder::media(const QDomElement &source, const Place &place, const QString &tag)
{
    IwbElement &item = addItem(source, place, tag);
    item.reference = linkTarget(source);
    const QRectF box(length(source, "x"), length(source, "y"), length(source, "width"), length(source, "height"));
    if (!placeBox(item, box, place.style.matrix)) {
        remark(source, say("it is drawn slanted no longer"), false);
    }
    if (place.style.matrix.determinant() < 0 && tag == QLatin1String("svg:image")) {
        // The box is turned with its upper side: what is upside down then is flipped.
        item.flipsDown = !item.flipsDown;
    }
    remarkOnOpacity(source, place.style, tag == QLatin1String("svg:image"));
}

void SvgPageBuilder::remarkOnOpacity(const QDomElement &element, const SvgStyle &style, bool isPicture)
{
    const double fillOpacity = svgLength(style.property(QStringLiteral("fill-opacity")), 1).value_or(1);
    if (style.opacity < 1 || (fillOpacity < 1 && isPicture)) {
        remark(element, say("it is no longer translucent"), false);
    }
}

void SvgPageBuilder::text(const QDomElement &element, const Place &place)
{
    const SvgText content(element, place.style, textKind(), remarkAbout(element), m_rules.records);
    IwbElement &item = addItem(element, place, QStringLiteral("svg:textarea"));
    const QDomElement firstSpan = element.firstChildElement();
    const QDomElement &anchor = element.hasAttribute(QStringLiteral("y")) || firstSpan.isNull() ? element : firstSpan;
    const QRectF box = content.boxAt(length(anchor, "x"), length(anchor, "y"));
    const QMap<QString, QString> missing = missingLetters(content.plainText());
    for (auto it = missing.cbegin(); it != missing.cend(); ++it) {
        remark(element,
               say("its size is a guess, as no font here has its %1: install %2")
                   .arg(say(it.key().toLatin1().constData()), it.value()),
               false);
    }
    if (!placeBox(item, box, place.style.matrix)) {
        remark(element, say("it is drawn slanted no longer"), false);
    }
    finishText(element, content, place, item);
}

// What text and text areas have in common.
void SvgPageBuilder::finishText(const QDomElement &source, const SvgText &content, const Place &place, IwbElement &item)
{
    content.writeInto(item.element, meanScale(place.style.matrix));
    for (const Sentence &note : content.notes()) {
        remark(source, note, false);
    }
    if (item.link.isEmpty()) {
        item.link = content.link();
    } else if (!content.link().isEmpty()) {
        remark(source, say("the link of its letters to \"%1\" is left out").arg(content.link()));
    }
}

void SvgPageBuilder::textArea(const QDomElement &element, const Place &place)
{
    const SvgText content(element, place.style, textKind(), remarkAbout(element), m_rules.records);
    IwbElement &item = addItem(element, place, QStringLiteral("svg:textarea"));
    QRectF box(length(element, "x"), length(element, "y"), length(element, "width"), length(element, "height"));
    if (!(box.width() > 0)) {
        box.setWidth(content.size().width());
    }
    if (!(box.height() > 0)) {
        box.setHeight(content.size().height());
    }
    if (!placeBox(item, box, place.style.matrix)) {
        remark(element, say("it is drawn slanted no longer"), false);
    }
    finishText(element, content, place, item);
}

// The page's colour and picture, which records name. The rectangle that the plug-in makes shares the beginning of its
// name with the picture.
bool SvgPageBuilder::takeBackground(const QDomElement &element, const QString &name, const SvgStyle &style)
{
    const QString id = element.attribute(QStringLiteral("id"));
    const IwbRecord record = recordOf(element);
    if (m_isPart) {
        return m_otherBackgrounds.contains(element);
    }
    if (name == QLatin1String("rect") && record.isBackground && !m_hasBackground) {
        m_hasBackground = true;
        m_result.backgrounds.append(element);
        m_background = svgPaint(style, m_rules.isNative, remarkAbout(element)).fill;
        m_backgroundStem = id.endsWith(QLatin1String("_rect")) ? id.chopped(5) : QString();
        return true;
    }
    const bool isNamedPicture = !m_backgroundStem.isEmpty() && id == m_backgroundStem + QLatin1String("_bgd");
    if (name == QLatin1String("image") && m_result.backgroundReference.isEmpty()
        && (record.isBackground || isNamedPicture) && !record.refusesPicture) {
        if (!fillsPage(element, record, style)) {
            return false;
        }
        if (!m_rules.isNative) {
            remarkOnOpacity(element, style, true);
        }
        m_result.backgroundReference = linkTarget(element);
        m_result.backgrounds.append(element);
        return true;
    }
    return false;
}

// The picture of a slide fills it. One that stands elsewhere is a picture that can't be moved.
bool SvgPageBuilder::fillsPage(const QDomElement &element, const IwbRecord &record, const SvgStyle &style)
{
    if (m_rules.isNative || record.posture == QLatin1String("stretched-to-fill")) {
        return true;
    }
    if (record.posture == QLatin1String("repeated")) {
        m_result.isBackgroundRepeated = true;
        m_result.backgroundTile =
            style.matrix.mapRect(QRectF(0, 0, length(element, "width"), length(element, "height"))).size();
        remark(element, say("a picture of all its repetitions took its place"), false);
        return true;
    }
    const QRectF box(length(element, "x"), length(element, "y"), length(element, "width", m_rules.viewBox.width()),
                     length(element, "height", m_rules.viewBox.height()));
    const QRectF onPage = style.matrix.mapRect(box);
    const QSizeF page = m_rules.viewBox.size();
    const double tolerance = qMax(page.width(), page.height()) / 100;
    const QRectF difference(onPage.topLeft(), onPage.size() - page);
    const bool isFull = qAbs(difference.x()) <= tolerance && qAbs(difference.y()) <= tolerance
        && qAbs(difference.width()) <= tolerance && qAbs(difference.height()) <= tolerance;
    if (!isFull) {
        remark(element, say("it doesn't fill the page, so it became a picture that can't be moved"), false);
    }
    return isFull;
}

void SvgPageBuilder::finishBackground()
{
    QDomDocument &document = m_result.document;
    QDomElement rect = document.createElement(QStringLiteral("svg:rect"));
    rect.setAttribute(QStringLiteral("id"), backgroundRect);
    setSvgBox(rect, QRectF(QPointF(), m_rules.viewBox.size()));
    const QColor color = m_background.alpha() > 0 ? m_background : QColor(Qt::white);
    rect.setAttribute(QStringLiteral("fill"),
                      QString(QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue())));
    m_result.page.appendChild(rect);
    if (!m_result.backgroundReference.isEmpty()) {
        QDomElement picture = document.createElement(QStringLiteral("svg:image"));
        picture.setAttribute(QStringLiteral("id"), backgroundImage);
        m_result.page.appendChild(picture);
    }
    QDomElement record = document.createElement(QStringLiteral("iwb:element"));
    record.setAttribute(QStringLiteral("ref"), backgroundRect);
    m_result.root.appendChild(record);
}

// Puts a box under a transform: its size along its own sides, its centre, and its angle. False where a slant is lost.
bool SvgPageBuilder::placeBox(IwbElement &item, const QRectF &box, const QTransform &matrix)
{
    const auto parts = scaleAndTurn(matrix);
    const double scaleX = std::hypot(matrix.m11(), matrix.m12());
    const double scaleY = std::hypot(matrix.m21(), matrix.m22());
    const bool isPlain = matrix.type() <= QTransform::TxTranslate;
    if (isPlain) {
        setSvgBox(item.element, matrix.mapRect(box));
    } else {
        const QPointF center = matrix.map(box.center());
        const QSizeF size(box.width() * scaleX, box.height() * scaleY);
        setSvgBox(item.element, QRectF(center - QPointF(size.width(), size.height()) / 2, size));
        item.angle = std::atan2(matrix.m12(), matrix.m11());
        if (qAbs(item.angle) < 1e-9) {
            item.angle = 0;
        }
    }
    return parts.has_value();
}

IwbElement &SvgPageBuilder::addItem(const QDomElement &source, const Place &place, const QString &tag)
{
    IwbElement item;
    item.element = m_result.document.createElement(tag);
    m_items.appendChild(item.element);
    item.id = source.attribute(QStringLiteral("id"));
    item.link = place.link;
    item.leadsOutside = place.leadsOutside;
    item.isVisible = place.style.isVisible() && !place.isAway;
    // A record is of every item of its identifier, on whatever page; the item's own word is of itself.
    const auto isSet = [&source](const QString &attribute, bool isRecorded) {
        const QString own = source.attribute(attribute);
        return own == QLatin1String("1") || (own != QLatin1String("0") && isRecorded);
    };
    const IwbRecord record = recordOf(source);
    item.isLocked = isSet(QStringLiteral("lockin"), m_rules.records.value(item.id).isLocked);
    // A page has one background; nobody drags what another program meant as one.
    if ((tag == QLatin1String("svg:image") || tag == QLatin1String("svg:rect")) && record.isBackground) {
        item.isLocked = true;
    }
    item.isEndless = isSet(QStringLiteral("infiniteclone"), record.isEndless);
    item.isRevealer = record.isRevealer && tag == QLatin1String("svg:rect");
    if (record.isRevealer && !item.isRevealer) {
        remark(source, say("only upright or turned rectangles become curtains"));
    }
    item.isCovered = m_rules.isOwn && hasCover(source, item.id);
    item.isFreehand = record.isFreehand;
    item.isHighlight = record.isHighlight;
    item.flipsAcross = record.flipsAcross && tag == QLatin1String("svg:image");
    item.flipsDown = record.flipsDown && tag == QLatin1String("svg:image");
    if ((record.flipsAcross || record.flipsDown) && tag != QLatin1String("svg:image")) {
        remark(source, say("only pictures can be flipped"));
    }
    item.group = item.id.isEmpty() ? -1 : m_rules.groups.value(item.id, -1);
    m_result.items.append(item);
    return m_result.items.last();
}

SvgText::Kind SvgPageBuilder::textKind() const
{
    return m_rules.isNative ? SvgText::Native : m_rules.isOwn ? SvgText::Own : SvgText::Foreign;
}

IwbRecord SvgPageBuilder::recordOf(const QDomElement &element) const
{
    const QString id = element.attribute(QStringLiteral("id"));
    return id.isEmpty() ? IwbRecord() : m_rules.records.value(id);
}

double SvgPageBuilder::length(const QDomElement &element, const char *name, double fallback)
{
    const QLatin1String attribute(name);
    const bool isVertical = attribute == QLatin1String("y") || attribute == QLatin1String("height")
        || attribute == QLatin1String("cy") || attribute == QLatin1String("ry");
    const double reference = isVertical ? m_rules.viewBox.height() : m_rules.viewBox.width();
    return svgLength(element.attribute(attribute), reference).value_or(fallback);
}

void SvgPageBuilder::remark(const QDomElement &element, const Sentence &text, bool isLoss)
{
    const QString name = svgName(element);
    const QString tag = name.isEmpty() ? element.tagName() : QString(QLatin1String("svg:") + name);
    m_result.remarks.append({tag, element.attribute(QStringLiteral("id")), text, isLoss});
}

std::function<void(const Sentence &)> SvgPageBuilder::remarkAbout(const QDomElement &element)
{
    return [this, element](const Sentence &text) { remark(element, text); };
}

} // namespace lessonhost
