// SPDX-License-Identifier: MIT
#include "canvas/lessontext.h"

#include "canvas/svgpaintdevice.h"
#include "canvas/textbounds.h"
#include "canvas/textpattern.h"
#include "lesson/fontshere.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextLayout>

#include <algorithm>
#include <optional>

namespace lessonhost {

namespace {

constexpr double largestPoints = largestLetters * 72 / SvgPaintDevice::dotsPerInch;

// The one that is here before the list that is asked for.
QStringList familiesHere(const QStringList &asked)
{
    static QHash<QStringList, QStringList> known;
    auto found = known.constFind(asked);
    if (found == known.cend()) {
        found = known.insert(asked, QStringList(familyHere(asked)) + withGenericFamily(asked));
    }
    return *found;
}

// In a font that is here and a size that can be drawn.
QTextCharFormat prepared(QTextCharFormat format)
{
    QStringList asked = format.fontFamilies().toStringList();
    if (asked.isEmpty() && !format.fontFamily().isEmpty()) {
        asked.append(format.fontFamily());
    }
    if (!asked.isEmpty()) {
        format.setFontFamilies(familiesHere(asked));
        format.clearProperty(QTextFormat::FontFamily);
    }
    if (format.hasProperty(QTextFormat::FontPointSize)) {
        format.setFontPointSize(qBound(1.0, format.fontPointSize(), largestPoints));
    }
    if (format.hasProperty(QTextFormat::FontPixelSize)) {
        format.setProperty(QTextFormat::FontPixelSize,
                           qBound(1, format.intProperty(QTextFormat::FontPixelSize), int(largestLetters)));
    }
    return format;
}

// To find a font takes longer than to lay out a line, and copies share what was found. points: 0 for one of as many
// pixels as single letters are drawn in.
QFont fontOf(const QString &family, bool isBold, double points = 0)
{
    constexpr int mostFonts = 500;
    static QHash<QPair<QString, double>, QFont> known[2]; // light and bold
    auto &fonts = known[int(isBold)];
    auto found = fonts.constFind({family, points});
    if (found == fonts.cend()) {
        if (fonts.size() >= mostFonts) {
            fonts.clear();
        }
        QFont font;
        font.setFamilies(familiesHere({family}));
        if (points > 0) {
            font.setPointSizeF(points);
        } else {
            font.setPixelSize(LetterLine::drawnSize);
        }
        font.setBold(isBold);
        font.setHintingPreference(QFont::PreferNoHinting);
        found = fonts.insert({family, points}, font);
    }
    return *found;
}

// In fonts that are here and sizes that can be drawn. Returns the size of the smallest letters.
double prepareFonts(QTextDocument &document)
{
    struct Part
    {
        int position;
        int length;
        QTextCharFormat format;
    };
    QVector<Part> parts;
    QHash<int, QTextCharFormat> knownFormats; // empty for those that stay
    double smallestPixels = pixelsOf(document.defaultFont());
    QTextCursor cursor(&document);
    cursor.beginEditBlock(); // a cursor finds its place in a line otherwise, wherever it goes
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            auto known = knownFormats.constFind(fragment.charFormatIndex());
            if (known == knownFormats.constEnd()) {
                const QTextCharFormat given = fragment.charFormat();
                const QTextCharFormat format = prepared(given);
                known = knownFormats.insert(fragment.charFormatIndex(), format == given ? QTextCharFormat() : format);
                smallestPixels = qMin(smallestPixels, pixelsOf(format.font().resolve(document.defaultFont())));
            }
            if (known->propertyCount() > 0) {
                parts.append({fragment.position(), fragment.length(), *known});
            }
        }
        const QTextCharFormat blockFormat = prepared(block.charFormat());
        if (blockFormat != block.charFormat()) {
            cursor.setPosition(block.position());
            cursor.setBlockCharFormat(blockFormat);
        }
    }
    for (const Part &part : qAsConst(parts)) {
        cursor.setPosition(part.position);
        cursor.setPosition(part.position + part.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(part.format);
    }
    cursor.endEditBlock();
    return smallestPixels;
}

// What comes of markup, with what can be told of it before its words are known.
struct KnownPattern
{
    std::optional<TextPattern> pattern;
    TextHeight height;
    double smallestPixels = 0;
};

// Null for markup whose words can't be filled in. font: of what tells none.
const KnownPattern *patternOf(const TextParts &parts, const QFont &font)
{
    constexpr int mostPatterns = 100;
    constexpr int longestMarkup = 5000;
    static QHash<QPair<QString, double>, KnownPattern> known;
    if (parts.markup.size() > longestMarkup) {
        return nullptr;
    }
    const QPair<QString, double> key(parts.markup, font.pointSizeF());
    auto found = known.constFind(key);
    if (found == known.cend()) {
        if (known.size() >= mostPatterns) {
            known.clear();
        }
        KnownPattern made;
        ClosedTextDocument document;
        document.setDefaultFont(font);
        document.setDocumentMargin(0);
        document.setLessonHtml(parts.markup);
        made.height = boundText(document);
        made.smallestPixels = prepareFonts(document);
        made.pattern = TextPattern::of(document, parts.words.size());
        found = known.insert(key, made);
    }
    const bool isTooHigh = found->height.all + parts.letters * found->height.letter > highestText;
    return found->pattern && !isTooHigh ? &*found : nullptr;
}

constexpr Qt::Alignment placedAlignments = Qt::AlignHCenter | Qt::AlignRight | Qt::AlignJustify;

void addLines(QVector<SvgPaintDevice::Line> &lines, const QTextLayout &layout, Qt::Alignment alignment,
              const QPointF &offset)
{
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const QRectF letters = line.naturalTextRect();
        lines.append({offset.y() + line.y() + line.ascent(), offset.x() + letters.left(), offset.x() + letters.right(),
                      alignment});
    }
}

