// SPDX-License-Identifier: MIT
#include "canvas/svgpaintdevice.h"

#include "canvas/svgelements.h"
#include "canvas/textbounds.h"
#include "lesson/fontvalues.h"

#include <QFont>
#include <QImage>
#include <QPaintEngine>
#include <QPixmap>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace lessonhost {

namespace {

// Letters in the case in which the font draws them. Small capitals come by themselves, in their size.
QString drawnLetters(const QString &text, const QFont &font)
{
    switch (font.capitalization()) {
    case QFont::AllUppercase:
    case QFont::SmallCaps:
        return text.toUpper();
    case QFont::AllLowercase:
        return text.toLower();
    default:
        return text;
    }
}

// One that was found before stands before the list that was asked for.
QStringList familiesOf(const QFont &font)
{
    const QStringList all = font.families();
    if (all.isEmpty()) {
        return {font.family()};
    }
    return all.indexOf(all.constFirst(), 1) > 0 ? QStringList(all.mid(1)) : all;
}

int lengthWithoutBlanks(const QString &text)
{
    int length = text.size();
    while (length > 0 && text.at(length - 1).isSpace()) {
        --length;
    }
    return length;
}

// What a letter says beside its size, by which a span can tell where it differs from the text around it.
struct Letters
{
    QStringList families;
    QString weight;
    bool isItalic = false;
    QColor color;

    Letters() = default;
    Letters(const QFont &font, const QColor &color)
        : families(familiesOf(font))
        , weight(fontWeightText(font.weight()))
        , isItalic(font.italic())
        , color(color)
    {
    }

    //! Sets what differs from the letters around these.
    void set(QDomElement &element, const Letters *around) const
    {
        if (!around || families != around->families) {
            setDrawnFamilies(element, families);
        }
        if (around ? weight != around->weight : weight != QLatin1String("normal")) {
            element.setAttribute(QStringLiteral("font-weight"), weight);
        }
        if (isItalic != (around && around->isItalic)) {
            element.setAttribute(QStringLiteral("font-style"),
                                 isItalic ? QStringLiteral("italic") : QStringLiteral("normal"));
        }
        if (!around || color != around->color) {
            setDrawnColor(element, "fill", color);
        }
        if (around && color.alpha() == 255 && around->color.alpha() < 255) {
            element.setAttribute(QStringLiteral("fill-opacity"), QStringLiteral("1"));
        }
    }

    bool operator==(const Letters &other) const
    {
        return families == other.families && weight == other.weight && isItalic == other.isItalic
            && color == other.color;
    }
};

/*!
 * Where letters stand by themselves, without being stretched to a length.
 */
class NaturalLine
{
public:
    NaturalLine(const QString &text, const QFont &font)
        : m_layout(text, font)
    {
        QTextOption option;
        option.setUseDesignMetrics(true);
        option.setWrapMode(QTextOption::NoWrap);
        m_layout.setTextOption(option);
        m_layout.beginLayout();
        m_line = m_layout.createLine();
        m_layout.endLayout();
    }

    double width() const { return qAbs(at(m_layout.text().size()) - at(0)); }
    double at(int letter) const { return m_line.cursorToX(letter); }
    bool isBreak(int letter) const { return m_layout.isValidCursorPosition(letter); }

private:
    QTextLayout m_layout;
    QTextLine m_line;
};

} // namespace

class SvgPaintDevice::Engine : public QPaintEngine
{
public:
    explicit Engine(const QDomElement &group)
        : QPaintEngine(AllFeatures)
        , m_group(group)
        , m_document(group.ownerDocument())
    {
    }

    QVector<Line> lines;
    bool hasFullLines = false;
    PictureTaker pictures;

    bool begin(QPaintDevice *) override { return true; }
    bool end() override
    {
        finishText();
        return true;
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &state) override
    {
        const DirtyFlags changed = state.state();
        if (changed & DirtyPen) {
            m_pen = state.pen();
        }
        if (changed & DirtyBrush) {
            m_brush = state.brush();
        }
        if (changed & DirtyTransform) {
            finishText();
            m_transform = state.transform();
        }
        if (changed & DirtyOpacity) {
            m_opacity = state.opacity();
        }
    }

