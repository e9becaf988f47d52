#include "render/plainsvg.h"

#include "files/closedsvg.h"
#include "files/drawingbounds.h"
#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "iwb/iwbmedia.h"
#include "lesson/fontvalues.h"
#include "lesson/isoneof.h"
#include "render/arrowhead.h"
#include "render/innersvg.h"
#include "render/labellines.h"
#include "render/picturestore.h"
#include "svg/svgstyle.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFontMetricsF>
#include <QImage>

namespace lessonhost {

namespace {

// Everything that draws, and nothing that runs or loads.
const char *const keptAttributes[] = {
    "x",
    "y",
    "width",
    "height",
    "rx",
    "ry",
    "cx",
    "cy",
    "r",
    "x1",
    "y1",
    "x2",
    "y2",
    "d",
    "points",
    "fill",
    "fill-opacity",
    "fill-rule",
    "stroke",
    "stroke-width",
    "stroke-opacity",
    "stroke-dasharray",
    "stroke-linecap",
    "stroke-linejoin",
    "opacity",
    "transform",
    "preserveAspectRatio",
};
const char *const keptTags[] = {"rect", "circle", "ellipse", "line", "polyline", "polygon", "path"};

QString number(double value)
{
    return QString::number(qIsNaN(value) ? 0 : qBound(-largestInDrawing, value, largestInDrawing), 'f', 2);
}

QString matrixText(const QTransform &transform)
{
    QStringList numbers;
    for (const double number :
         {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()}) {
        const double bounded = qIsNaN(number) ? 0 : qBound(-largestInDrawing, number, largestInDrawing);
        numbers.append(QString::number(qAbs(bounded) < 1e-8 ? 0 : bounded, 'g', 8));
    }
    return QStringLiteral("matrix(%1)").arg(numbers.join(QLatin1Char(' ')));
}

QString withoutPrefix(const QString &tag)
{
    return tag.section(QLatin1Char(':'), -1);
}

void setBox(QDomElement &element, const QRectF &box)
{
    element.setAttribute(QStringLiteral("x"), number(box.x()));
    element.setAttribute(QStringLiteral("y"), number(box.y()));
    element.setAttribute(QStringLiteral("width"), number(box.width()));
    element.setAttribute(QStringLiteral("height"), number(box.height()));
}

void copyAttributes(const QDomElement &from, QDomElement &to)
{
    for (const char *name : keptAttributes) {
        const QString value = from.attribute(QLatin1String(name));
        // A reference to a paint server or a style leads out of what is copied.
        if (!value.isEmpty() && !value.contains(QLatin1String("url("), Qt::CaseInsensitive)) {
            to.setAttribute(QLatin1String(name), value);
        }
    }
}

QString pathData(const QPainterPath &path)
{
    QString data;
    QPointF start;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        start = element.isMoveTo() ? QPointF(element) : start;
        const char *letter = element.isMoveTo() ? "M" : element.isLineTo() ? "L" : element.isCurveTo() ? "C" : " ";
        data += QLatin1String(letter) + number(element.x) + QLatin1Char(' ') + number(element.y);
        const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
        if (isLast && !element.isMoveTo() && QPointF(element) == start) {
            data += QLatin1Char('Z');
        }
    }
    return data;
}

struct Piece
{
    QDomElement span;
    QFont font;
    QString text;
    double width = 0;
};
using Line = QVector<Piece>;

double pixelSize(const QDomElement &span)
{
    bool isNumber = false;
    const double size = span.attribute(QStringLiteral("font-size")).toDouble(&isNumber);
    return isNumber ? qBound(1.0, size, 2000.0) : defaultFontPixels;
}

QFont fontOf(const QDomElement &span)
{
    QFont font(span.attribute(QStringLiteral("font-family"), QStringLiteral("Arial")));
    font.setPixelSize(qMax(1, qRound(pixelSize(span))));
    font.setWeight(fontWeight(span.attribute(QStringLiteral("font-weight"))));
    font.setItalic(span.attribute(QStringLiteral("font-style")) == QLatin1String("italic"));
    return font;
}

struct LineSize
{
    double ascent = 0;
    double descent = 0;
    double width = 0;

