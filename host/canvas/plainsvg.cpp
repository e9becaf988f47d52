// SPDX-License-Identifier: MIT
#include "canvas/plainsvg.h"

#include "canvas/arrowhead.h"
#include "canvas/innersvg.h"
#include "canvas/labellines.h"
#include "canvas/picturestore.h"
#include "canvas/plainoutlines.h"
#include "canvas/svgelements.h"
#include "files/closedsvg.h"
#include "files/domtools.h"
#include "files/drawingbounds.h"
#include "files/lessonerror.h"
#include "files/svgattributes.h"
#include "files/xmlloader.h"
#include "iwb/iwbmedia.h"
#include "lesson/isoneof.h"
#include "lesson/planegeometry.h"
#include "sentences/language.h"
#include "svg/svgvalues.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImage>

#include <algorithm>
#include <iterator>

namespace lessonhost {

namespace {

// With the geometry, everything that draws, and nothing that runs or loads.
const char *const keptAttributes[] = {
    "fill",           "fill-opacity",        "fill-rule",      "stroke",          "stroke-width",
    "stroke-opacity", "stroke-dasharray",    "stroke-linecap", "stroke-linejoin", "opacity",
    "transform",      "preserveAspectRatio",
};
const char *const keptTags[] = {"rect", "circle", "ellipse", "line", "polyline", "polygon", "path"};

void setBox(QDomElement &element, const QRectF &box)
{
    element.setAttribute(QStringLiteral("x"), drawnNumber(box.x()));
    element.setAttribute(QStringLiteral("y"), drawnNumber(box.y()));
    element.setAttribute(QStringLiteral("width"), drawnNumber(box.width()));
    element.setAttribute(QStringLiteral("height"), drawnNumber(box.height()));
}

void copyAttributes(const QDomElement &from, QDomElement &to)
{
    const auto copy = [&](const char *name) {
        const QString value = from.attribute(QLatin1String(name));
        // A reference to a paint server or a style leads out of what is copied.
        if (!value.isEmpty() && !value.contains(QLatin1String("url("), Qt::CaseInsensitive)) {
            to.setAttribute(QLatin1String(name), value);
        }
    };
    std::for_each(std::begin(shapeGeometry), std::end(shapeGeometry), copy);
    std::for_each(std::begin(keptAttributes), std::end(keptAttributes), copy);
}

void writeShape(QDomElement &shape, const QPainterPath &path, const SvgPaint &paint)
{
    setDrawnPath(shape, path);
    setDrawnColor(shape, "fill", paint.fill);
    setDrawnColor(shape, "stroke", paint.line);
    shape.setAttribute(QStringLiteral("stroke-width"), drawnNumber(paint.lineWidth));
    shape.setAttribute(QStringLiteral("stroke-linejoin"), QStringLiteral("round"));
    QStringList lengths;
    const QVector<double> dashes = drawnDashes(paint);
    for (const double length : dashes) {
        lengths.append(drawnNumber(length));
    }
    if (!lengths.isEmpty()) {
        shape.setAttribute(QStringLiteral("stroke-dasharray"), lengths.join(QLatin1Char(',')));
    }
}

// As bounds of drawings count them. Infinite or no number where dashes have no length.
double mostDashesOf(const QPainterPath &path, const SvgPaint &paint)
{
    double sum = 0;
    for (int i = 0; i < path.elementCount(); ++i) {
        sum += qAbs(asDrawn(path.elementAt(i).x)) + qAbs(asDrawn(path.elementAt(i).y));
    }
    const QVector<double> dashes = drawnDashes(paint);
    double pattern = 0;
    for (const double length : dashes) {
        pattern += asDrawn(length);
    }
    constexpr int longest = 3; // times its coordinates is no path
    return longest * sum / pattern * dashes.size();
}

// Whether something of it is left when its numbers are rounded.
bool isSurelyOutline(const QPainterPath &path, const SvgPaint &paint, const QTransform &placed)
{
    constexpr double shortest = 0.1;
    const bool isLined = paint.line.alpha() == 255 && paint.lineWidth > shortest && meanScale(placed) > shortest;
    if (path.elementCount() < 2 || path.elementAt(1).isMoveTo() || (paint.fill.alpha() < 255 && !isLined)) {
        return false;
    }
    const QPointF start = path.elementAt(0);
    const QPointF next = path.elementAt(1);
    const bool isWithin = start.manhattanLength() < largestInDrawing && next.manhattanLength() < largestInDrawing;
    return isWithin && (next - start).manhattanLength() > shortest;
}

// Names of fonts may look like declarations.
bool hasDashesOrDeclarations(const QDomElement &parent)
{
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (e.hasAttribute(QStringLiteral("stroke-dasharray"))
            || e.attribute(QStringLiteral("style")).contains(QLatin1Char(';')) || hasDashesOrDeclarations(e)) {
            return true;
        }
    }
    return false;
}

} // namespace