// The lines that begin elsewhere than at the left.
QVector<SvgPaintDevice::Line> linesOf(const QTextDocument &document)
{
    QVector<SvgPaintDevice::Line> lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        const Qt::Alignment alignment = format.hasProperty(QTextFormat::BlockAlignment)
            ? format.alignment()
            : document.defaultTextOption().alignment();
        if ((alignment & placedAlignments) && block.textDirection() != Qt::RightToLeft) {
            const QPointF offset = document.documentLayout()->blockBoundingRect(block).topLeft();
            addLines(lines, *block.layout(), alignment, offset);
        }
    }
    return lines;
}

QVector<SvgPaintDevice::Line> linesOf(const PlainParagraph &paragraph)
{
    QVector<SvgPaintDevice::Line> lines;
    const Qt::Alignment alignment = paragraph.layout().textOption().alignment();
    if (alignment & placedAlignments) {
        addLines(lines, paragraph.layout(), alignment, {});
    }
    return lines;
}

} // namespace

LessonText::LessonText(const QString &text, double width, const TextLook &look, bool keepsWords,
                       const PictureSize &sizeOf)
    : m_color(look.color)
{
    const double points = qBound(1.0, look.pixels * 72 / SvgPaintDevice::dotsPerInch, largestPoints);
    const QFont font = fontOf(look.family, look.isBold, points);
    QTextOption option;
    option.setAlignment(look.alignment);
    option.setWrapMode(keepsWords ? QTextOption::WordWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    if (!QCoreApplication::testAttribute(Qt::AA_Use96Dpi)) {
        constexpr double inchesInMeter = 1 / 0.0254;
        m_screen = QImage(1, 1, QImage::Format_RGB32);
        m_screen.setDotsPerMeterX(qRound(SvgPaintDevice::dotsPerInch * inchesInMeter));
        m_screen.setDotsPerMeterY(m_screen.dotsPerMeterX());
    }
    if (PlainParagraph::canHold(text)) {
        m_paragraph = std::make_unique<PlainParagraph>(text, font, option, m_screen.isNull() ? nullptr : &m_screen);
        m_smallestPixels = pixelsOf(font);
    } else {
        makeDocument(text, font, option, sizeOf);
    }
    setWidth(width);
}

// A document that has a layout lays itself out after each change, so it gets one when nothing changes any more.
void LessonText::makeDocument(const QString &text, const QFont &font, const QTextOption &option,
                              const PictureSize &sizeOf)
{
    m_document = std::make_unique<ClosedTextDocument>();
    m_document->setDefaultFont(font);
    m_document->setDocumentMargin(0);
    m_document->setUseDesignMetrics(true);
    QTextOption own = m_document->defaultTextOption();
    own.setAlignment(option.alignment());
    own.setWrapMode(option.wrapMode());
    m_document->setDefaultTextOption(own);
    const bool isHtml = text.contains(QLatin1Char('<')) || text.contains(QLatin1Char('&'));
    const auto parts = isHtml ? TextParts::of(text) : std::nullopt;
    if (const KnownPattern *known = parts ? patternOf(*parts, font) : nullptr) {
        known->pattern->fill(*m_document, parts->words);
        m_smallestPixels = known->smallestPixels;
    } else {
        if (isHtml) {
            m_document->setLessonHtml(text);
        } else {
            m_document->setPlainText(text);
        }
        if (sizeOf && text.contains(QLatin1String("<img"), Qt::CaseInsensitive)) {
            sizePictures(sizeOf);
        }
        boundText(*m_document);
        m_smallestPixels = prepareFonts(*m_document);
    }
    // Letters that were measured are drawn from what is known of them.
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        block.layout()->setCacheEnabled(true);
    }
    if (!m_screen.isNull()) {
        m_document->documentLayout()->setPaintDevice(&m_screen);
    }
}