    void drawPath(const QPainterPath &path) override
    {
        QDomElement shape = append(QStringLiteral("path"));
        setDrawnPath(shape, path);
        if (path.fillRule() == Qt::OddEvenFill) {
            shape.setAttribute(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
        }
        setDrawnColor(shape, "fill", fill());
        setLine(shape);
    }

    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPainterPath path;
        QPolygonF polygon;
        for (int i = 0; i < count; ++i) {
            polygon.append(points[i]);
        }
        path.addPolygon(polygon);
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        if (mode == PolylineMode) {
            const QBrush brush = std::exchange(m_brush, QBrush(Qt::NoBrush));
            drawPath(path);
            m_brush = brush;
        } else {
            path.closeSubpath();
            drawPath(path);
        }
    }
    using QPaintEngine::drawPolygon;

    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            QDomElement rectangle = append(QStringLiteral("rect"));
            const QRectF box = rects[i].normalized();
            rectangle.setAttribute(QStringLiteral("x"), drawnNumber(box.x()));
            rectangle.setAttribute(QStringLiteral("y"), drawnNumber(box.y()));
            rectangle.setAttribute(QStringLiteral("width"), drawnNumber(box.width()));
            rectangle.setAttribute(QStringLiteral("height"), drawnNumber(box.height()));
            setDrawnColor(rectangle, "fill", fill());
            setLine(rectangle);
        }
    }
    using QPaintEngine::drawRects;

    void drawLines(const QLineF *drawn, int count) override
    {
        for (int i = 0; i < count; ++i) {
            QDomElement line = append(QStringLiteral("line"));
            line.setAttribute(QStringLiteral("x1"), drawnNumber(drawn[i].x1()));
            line.setAttribute(QStringLiteral("y1"), drawnNumber(drawn[i].y1()));
            line.setAttribute(QStringLiteral("x2"), drawnNumber(drawn[i].x2()));
            line.setAttribute(QStringLiteral("y2"), drawnNumber(drawn[i].y2()));
            setLine(line);
        }
    }
    using QPaintEngine::drawLines;

    void drawPixmap(const QRectF &box, const QPixmap &pixmap, const QRectF &) override
    {
        takePicture(pixmap.cacheKey(), box);
    }
    void drawImage(const QRectF &box, const QImage &image, const QRectF &, Qt::ImageConversionFlags) override
    {
        takePicture(image.cacheKey(), box);
    }

    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        const QFont font = item.font();
        const QString text = drawnLetters(item.text(), font);
        const bool isNext = continuesText(position, pixelsOf(font));
        if (text.trimmed().isEmpty() && !isNext) {
            return;
        }
        const bool isRightToLeft = item.renderFlags() & QTextItem::RightToLeft;
        if (!isRightToLeft && addApart(position, text, item)) {
            return;
        }
        const Letters letters(font, faded(m_pen.color()));
        if (isRightToLeft) {
            addRightToLeft(position, text, item, letters);
            return;
        }
        if (!isNext) {
            startText(position, font, letters);
        }
        addSpan(text, letters);
        m_textEnd = position.x() + item.width();
        if (const int letters = lengthWithoutBlanks(text)) {
            m_lettersEnd = m_textEnd;
            m_blanks = {item.text(), font, position.x(), lines.isEmpty() || letters == text.size() ? 0 : letters};
        }
    }