    double height() const { return ascent + descent; }
};

LineSize sizeOf(const Line &line)
{
    if (line.isEmpty()) {
        return {defaultFontPixels, 6, 0};
    }
    LineSize size;
    for (const Piece &piece : line) {
        const QFontMetricsF metrics(piece.font);
        size.ascent = qMax(size.ascent, metrics.ascent());
        size.descent = qMax(size.descent, metrics.descent());
        size.width += piece.width;
    }
    return size;
}

// Where the next word ends, the blanks behind it included. Wide scripts have no blanks: each of their letters is a
// word.
int wordEnd(const QString &text, int from)
{
    int end = from;
    while (end < text.size() && !text.at(end).isSpace() && text.at(end).unicode() < 0x2e80) {
        ++end;
    }
    end = qMax(end, from + 1);
    while (end < text.size() && text.at(end) == QLatin1Char(' ')) {
        ++end;
    }
    return end;
}

// Breaks the runs of a text area into lines of at most a width.
QVector<Line> linesOf(const QDomElement &area, double width)
{
    QVector<Line> lines(1);
    double used = 0;
    for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
        if (withoutPrefix(span.tagName()) != QLatin1String("tspan")) {
            continue;
        }
        const QString text = span.text();
        const QFont font = fontOf(span);
        const QFontMetricsF metrics(font);
        for (int at = 0; at < text.size();) {
            const QChar first = text.at(at);
            if (first == QLatin1Char('\n') || first == QChar::LineSeparator) {
                lines.append(Line());
                used = 0;
                ++at;
                continue;
            }
            const int end = wordEnd(text, at);
            const QString word = text.mid(at, end - at);
            const double wordWidth = metrics.horizontalAdvance(word);
            if (used > 0 && used + wordWidth > width + 1) {
                lines.append(Line());
                used = 0;
            }
            Line &line = lines.last();
            if (line.isEmpty() || line.constLast().span != span) {
                line.append({span, font, QString(), 0});
            }
            line.last().text += word;
            line.last().width += wordWidth;
            used += wordWidth;
            at = end;
        }
    }
    return lines;
}

} // namespace