PlainSvg::PlainSvg(const QSizeF &size, const IwbMedia &media, PictureStore &pictures, const QColor &paper)
    : m_size(size)
    , m_media(media)
    , m_pictures(pictures)
{
    m_svg = m_document.createElement(QStringLiteral("svg"));
    m_document.appendChild(m_svg);
    if (paper.alpha() > 0) {
        QDomElement sheet = append(QStringLiteral("rect"));
        sheet.setAttribute(QStringLiteral("width"), drawnNumber(size.width()));
        sheet.setAttribute(QStringLiteral("height"), drawnNumber(size.height()));
        sheet.setAttribute(QStringLiteral("fill"), paper.name());
        if (paper.alpha() < 255) {
            sheet.setAttribute(QStringLiteral("fill-opacity"), drawnNumber(paper.alphaF()));
        }
    }
}

bool PlainSvg::isInVain() const
{
    return m_isForElements && m_leastElements > mostPlainElements;
}

void PlainSvg::countTexts(const QDomElement &group)
{
    const QString tag = QStringLiteral("text");
    for (QDomElement e = group.firstChildElement(tag); m_isForElements && !e.isNull(); e = e.nextSiblingElement(tag)) {
        m_leastElements += e.text().trimmed().isEmpty() ? 0 : 1;
    }
}

// What is written here is within the bounds, but for dashes, which are counted.
QDomElement PlainSvg::sketch()
{
    constexpr double surelyFew = mostDashes / 2;
    if (!m_isBounded && (m_hasOthers || !(m_dashes < surelyFew) || hasDashesOrDeclarations(m_svg))) {
        writeShapes();
        boundDrawing(m_svg);
    }
    m_isBounded = true;
    return m_svg;
}