private:
    void takePicture(qint64 key, const QRectF &box) const
    {
        if (pictures) {
            pictures(key, m_transform.mapRect(box));
        }
    }

    // Of pictures and the like that fill something, nothing is drawn.
    QColor fill() const
    {
        return m_brush.style() == Qt::SolidPattern ? faded(m_brush.color()) : QColor(Qt::transparent);
    }

    // Where the text that is being written ends, without blanks. They are measured when somebody asks.
    double lettersEnd()
    {
        if (m_blanks.letters > 0) {
            m_lettersEnd = m_blanks.start + NaturalLine(m_blanks.text, m_blanks.font).at(m_blanks.letters);
            m_blanks.letters = 0;
        }
        return m_lettersEnd;
    }

    QColor faded(QColor color) const
    {
        color.setAlphaF(color.alphaF() * m_opacity);
        return color;
    }

    void setLine(QDomElement &shape) const
    {
        if (m_pen.style() == Qt::NoPen) {
            return;
        }
        setDrawnColor(shape, "stroke", faded(m_pen.color()));
        const double width = m_pen.widthF() > 0 ? m_pen.widthF() : 1;
        shape.setAttribute(QStringLiteral("stroke-width"), drawnNumber(width));
        QStringList dashes;
        const QVector<qreal> pattern = m_pen.style() == Qt::SolidLine ? QVector<qreal>() : m_pen.dashPattern();
        for (const double length : pattern) {
            dashes.append(drawnNumber(length * width));
        }
        if (!dashes.isEmpty()) {
            shape.setAttribute(QStringLiteral("stroke-dasharray"), dashes.join(QLatin1Char(',')));
        }
    }

    QDomElement append(const QString &tag)
    {
        finishText();
        return appendPlaced(tag);
    }

    QDomElement appendPlaced(const QString &tag)
    {
        QDomElement element = m_document.createElement(tag);
        m_group.appendChild(element);
        if (!m_transform.isIdentity()) {
            element.setAttribute(QStringLiteral("transform"), drawnTransform(m_transform));
        }
        return element;
    }

    // The next letters of the line that is being written, in the same size. Viewers give the spans of a text one size.
    bool continuesText(const QPointF &position, double pixels) const
    {
        return !m_text.isNull() && qAbs(position.y() - m_baseline) < 0.01 && qAbs(position.x() - m_textEnd) < 0.5
            && qFuzzyCompare(pixels, m_pixels);
    }

    void startText(const QPointF &position, const QFont &font, const Letters &letters)
    {
        finishText();
        m_text = appendPlaced(QStringLiteral("text"));
        m_text.setAttribute(QStringLiteral("x"), drawnNumber(position.x()));
        m_text.setAttribute(QStringLiteral("y"), drawnNumber(position.y()));
        m_text.setAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
        m_pixels = pixelsOf(font);
        m_text.setAttribute(QStringLiteral("font-size"), drawnNumber(m_pixels));
        m_letters = letters;
        letters.set(m_text, nullptr);
        m_baseline = position.y();
        m_textStart = position.x();
        m_lettersEnd = m_textStart;
        m_blanks.letters = 0;
    }

    void addSpan(const QString &text, const Letters &letters)
    {
        if (letters == m_letters) {
            m_text.appendChild(m_document.createTextNode(text));
            return;
        }
        QDomElement span = m_document.createElement(QStringLiteral("tspan"));
        letters.set(span, &m_letters);
        span.appendChild(m_document.createTextNode(text));
        m_text.appendChild(span);
    }

    // The middle is the same in whichever direction a viewer writes. Blanks are left out: on their own, those at the
    // end stand where text from the left to the right ends.
    void addRightToLeft(const QPointF &position, const QString &text, const QTextItem &item, const Letters &letters)
    {
        const int end = lengthWithoutBlanks(text);
        int start = 0;
        while (start < end && text.at(start).isSpace()) {
            ++start;
        }
        const double blank =
            start > 0 || end < text.size() ? NaturalLine(QString(QLatin1Char(' ')), item.font()).width() : 0;
        startText(position + QPointF((text.size() - end) * blank, 0), item.font(), letters);
        addSpan(text.mid(start, end - start), letters);
        m_textEnd = position.x() + item.width() - start * blank;
        setAnchor(Qt::AlignHCenter, m_textEnd);
        m_text = QDomElement();
    }

    // Words that are set apart to fill a line, or letters that are: each where it was painted. False for others.
    bool addApart(const QPointF &position, const QString &text, const QTextItem &item)
    {
        const QFont font = item.font();
        const bool isSpaced = font.letterSpacing() != 0 && font.letterSpacingType() == QFont::AbsoluteSpacing;
        if (!(hasFullLines || isSpaced) || text.size() != item.text().size()
            || font.capitalization() == QFont::SmallCaps) {
            return false;
        }
        const NaturalLine natural(item.text(), font);
        const double stretched = item.width() - natural.width();
        if (qAbs(stretched) < 0.5 && !isSpaced) {
            return false;
        }
        const Letters letters(font, faded(m_pen.color()));
        const int gaps = text.trimmed().count(QLatin1Char(' '));
        const bool isByLetter = isSpaced || gaps == 0;
        int breaks = 0;
        for (int i = 1; i < text.size(); ++i) {
            breaks += natural.isBreak(i) ? 1 : 0;
        }
        const double step = isByLetter ? (breaks > 0 ? stretched / breaks : 0) : stretched / gaps;
        double moved = 0;
        int start = 0;
        for (int i = 1; i <= text.size(); ++i) {
            const bool isEnd = i == text.size()
                || (isByLetter ? natural.isBreak(i)
                               : text.at(i - 1) == QLatin1Char(' ') && text.at(i) != QLatin1Char(' '));
            if (!isEnd) {
                continue;
            }
            startText({position.x() + natural.at(start) + moved, position.y()}, font, letters);
            addSpan(text.mid(start, i - start), letters);
            m_text = QDomElement();
            moved += isByLetter ? step : step * text.midRef(start, i - start).count(QLatin1Char(' '));
            start = i;
        }
        return true;
    }

    // A text that fills its line stands as its line does.
    void finishText()
    {
        if (m_text.isNull()) {
            return;
        }
        constexpr double tolerance = 0.5;
        const double overhang = 0.1 * m_pixels; // of the last letter, which the line counts
        auto line = std::lower_bound(lines.cbegin(), lines.cend(), m_baseline - tolerance,
                                     [](const Line &row, double y) { return row.baseline < y; });
        for (; line != lines.cend() && line->baseline < m_baseline + tolerance; ++line) {
            if (qAbs(line->left - m_textStart) < tolerance && qAbs(line->right - lettersEnd()) < tolerance + overhang) {
                QDomText last = m_text.lastChild().isText() ? m_text.lastChild().toText()
                                                            : m_text.lastChild().firstChild().toText();
                last.setData(last.data().left(lengthWithoutBlanks(last.data())));
                setAnchor(line->alignment, m_lettersEnd);
                break;
            }
        }
        m_text = QDomElement();
    }

    void setAnchor(Qt::Alignment alignment, double end)
    {
        const bool isMiddle = alignment & Qt::AlignHCenter;
        m_text.setAttribute(QStringLiteral("x"), drawnNumber(isMiddle ? (m_textStart + end) / 2 : end));
        m_text.setAttribute(QStringLiteral("text-anchor"), isMiddle ? QStringLiteral("middle") : QStringLiteral("end"));
    }

    QDomElement m_group;
    QDomDocument m_document;
    QPen m_pen;
    QBrush m_brush = Qt::NoBrush;
    QTransform m_transform;
    double m_opacity = 1;

    QDomElement m_text; // null where no line is being written
    Letters m_letters; // with which it begins
    double m_pixels = 0;
    double m_baseline = 0;
    double m_textStart = 0;
    double m_textEnd = 0;
    double m_lettersEnd = 0; // without blanks at the end, but for these
    struct Blanks
    {
        QString text; // with them
        QFont font;
        double start = 0; // of the text
        int letters = 0; // before them; 0 where there are none
    } m_blanks;
};

