// SPDX-License-Identifier: MIT
#include "canvas/textbounds.h"

#include "canvas/svgpaintdevice.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <initializer_list>

namespace lessonhost {

namespace {

constexpr double largestLength = 2000; // of margins and the like, in pixels
constexpr double widestTable = 20000;
constexpr int mostIndent = 50;

// What a format says of lengths, as a number.
void boundLengths(QTextFormat &format, std::initializer_list<int> properties)
{
    for (const int property : properties) {
        const QVariant value = format.property(property);
        if (value.isValid()) {
            const double bounded = qBound(-largestLength, value.toDouble(), largestLength);
            format.setProperty(property, qIsNaN(bounded) ? 0 : bounded);
        }
    }
}

QTextBlockFormat bounded(QTextBlockFormat format)
{
    boundLengths(format,
                 {QTextFormat::BlockTopMargin, QTextFormat::BlockBottomMargin, QTextFormat::BlockLeftMargin,
                  QTextFormat::BlockRightMargin, QTextFormat::TextIndent, QTextFormat::LineHeight});
    const int indent = qBound(0, format.indent(), mostIndent);
    if (indent != format.indent()) {
        format.setIndent(indent);
    }
    return format;
}

// How high a line of letters may become.
double lineHeightOf(const QTextBlockFormat &format, double letters)
{
    constexpr double usual = 1.5; // of the size of letters
    constexpr double percent = 100;
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        return usual * letters * qMax(1.0, format.lineHeight() / percent);
    case QTextBlockFormat::SingleHeight:
        return usual * letters;
    default:
        return usual * letters + qAbs(format.lineHeight());
    }
}

// What a cell adds to the height of its row beside its text.
double boundCell(QTextTableCell cell)
{
    const QTextTableCellFormat given = cell.format().toTableCellFormat();
    QTextTableCellFormat format = given;
    boundLengths(format,
                 {QTextFormat::TableCellTopPadding, QTextFormat::TableCellBottomPadding,
                  QTextFormat::TableCellLeftPadding, QTextFormat::TableCellRightPadding,
                  QTextFormat::TableCellTopBorder, QTextFormat::TableCellBottomBorder, QTextFormat::TableCellLeftBorder,
                  QTextFormat::TableCellRightBorder});
    if (format != given) {
        cell.setFormat(format);
    }
    return format.topPadding() + format.bottomPadding() + format.topBorder() + format.bottomBorder();
}

QTextLength bounded(const QTextLength &length)
{
    return length.type() == QTextLength::FixedLength
        ? QTextLength(QTextLength::FixedLength, qBound(0.0, length.rawValue(), widestTable))
        : length;
}

// Of a frame and those within, and of the cells of tables. Returns how high their edges may be together.
double boundFrames(QTextFrame *frame)
{
    auto *const table = qobject_cast<QTextTable *>(frame);
    QTextFrameFormat bounds = frame->frameFormat();
    boundLengths(bounds,
                 {QTextFormat::FrameBorder, QTextFormat::FrameMargin, QTextFormat::FramePadding,
                  QTextFormat::FrameTopMargin, QTextFormat::FrameBottomMargin, QTextFormat::FrameLeftMargin,
                  QTextFormat::FrameRightMargin, QTextFormat::TableCellSpacing, QTextFormat::TableCellPadding});
    bounds.setWidth(bounded(bounds.width()));
    bounds.setHeight(bounded(bounds.height()));
    double height = 2 * (bounds.border() + bounds.padding()) + bounds.topMargin() + bounds.bottomMargin()
        + bounds.height().rawValue();
    if (table) {
        QTextTableFormat format = bounds.toTableFormat();
        QVector<QTextLength> columns = format.columnWidthConstraints();
        std::transform(columns.cbegin(), columns.cend(), columns.begin(),
                       [](const QTextLength &l) { return bounded(l); });
        format.setColumnWidthConstraints(columns);
        if (format != table->format()) {
            table->setFormat(format);
        }
        height += table->rows() * 2 * (format.cellPadding() + format.cellSpacing() + format.border());
        for (int row = 0; row < table->rows(); ++row) {
            for (int column = 0; column < table->columns(); ++column) {
                height += boundCell(table->cellAt(row, column));
            }
        }
    } else if (bounds != frame->frameFormat()) {
        frame->setFrameFormat(bounds);
    }
    const QList<QTextFrame *> inner = frame->childFrames();
    for (QTextFrame *child : inner) {
        height += boundFrames(child);
    }
    return height;
}

// How high a line of a paragraph may become.
double lineHeightOf(const QTextBlock &block, const QTextBlockFormat &format, const QFont &font)
{
    double highest = pixelsOf(font);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat letters = it.fragment().charFormat();
        const double image = letters.isImageFormat() ? letters.toImageFormat().height() : 0;
        highest = qMax(highest, qMax(image, pixelsOf(letters.font().resolve(font))));
    }
    return lineHeightOf(format, qMin(highest, largestLetters));
}

// Pictures in the text.
void boundImages(QTextCursor &cursor, const QTextBlock &block)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        QTextImageFormat format = fragment.charFormat().toImageFormat();
        if (!format.isValid()) {
            continue;
        }
        boundLengths(format, {QTextFormat::ImageWidth, QTextFormat::ImageHeight});
        if (format != fragment.charFormat()) {
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
            it = block.begin();
        }
    }
}

} // namespace

double pixelsOf(const QFont &font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * SvgPaintDevice::dotsPerInch / 72;
}

TextHeight boundText(QTextDocument &document)
{
    TextHeight height;
    height.all = boundFrames(document.rootFrame());
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        boundImages(cursor, block);
        const QTextBlockFormat format = bounded(block.blockFormat());
        if (format != block.blockFormat()) {
            cursor.setPosition(block.position());
            cursor.setBlockFormat(format);
        }
        const double line = lineHeightOf(block, format, document.defaultFont());
        height.all += format.topMargin() + format.bottomMargin() + block.length() * line;
        height.letter = qMax(height.letter, line);
    }
    if (height.all > highestText) {
        const double line = lineHeightOf({}, pixelsOf(document.defaultFont()));
        document.setPlainText(document.toPlainText().left(int(highestText / line)));
    }
    return height;
}

} // namespace lessonhost