QDomDocument PlainSvg::finished()
{
    sketch();
    m_svg.setAttribute(QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg"));
    m_svg.setAttribute(QStringLiteral("xmlns:xlink"), QStringLiteral("http://www.w3.org/1999/xlink"));
    m_svg.setAttribute(QStringLiteral("viewBox"),
                       QStringLiteral("0 0 %1 %2").arg(drawnNumber(m_size.width()), drawnNumber(m_size.height())));
    m_svg.setAttribute(QStringLiteral("width"), drawnNumber(m_size.width()));
    m_svg.setAttribute(QStringLiteral("height"), drawnNumber(m_size.height()));
    writeShapes();
    return m_document;
}

void PlainSvg::writeShapes()
{
    for (Shape &shape : m_shapes) {
        writeShape(shape.element, shape.path, shape.paint);
    }
    m_shapes.clear();
}

PlainSvg::Scope::Scope(PlainSvg &svg, const QTransform &transform)
    : m_svg(svg)
    , m_before(svg.m_transform)
{
    m_svg.m_transform = transform * m_before;
}

PlainSvg::Scope::~Scope()
{
    m_svg.m_transform = m_before;
}

PlainSvg::ItemGroup::ItemGroup(PlainSvg &svg, const QString &id, const QString &kind, const QString &label,
                               bool isHidden, Side side)
    : m_svg(svg)
{
    m_svg.m_group = m_svg.m_document.createElement(QStringLiteral("g"));
    m_svg.m_svg.appendChild(m_svg.m_group);
    m_svg.m_group.setAttribute(side == Back ? QStringLiteral("data-back") : QStringLiteral("data-item"), id);
    if (side == Cover) {
        m_svg.m_group.setAttribute(QStringLiteral("data-cover"), QString());
    }
    if (!label.isEmpty()) {
        m_svg.m_group.setAttribute(QStringLiteral("role"), QStringLiteral("img"));
        m_svg.m_group.setAttribute(QStringLiteral("aria-label"), label);
    }
    if (!kind.isEmpty()) {
        m_svg.m_group.setAttribute(QStringLiteral("data-kind"), kind);
    }
    if (isHidden) {
        m_svg.m_group.setAttribute(QStringLiteral("display"), QStringLiteral("none"));
    }
}

PlainSvg::ItemGroup::~ItemGroup()
{
    if (!m_svg.m_group.hasChildNodes()) {
        m_svg.m_svg.removeChild(m_svg.m_group);
    }
    m_svg.m_group.clear();
    m_svg.m_scope.clear();
}

// Scopes in each other are written side by side, so that none is deeper than another.
QDomElement PlainSvg::append(const QString &tag)
{
    QDomElement element = m_document.createElement(tag);
    QDomElement &parent = m_group.isNull() ? m_svg : m_group;
    if (m_transform.isIdentity()) {
        parent.appendChild(element);
        return element;
    }
    if (m_scope.isNull() || parent.lastChild() != m_scope || m_scopeTransform != m_transform) {
        m_scopeTransform = m_transform;
        m_scope = m_document.createElement(QStringLiteral("g"));
        parent.appendChild(m_scope);
        m_scope.setAttribute(QStringLiteral("transform"), drawnTransform(m_transform));
    }
    m_scope.appendChild(element);
    return element;
}

bool PlainSvg::add(const QDomElement &element)
{
    const QString tag = bareName(element.tagName());
    if (tag == QLatin1String("image")) {
        return addPicture(element);
    }
    if (isOneOf(keptTags, tag)) {
        QDomElement copy = append(tag);
        m_hasOthers = true;
        copyAttributes(element, copy);
        // The boxes that IWB gives such shapes mean nothing to svg.
        if (tag != QLatin1String("rect")) {
            for (const char *name : {"x", "y", "width", "height"}) {
                copy.removeAttribute(QLatin1String(name));
            }
        }
        if (tag == QLatin1String("line")) {
            addHeads(element, copy);
        }
    }
    return true;
}

// The heads that IWB says a line has. The line ends within them.
void PlainSvg::addHeads(const QDomElement &element, QDomElement &line)
{
    const auto value = [&line](const char *name) { return line.attribute(QLatin1String(name)).toDouble(); };
    const auto setValue = [&line](const char *name, double value) {
        line.setAttribute(QLatin1String(name), drawnNumber(value));
    };
    for (const bool isStart : {false, true}) {
        QLineF to(value("x1"), value("y1"), value("x2"), value("y2"));
        to = isStart ? QLineF(to.p2(), to.p1()) : to;
        const QString shape =
            isStart ? QStringLiteral("stroke-lineshape-start") : QStringLiteral("stroke-lineshape-end");
        if (element.attribute(shape) != QLatin1String("arrow") || !(to.length() > 0)) {
            continue;
        }
        QDomElement head = append(QStringLiteral("path"));
        setDrawnPath(head, arrowHead(to, value("stroke-width")));
        for (const auto &row : {std::make_pair("fill", "stroke"), std::make_pair("fill-opacity", "stroke-opacity"),
                                std::make_pair("transform", "transform")}) {
            if (line.hasAttribute(QLatin1String(row.second))) {
                head.setAttribute(QLatin1String(row.first), line.attribute(QLatin1String(row.second)));
            }
        }
        setValue(isStart ? "x1" : "x2", to.x2());
        setValue(isStart ? "y1" : "y2", to.y2());
    }
}

// Null for a file that can't be drawn.
QDomElement PlainSvg::appendPicture(const QString &file)
{
    const QString name = file.isEmpty() ? QString() : m_pictures.add(file, m_pixels);
    return name.isEmpty() ? QDomElement() : appendImage(QLatin1Char('#') + name);
}

QDomElement PlainSvg::appendImage(const QString &address)
{
    QDomElement image = append(QStringLiteral("image"));
    image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    image.setAttribute(QStringLiteral("xlink:href"), address);
    return image;
}

bool PlainSvg::addDrawing(const QByteArray &svg, const QRectF &box, const QSizeF &usualSize,
                          const std::function<QString(const QString &)> &fileOf)
{
    QHash<QString, QString> files; // by their pictures
    const auto addressOf = [&](const QString &reference) {
        if (isEmbedded(reference)) {
            return embeddedPicture(reference, m_pixels);
        }
        const QString file = fileOf(reference);
        const QString name = file.isEmpty() ? QString() : m_pictures.add(file, m_pixels);
        files.insert(name, file);
        return name.isEmpty() ? QString() : QString(QLatin1Char('#') + name);
    };
    try {
        const QByteArray closed = closedSvg(svg, QStringLiteral("svg"), addressOf).text;
        const QDomDocument drawing = loadXml(closed, QStringLiteral("svg"), XmlBlanks::Kept);
        // By its content, too: two lessons may stand side by side.
        const QByteArray name = QCryptographicHash::hash(closed, QCryptographicHash::Md5).toHex().left(8);
        const QString prefix = m_names + QLatin1Char('d') + QString::fromLatin1(name) + QString::number(++m_drawings);
        QDomElement part = append(QStringLiteral("g"));
        m_hasOthers = true;
        part.appendChild(innerSvg(m_document, drawing.documentElement(), box, usualSize, prefix, m_innerBudget));
        placePictures(part, files);
        return true;
    } catch (const LessonError &error) {
        if (error.isOfMachine()) {
            throw;
        }
        return false;
    }
}

// Pictures of the store fill their boxes, so those of a drawing get the box that they fill of the one they are told.
void PlainSvg::placePictures(const QDomElement &drawing, const QHash<QString, QString> &files)
{
    for (QDomElement &image : imagesIn(drawing)) {
        const QString name = m_pictures.pictureOf(image);
        if (name.isEmpty()) {
            continue;
        }
        const auto length = [&image](const char *attribute) {
            return svgLength(image.attribute(QLatin1String(attribute)));
        };
        const QString ratio = image.attribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("xMidYMid meet"));
        const bool isStretched = ratio == QLatin1String("none");
        const bool isKnown = isStretched || ratio.startsWith(QLatin1String("xMidYMid"));
        const auto width = length("width");
        const auto height = length("height");
        const auto isShare = [&image](const char *attribute) {
            return image.attribute(QLatin1String(attribute)).endsWith(QLatin1Char('%'));
        };
        const bool hasShares = isShare("x") || isShare("y") || isShare("width") || isShare("height");
        if (!width || !height || hasShares || !isKnown || ratio.contains(QLatin1String("slice"))) {
            image.setAttribute(QStringLiteral("xlink:href"), Picture(files.value(name)).address(m_pixels));
            continue;
        }
        QRectF box(length("x").value_or(0), length("y").value_or(0), *width, *height);
        if (!isStretched) {
            const QPointF middle = box.center();
            box.setSize(QSizeF(m_pictures.size(name)).scaled(box.size(), Qt::KeepAspectRatio));
            box.moveCenter(middle);
        }
        setBox(image, box);
        image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    }
}