SvgPaintDevice::SvgPaintDevice(const QDomElement &group)
    : m_engine(std::make_unique<Engine>(group))
{
}

SvgPaintDevice::~SvgPaintDevice() = default;

void SvgPaintDevice::setPictures(const PictureTaker &taker)
{
    m_engine->pictures = taker;
}

void SvgPaintDevice::setLines(QVector<Line> lines)
{
    const auto isFull = [](const Line &line) { return bool(line.alignment & Qt::AlignJustify); };
    m_engine->hasFullLines = std::any_of(lines.cbegin(), lines.cend(), isFull);
    lines.erase(std::remove_if(lines.begin(), lines.end(), isFull), lines.end());
    std::sort(lines.begin(), lines.end(), [](const Line &a, const Line &b) { return a.baseline < b.baseline; });
    m_engine->lines = lines;
}

QPaintEngine *SvgPaintDevice::paintEngine() const
{
    return m_engine.get();
}

int SvgPaintDevice::metric(PaintDeviceMetric metric) const
{
    constexpr int side = 1000000;
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return side;
    case PdmWidthMM:
    case PdmHeightMM:
        return int(side / double(dotsPerInch) * 25.4);
    case PdmNumColors:
        return 1 << 24;
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmDevicePixelRatio:
        return 1;
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace lessonhost