PlainSvg::PlainSvg(const QSizeF &size, const IwbMedia &media, PictureStore &pictures, const QColor &paper)
    : m_size(size)
    , m_media(media)
    , m_pictures(pictures)
{
    m_svg = m_document.createElement(QStringLiteral("svg"));
    m_document.appendChild(m_svg);
    m_svg.setAttribute(QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg"));
    m_svg.setAttribute(QStringLiteral("xmlns:xlink"), QStringLiteral("http://www.w3.org/1999/xlink"));
    m_svg.setAttribute(QStringLiteral("viewBox"),
                       QStringLiteral("0 0 %1 %2").arg(number(size.width()), number(size.height())));
    m_svg.setAttribute(QStringLiteral("width"), number(size.width()));
    m_svg.setAttribute(QStringLiteral("height"), number(size.height()));
    if (paper.alpha() > 0) {
        QDomElement sheet = append(QStringLiteral("rect"));
        sheet.setAttribute(QStringLiteral("width"), number(size.width()));
        sheet.setAttribute(QStringLiteral("height"), number(size.height()));
        sheet.setAttribute(QStringLiteral("fill"), paper.name());
        if (paper.alpha() < 255) {
            sheet.setAttribute(QStringLiteral("fill-opacity"), number(paper.alphaF()));
        }
    }
}

QDomDocument PlainSvg::finished()
{
    boundDrawing(m_svg);
    return m_document;
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

// Scopes in each other are written side by side, so that none is deeper than another.
QDomElement PlainSvg::append(const QString &tag)
{
    QDomElement element = m_document.createElement(tag);
    if (m_transform.isIdentity()) {
        m_svg.appendChild(element);
        return element;
    }
    if (m_scope.isNull() || m_svg.lastChild() != m_scope || m_scopeTransform != m_transform) {
        m_scopeTransform = m_transform;
        m_scope = m_document.createElement(QStringLiteral("g"));
        m_svg.appendChild(m_scope);
        m_scope.setAttribute(QStringLiteral("transform"), matrixText(m_transform));
    }
    m_scope.appendChild(element);
    return element;
}

bool PlainSvg::add(const QDomElement &element)
{
    const QString tag = withoutPrefix(element.tagName());
    if (tag == QLatin1String("textarea")) {
        addText(element, false);
    } else if (tag == QLatin1String("image")) {
        return addPicture(element);
    } else if (isOneOf(keptTags, tag)) {
        QDomElement copy = append(tag);
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
        line.setAttribute(QLatin1String(name), number(value));
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
        head.setAttribute(QStringLiteral("d"), pathData(arrowHead(to, value("stroke-width"))));
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
    if (name.isEmpty()) {
        return {};
    }
    QDomElement image = append(QStringLiteral("image"));
    image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    image.setAttribute(QStringLiteral("xlink:href"), QString(QLatin1Char('#') + name));
    return image;
}

bool PlainSvg::addDrawing(const QByteArray &svg, const QRectF &box, const QSizeF &usualSize,
                          const std::function<QString(const QString &)> &fileOf)
{
    const auto addressOf = [&](const QString &reference) {
        if (reference.startsWith(QLatin1String("data:"))) {
            return embeddedPicture(reference, m_pixels);
        }
        const QString file = fileOf(reference);
        return file.isEmpty() ? QString() : Picture(file).address(m_pixels);
    };
    try {
        const QByteArray closed = closedSvg(svg, QStringLiteral("svg"), addressOf).text;
        const QDomDocument drawing = loadXml(closed, QStringLiteral("svg"), XmlBlanks::Kept);
        // Slides stand in one page, where no two names may be the same.
        const QByteArray name = QCryptographicHash::hash(closed, QCryptographicHash::Md5).toHex().left(8);
        const QString prefix = QLatin1Char('d') + QString::fromLatin1(name) + QString::number(++m_drawings);
        QDomElement part = append(QStringLiteral("g"));
        part.appendChild(innerSvg(m_document, drawing.documentElement(), box, usualSize, prefix));
        return true;
    } catch (const LessonError &) {
        return false;
    }
}

void PlainSvg::addImage(const QImage &image, const QRectF &box)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    m_pixels.take(1, qint64(image.width()) * image.height());
    QDomElement element = append(QStringLiteral("image"));
    setBox(element, box);
    element.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    element.setAttribute(QStringLiteral("xlink:href"),
                         QLatin1String("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64()));
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
        copyAttributes(element, image);
    }
    return !image.isNull();
}

void PlainSvg::addText(const QDomElement &area, bool isInMiddle)
{
    const double left = area.attribute(QStringLiteral("x")).toDouble();
    double y = area.attribute(QStringLiteral("y")).toDouble();
    double width = area.attribute(QStringLiteral("width")).toDouble();
    if (!(width > 0)) {
        width = m_size.width() - left;
    }
    QDomElement group = append(QStringLiteral("g"));
    copyAttributes(area, group);
    for (const char *name : {"x", "y", "width", "height", "fill"}) {
        group.removeAttribute(QLatin1String(name));
    }
    const QVector<Line> lines = linesOf(area, width);
    if (isInMiddle) {
        double space = area.attribute(QStringLiteral("height")).toDouble();
        for (const Line &line : lines) {
            space -= sizeOf(line).height();
        }
        y += qMax(0.0, space / 2);
    }
    for (const Line &line : lines) {
        const LineSize size = sizeOf(line);
        double x = left;
        if (!line.isEmpty()) {
            const Qt::AlignmentFlag align =
                textAlignment(line.constFirst().span.attribute(QStringLiteral("text-align")));
            x += align == Qt::AlignRight    ? width - size.width
                : align == Qt::AlignHCenter ? (width - size.width) / 2
                                            : 0;
        }
        for (const Piece &piece : line) {
            QDomElement text = m_document.createElement(QStringLiteral("text"));
            group.appendChild(text);
            text.setAttribute(QStringLiteral("x"), number(x));
            text.setAttribute(QStringLiteral("y"), number(y + size.ascent));
            text.setAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
            text.setAttribute(QStringLiteral("font-family"), piece.font.family());
            text.setAttribute(QStringLiteral("font-size"), number(pixelSize(piece.span)));
            for (const char *name : {"fill", "font-weight", "font-style"}) {
                const QString value = piece.span.attribute(QLatin1String(name));
                if (!value.isEmpty() && !value.contains(QLatin1String("url("), Qt::CaseInsensitive)) {
                    text.setAttribute(QLatin1String(name), value);
                }
            }
            // Another program's font of that name may be wider.
            if (piece.width > 0) {
                text.setAttribute(QStringLiteral("textLength"), number(piece.width));
            }
            text.appendChild(m_document.createTextNode(piece.text));
            // Drawn, since not every viewer knows the attribute.
            const QString decoration = piece.span.attribute(QStringLiteral("text-decoration"));
            const double letters = pixelSize(piece.span);
            for (const auto &row : {std::make_pair("underline", 0.12), std::make_pair("line-through", -0.3)}) {
                if (decoration.contains(QLatin1String(row.first))) {
                    QDomElement rule = m_document.createElement(QStringLiteral("rect"));
                    group.appendChild(rule);
                    rule.setAttribute(QStringLiteral("x"), number(x));
                    rule.setAttribute(QStringLiteral("y"), number(y + size.ascent + row.second * letters));
                    rule.setAttribute(QStringLiteral("width"), number(piece.width));
                    rule.setAttribute(QStringLiteral("height"), number(letters * 0.06));
                    rule.setAttribute(QStringLiteral("fill"), text.attribute(QStringLiteral("fill")));
                }
            }
            x += piece.width;
        }
        y += size.height();
    }
}

QDomElement PlainSvg::addPath(const QPainterPath &path, const SvgPaint &paint)
{
    QDomElement shape = append(QStringLiteral("path"));
    shape.setAttribute(QStringLiteral("d"), pathData(path));
    for (const auto &row : {std::make_pair("fill", paint.fill), std::make_pair("stroke", paint.line)}) {
        const QString name = QLatin1String(row.first);
        shape.setAttribute(name, row.second.alpha() > 0 ? row.second.name() : QStringLiteral("none"));
        if (row.second.alpha() > 0 && row.second.alpha() < 255) {
            shape.setAttribute(name + QLatin1String("-opacity"), number(row.second.alphaF()));
        }
    }
    shape.setAttribute(QStringLiteral("stroke-width"), number(paint.lineWidth));
    shape.setAttribute(QStringLiteral("stroke-linejoin"), QStringLiteral("round"));
    const QVector<double> dashes[] = {{}, {}, {5, 5}, {10, 2, 10}, {10, 2, 2, 2}};
    QStringList lengths;
    for (const double length : dashes[qBound(0, paint.dashParts, 4)]) {
        lengths.append(number(length * paint.lineWidth));
    }
    if (!lengths.isEmpty()) {
        shape.setAttribute(QStringLiteral("stroke-dasharray"), lengths.join(QLatin1Char(',')));
    }
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
    rectangle.setAttribute(QStringLiteral("fill-opacity"), number(fill.alphaF()));
    return rectangle;
}

void PlainSvg::addLine(const QLineF &line, const QColor &color, double width)
{
    QDomElement element = append(QStringLiteral("line"));
    element.setAttribute(QStringLiteral("x1"), number(line.x1()));
    element.setAttribute(QStringLiteral("y1"), number(line.y1()));
    element.setAttribute(QStringLiteral("x2"), number(line.x2()));
    element.setAttribute(QStringLiteral("y2"), number(line.y2()));
    element.setAttribute(QStringLiteral("stroke"), color.name());
    element.setAttribute(QStringLiteral("stroke-width"), number(width));
}

void PlainSvg::addLabel(const QString &text, const QRectF &box, double pixelSize, const QColor &color)
{
    constexpr int longestText = 600; // what follows would be too small to read
    const QString shown = text.left(longestText);
    LabelLines label = linesThatFit(shown, box.size(), pixelSize);
    QDomElement group = append(QStringLiteral("g"));
    const LabelLines upright = linesThatFit(shown, box.size().transposed(), pixelSize);
    if (upright.size > label.size * 1.5) {
        label = upright;
        group.setAttribute(QStringLiteral("transform"),
                           QStringLiteral("rotate(-90 %1 %2)").arg(number(box.center().x()), number(box.center().y())));
    }
    group.setAttribute(QStringLiteral("text-anchor"), QStringLiteral("middle"));
    group.setAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
    group.setAttribute(QStringLiteral("font-size"), number(label.size));
    group.setAttribute(QStringLiteral("fill"), color.name());
    double y =
        box.center().y() - (label.lines.size() - 1) * label.size * LabelLines::lineHeight / 2 + label.size * 0.35;
    for (const QString &line : qAsConst(label.lines)) {
        QDomElement element = m_document.createElement(QStringLiteral("text"));
        element.setAttribute(QStringLiteral("x"), number(box.center().x()));
        element.setAttribute(QStringLiteral("y"), number(y));
        element.appendChild(m_document.createTextNode(line));
        group.appendChild(element);
        y += label.size * LabelLines::lineHeight;
    }
}

void PlainSvg::addMarks(const QVector<SvgMark> &marks, double pixelSize, const QColor &color)
{
    QDomElement group = append(QStringLiteral("g"));
    group.setAttribute(QStringLiteral("text-anchor"), QStringLiteral("middle"));
    group.setAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
    group.setAttribute(QStringLiteral("font-size"), number(pixelSize));
    group.setAttribute(QStringLiteral("fill"), color.name());
    for (const SvgMark &mark : marks) {
        QDomElement element = m_document.createElement(QStringLiteral("text"));
        element.setAttribute(QStringLiteral("x"), number(mark.middle.x()));
        element.setAttribute(QStringLiteral("y"), number(mark.middle.y() + pixelSize * 0.36));
        if (qAbs(mark.turn) > 0.05) {
            element.setAttribute(QStringLiteral("transform"),
                                 QStringLiteral("rotate(%1 %2 %3)")
                                     .arg(number(mark.turn), number(mark.middle.x()), number(mark.middle.y())));
        }
        element.appendChild(m_document.createTextNode(mark.text));
        group.appendChild(element);
    }
}

} // namespace lessonhost