// A layout takes a picture for as large as its file, which it isn't handed. One side that is told says the other.
void LessonText::sizePictures(const PictureSize &sizeOf)
{
    struct Place
    {
        int position;
        QTextImageFormat format;
    };
    QHash<QString, QSize> sizes;
    QVector<Place> places;
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextImageFormat format = it.fragment().charFormat().toImageFormat();
            const bool hasWidth = format.hasProperty(QTextFormat::ImageWidth);
            const bool hasHeight = format.hasProperty(QTextFormat::ImageHeight);
            if (!format.isValid() || (hasWidth && hasHeight)) {
                continue;
            }
            if (!sizes.contains(format.name())) {
                sizes.insert(format.name(), sizeOf(format.name()));
            }
            const QSizeF size = sizes.value(format.name());
            if (size.isEmpty()) {
                continue;
            }
            const double scale = hasWidth ? format.width() / size.width()
                : hasHeight               ? format.height() / size.height()
                                          : 1;
            format.setWidth(size.width() * scale);
            format.setHeight(size.height() * scale);
            for (int i = 0; i < it.fragment().length(); ++i) {
                places.append({it.fragment().position() + i, format});
            }
        }
    }
    QTextCursor cursor(m_document.get());
    for (const Place &place : qAsConst(places)) {
        cursor.setPosition(place.position);
        cursor.setPosition(place.position + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(place.format);
    }
}

void LessonText::setWidth(double width)
{
    const double least = qMax(1.0, width);
    if (m_paragraph && !m_paragraph->setWidth(least)) {
        const QTextLayout &layout = m_paragraph->layout();
        makeDocument(layout.text(), layout.font(), layout.textOption(), {});
        m_paragraph.reset();
    }
    if (m_document) {
        m_document->setTextWidth(least);
    }
}

QVector<LessonText::TextPicture> LessonText::draw(const QDomElement &group, bool isStretched)
{
    QVector<TextPicture> pictures;
    SvgPaintDevice device(group);
    auto lines = m_paragraph ? linesOf(*m_paragraph) : linesOf(*m_document);
    if (isStretched) {
        const auto isByEnd = [](const SvgPaintDevice::Line &line) { return !(line.alignment & Qt::AlignJustify); };
        lines.erase(std::remove_if(lines.begin(), lines.end(), isByEnd), lines.end());
    }
    device.setLines(lines);
    QPainter painter(&device);
    if (m_paragraph) {
        painter.setPen(m_color);
        m_paragraph->draw(painter);
        return pictures;
    }
    device.setPictures([&](qint64 key, const QRectF &box) {
        const QString name = m_document->pictureName(key);
        if (!name.isEmpty()) {
            pictures.append({name, box});
        }
    });
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, m_color);
    m_document->documentLayout()->draw(&painter, context);
    return pictures;
}

// Letters have the same proportions in every size, so they are painted in one that can be measured well.
LetterLine::LetterLine(const QString &text, const TextLook &look)
    : m_text(text)
    , m_color(look.color)
    , m_font(fontOf(look.family, look.isBold))
{
    const QFontMetricsF metrics(m_font);
    m_width = metrics.horizontalAdvance(text) / drawnSize;
    m_xHeight = metrics.xHeight() / drawnSize;
}

QRectF LetterLine::ink() const
{
    const QRectF ink = QFontMetricsF(m_font).tightBoundingRect(m_text);
    return {ink.topLeft() / drawnSize, ink.size() / drawnSize};
}

void LetterLine::draw(const QDomElement &group, bool isStretched) const
{
    const double half = m_width * drawnSize / 2;
    SvgPaintDevice device(group);
    if (!isStretched) {
        device.setLines({{0, -half, half, Qt::AlignHCenter}});
    }
    QPainter painter(&device);
    painter.setFont(m_font);
    painter.setPen(m_color);
    painter.drawText(QPointF(-half, 0), m_text);
}

} // namespace lessonhost