void PlainSvg::addImage(const QImage &image, const QRectF &box)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    constexpr int quick = 85; // packs little: what is painted has few colours or none that repeat
    if (!image.save(&buffer, "png", quick)) {
        throw packingError();
    }
    m_pixels.take(1, qint64(image.width()) * image.height());
    QDomElement element = appendImage(QLatin1String("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64()));
    setBox(element, box);
}

bool PlainSvg::addEmbedded(const QString &address, const QRectF &box)
{
    const QString bounded = embeddedPicture(address, m_pixels);
    if (bounded.isEmpty()) {
        return false;
    }
    QDomElement image = appendImage(bounded);
    setBox(image, box);
    return true;
}

bool PlainSvg::addPicture(const QString &file, const QRectF &box)
{
    QDomElement image = appendPicture(file);
    if (!image.isNull()) {
        setBox(image, box);
    }
    return !image.isNull();
}

bool PlainSvg::addPicture(const QDomElement &element)
{
    QDomElement image = appendPicture(m_media.file(element.attribute(QStringLiteral("xlink:href"))).source);
    if (!image.isNull()) {
        m_hasOthers = true;
        copyAttributes(element, image);
    }
    return !image.isNull();
}

// Letters keep their proportions where viewers would fit them to the dots of a screen.
QDomElement PlainSvg::addGroup(const QTransform &placed)
{
    QDomElement group = append(QStringLiteral("g"));
    if (!placed.isIdentity()) {
        group.setAttribute(QStringLiteral("transform"), drawnTransform(placed));
    }
    group.setAttribute(QStringLiteral("text-rendering"), QStringLiteral("geometricPrecision"));
    return group;
}

void PlainSvg::addPath(const QPainterPath &path, const SvgPaint &paint)
{
    if (isInVain()) {
        return;
    }
    m_leastElements += m_isForElements && isSurelyOutline(path, paint, m_transform) ? 1 : 0;
    if (paint.dashParts > 0) {
        m_dashes += mostDashesOf(path, paint);
    }
    m_shapes.append({append(QStringLiteral("path")), path, paint});
}

QDomElement PlainSvg::addPathElement(const QPainterPath &path, const SvgPaint &paint)
{
    QDomElement shape = append(QStringLiteral("path"));
    writeShape(shape, path, paint);
    return shape;
}

QDomElement PlainSvg::addTexture(const QPainterPath &area, const QString &file, const QColor &color)
{
    auto pattern = m_textures.constFind(file);
    if (pattern == m_textures.constEnd()) {
        const QString picture = m_pictures.add(file, m_pixels);
        if (picture.isEmpty()) {
            return {};
        }
        const QSize size = m_pictures.size(picture);
        // By the picture's name, too: the pages of two lessons may stand side by side.
        m_hasOthers = true;
        pattern = m_textures.insert(file, QString(m_names + QLatin1Char('t') + picture));
        QDomElement definitions = m_document.createElement(QStringLiteral("defs"));
        m_svg.insertBefore(definitions, m_svg.firstChild());
        QDomElement tile = m_document.createElement(QStringLiteral("pattern"));
        definitions.appendChild(tile);
        tile.setAttribute(QStringLiteral("id"), *pattern);
        tile.setAttribute(QStringLiteral("patternUnits"), QStringLiteral("userSpaceOnUse"));
        QDomElement image = m_document.createElement(QStringLiteral("image"));
        tile.appendChild(image);
        for (QDomElement element : {tile, image}) {
            element.setAttribute(QStringLiteral("width"), QString::number(size.width()));
            element.setAttribute(QStringLiteral("height"), QString::number(size.height()));
        }
        image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
        image.setAttribute(QStringLiteral("xlink:href"), QString(QLatin1Char('#') + picture));
    }
    SvgPaint paint;
    paint.fill = color;
    paint.line = Qt::transparent;
    QDomElement shape = addPathElement(area, paint);
    shape.setAttribute(QStringLiteral("fill"),
                       QString(QLatin1String("url(#") + *pattern + QLatin1String(") ") + color.name()));
    return shape;
}

QDomElement PlainSvg::addRectangle(const QRectF &box, const QColor &line, const QColor &fill)
{
    QDomElement rectangle = append(QStringLiteral("rect"));
    setBox(rectangle, box);
    rectangle.setAttribute(QStringLiteral("rx"), QStringLiteral("6"));
    rectangle.setAttribute(QStringLiteral("stroke"), line.name());
    rectangle.setAttribute(QStringLiteral("stroke-width"), QStringLiteral("2"));
    rectangle.setAttribute(QStringLiteral("fill"), fill.name());
    rectangle.setAttribute(QStringLiteral("fill-opacity"), drawnNumber(fill.alphaF()));
    return rectangle;
}

void PlainSvg::addLine(const QLineF &line, const QColor &color, double width)
{
    QDomElement element = append(QStringLiteral("line"));
    element.setAttribute(QStringLiteral("x1"), drawnNumber(line.x1()));
    element.setAttribute(QStringLiteral("y1"), drawnNumber(line.y1()));
    element.setAttribute(QStringLiteral("x2"), drawnNumber(line.x2()));
    element.setAttribute(QStringLiteral("y2"), drawnNumber(line.y2()));
    element.setAttribute(QStringLiteral("stroke"), color.name());
    element.setAttribute(QStringLiteral("stroke-width"), drawnNumber(width));
}

double PlainSvg::readableSize() const
{
    constexpr double size = 9;
    constexpr double pageWidth = 1280;
    return m_size.width() * size / pageWidth;
}

void PlainSvg::addLabel(const Sentence &sentence, const QRectF &box, double pixelSize, const QColor &color)
{
    constexpr int longestText = 600; // what follows would be too small to read
    const QString text = said(sentence);
    const QString shown = text.left(longestText);
    const double smallest = readableSize();
    LabelLines label = linesThatFit(shown, box.size(), pixelSize, smallest);
    const LabelLines upright = linesThatFit(shown, box.size().transposed(), pixelSize, smallest);
    const bool isUpright = !upright.lines.isEmpty()
        && (label.lines.isEmpty() || upright.size > label.size * 1.5 || (upright.isWhole && !label.isWhole));
    if (isUpright) {
        label = upright;
    }
    QRectF place;
    if (!label.lines.isEmpty()) {
        place = m_labels.freeWithin(box, isUpright ? label.extent().transposed() : label.extent());
    }
    if (place.isNull()) {
        label = linesThatFit(shown, {smallest * 24, smallest * 1.3}, smallest, smallest);
        place = m_labels.freeBeside(box, label.extent(), QRectF(QPointF(), m_size));
    }
    if (!place.isNull()) {
        m_labels.take(place);
        QDomElement group = putLabel(label, place, isUpright && place.width() < place.height(), color);
        if (text != sentence.english()) {
            group.setAttribute(QStringLiteral("xml:lang"), languageTag(spokenLanguage()));
        }
    }
}

QDomElement PlainSvg::putLabel(const LabelLines &label, const QRectF &place, bool isUpright, const QColor &color)
{
    QDomElement group = append(QStringLiteral("g"));
    const QPointF center = place.center();
    if (isUpright) {
        group.setAttribute(QStringLiteral("transform"),
                           QStringLiteral("rotate(-90 %1 %2)").arg(drawnNumber(center.x()), drawnNumber(center.y())));
    }
    group.setAttribute(QStringLiteral("text-anchor"), QStringLiteral("middle"));
    setDrawnFamilies(group, labelFamilies());
    group.setAttribute(QStringLiteral("font-size"), drawnNumber(label.size));
    group.setAttribute(QStringLiteral("fill"), color.name());
    double y = center.y() - (label.lines.size() - 1) * label.size * LabelLines::lineHeight / 2 + label.size * 0.35;
    for (const QString &line : label.lines) {
        QDomElement element = m_document.createElement(QStringLiteral("text"));
        element.setAttribute(QStringLiteral("x"), drawnNumber(center.x()));
        element.setAttribute(QStringLiteral("y"), drawnNumber(y));
        element.appendChild(m_document.createTextNode(line));
        group.appendChild(element);
        y += label.size * LabelLines::lineHeight;
    }
    return group;
}

void PlainSvg::addMarks(const QVector<SvgMark> &marks, double pixelSize, const QColor &color)
{
    QDomElement group = append(QStringLiteral("g"));
    group.setAttribute(QStringLiteral("text-anchor"), QStringLiteral("middle"));
    group.setAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
    group.setAttribute(QStringLiteral("font-size"), drawnNumber(pixelSize));
    group.setAttribute(QStringLiteral("fill"), color.name());
    for (const SvgMark &mark : marks) {
        QDomElement element = m_document.createElement(QStringLiteral("text"));
        element.setAttribute(QStringLiteral("x"), drawnNumber(mark.middle.x()));
        element.setAttribute(QStringLiteral("y"), drawnNumber(mark.middle.y() + pixelSize * 0.36));
        if (qAbs(mark.turn) > 0.05) {
            element.setAttribute(QStringLiteral("transform"),
                                 QString(QLatin1String("rotate(") + drawnNumber(mark.turn) + QLatin1Char(' ')
                                         + drawnNumber(mark.middle.x()) + QLatin1Char(' ')
                                         + drawnNumber(mark.middle.y()) + QLatin1Char(')')));
        }
        element.appendChild(m_document.createTextNode(mark.text));
        group.appendChild(element);
    }
}

} // namespace lessonhost
