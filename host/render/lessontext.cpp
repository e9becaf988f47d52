// SPDX-License-Identifier: MIT
#include "render/lessontext.h"

#include "lesson/fontshere.h"
#include "render/svgpaintdevice.h"
#include "render/textbounds.h"

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

namespace lessonhost {

namespace {

constexpr double largestPoints = largestLetters * 72 / SvgPaintDevice::dotsPerInch;

// The one that is here before the list that is asked for.
QStringList families(const QStringList &asked)
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
        format.setFontFamilies(families(asked));
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

// The lines that begin elsewhere than at the left.
QVector<SvgPaintDevice::Line> linesOf(const QTextDocument &document)
{
    QVector<SvgPaintDevice::Line> lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        const Qt::Alignment alignment = format.hasProperty(QTextFormat::BlockAlignment)
            ? format.alignment()
            : document.defaultTextOption().alignment();
        if (!(alignment & (Qt::AlignHCenter | Qt::AlignRight | Qt::AlignJustify))
            || block.textDirection() == Qt::RightToLeft) {
            continue;
        }
        const QPointF offset = document.documentLayout()->blockBoundingRect(block).topLeft();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const QRectF letters = line.naturalTextRect();
            lines.append({offset.y() + line.y() + line.ascent(), offset.x() + letters.left(),
                          offset.x() + letters.right(), alignment});
        }
    }
    return lines;
}

} // namespace

// A document that has a layout lays itself out after each change, so it gets one when nothing changes any more.
LessonText::LessonText(const QString &text, double width, const TextLook &look, bool keepsWords)
    : m_color(look.color)
{
    QFont font;
    font.setFamilies(families({look.family}));
    font.setPointSizeF(qBound(1.0, look.pixels * 72 / SvgPaintDevice::dotsPerInch, largestPoints));
    font.setBold(look.isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    m_document.setDefaultFont(font);
    m_document.setDocumentMargin(0);
    m_document.setUseDesignMetrics(true);
    QTextOption option = m_document.defaultTextOption();
    option.setAlignment(look.alignment);
    option.setWrapMode(keepsWords ? QTextOption::WordWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_document.setDefaultTextOption(option);
    if (text.contains(QLatin1Char('<')) || text.contains(QLatin1Char('&'))) {
        m_document.setLessonHtml(text);
    } else {
        m_document.setPlainText(text);
    }
    boundText(m_document);
    prepareFonts();
    setWidth(width);
    QAbstractTextDocumentLayout *const layout = m_document.documentLayout();
    if (!QCoreApplication::testAttribute(Qt::AA_Use96Dpi)) {
        constexpr double inchesInMeter = 1 / 0.0254;
        m_screen = QImage(1, 1, QImage::Format_RGB32);
        m_screen.setDotsPerMeterX(qRound(SvgPaintDevice::dotsPerInch * inchesInMeter));
        m_screen.setDotsPerMeterY(m_screen.dotsPerMeterX());
        layout->setPaintDevice(&m_screen);
        setWidth(width);
    }
}

void LessonText::prepareFonts()
{
    struct Part
    {
        int position;
        int length;
        QTextCharFormat format;
    };
    QVector<Part> parts;
    m_smallestPixels = pixelsOf(m_document.defaultFont());
    QTextCursor cursor(&m_document);
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = prepared(fragment.charFormat());
            if (format != fragment.charFormat()) {
                parts.append({fragment.position(), fragment.length(), format});
            }
            m_smallestPixels = qMin(m_smallestPixels, pixelsOf(format.font().resolve(m_document.defaultFont())));
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
}

void LessonText::setWidth(double width)
{
    m_document.setTextWidth(qMax(1.0, width));
}

void LessonText::draw(const QDomElement &group)
{
    SvgPaintDevice device(group);
    device.setLines(linesOf(m_document));
    QPainter painter(&device);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, m_color);
    m_document.documentLayout()->draw(&painter, context);
}

// Letters have the same proportions in every size, so they are painted in one that can be measured well.
LetterLine::LetterLine(const QString &text, const TextLook &look)
    : m_text(text)
    , m_color(look.color)
{
    m_font.setFamilies(families({look.family}));
    m_font.setPixelSize(drawnSize);
    m_font.setBold(look.isBold);
    m_font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(m_font);
    m_width = metrics.horizontalAdvance(text) / drawnSize;
    m_xHeight = metrics.xHeight() / drawnSize;
}

void LetterLine::draw(const QDomElement &group) const
{
    const double half = m_width * drawnSize / 2;
    SvgPaintDevice device(group);
    device.setLines({{0, -half, half, Qt::AlignHCenter}});
    QPainter painter(&device);
    painter.setFont(m_font);
    painter.setPen(m_color);
    painter.drawText(QPointF(-half, 0), m_text);
}

} // namespace lessonhost
