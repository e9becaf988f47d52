// SPDX-License-Identifier: MIT
#include "drawings/languagedrawing.h"

#include "drawings/itemoutline.h"
#include "lesson/closedtext.h"
#include "lesson/textruns.h"
#include "svg/svgstyle.h"

#include <QHash>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String wordArt("ZQCommonYishuzi");
constexpr int mostSquares = 400; // of an item, in squares
constexpr int dashedLine = 2;
constexpr double usedWidth = 0.96; // of lines that are full

// What is drawn of an item, in lengths of the page from the middle of its box.
struct Sheet
{
    Canvas &canvas;
    QTransform place;
    QRectF area;
};

enum class Grid { Field, Rice };

SvgPaint linePaint(double width)
{
    SvgPaint paint;
    paint.line = QColor(0xc0, 0x50, 0x4d);
    paint.fill = Qt::transparent;
    paint.lineWidth = width;
    return paint;
}

TextLook characterLook(const QColor &color = Qt::black)
{
    TextLook look;
    look.family = QStringLiteral("serif");
    look.color = color;
    return look;
}

// A text without the tags that it may have.
QString wordsOf(const QString &text)
{
    return text.contains(QLatin1Char('<')) ? plainWords(text) : text.simplified();
}

// One letter each, with what stands above and below it.
QStringList lettersOf(const QString &text)
{
    QStringList letters;
    for (int i = 0; i < text.size() && letters.size() < mostSquares; ++i) {
        const QChar c = text.at(i);
        if (!letters.isEmpty() && (c.isLowSurrogate() || c.isMark())) {
            letters.last() += c;
        } else if (!c.isSpace()) {
            letters.append(QString(c));
        }
    }
    return letters;
}

// The square with a cross, and for Rice the diagonals, that Chinese characters are practised in: named after the
// characters that its lines look like.
void drawSquare(const Sheet &sheet, const QRectF &square, Grid grid)
{
    const QPointF middle = square.center();
    QPainterPath guides;
    guides.moveTo(square.left(), middle.y());
    guides.lineTo(square.right(), middle.y());
    guides.moveTo(middle.x(), square.top());
    guides.lineTo(middle.x(), square.bottom());
    if (grid == Grid::Rice) {
        guides.moveTo(square.topLeft());
        guides.lineTo(square.bottomRight());
        guides.moveTo(square.topRight());
        guides.lineTo(square.bottomLeft());
    }
    SvgPaint thin = linePaint(1);
    thin.dashParts = dashedLine;
    sheet.canvas.svg().addPath(sheet.place.map(guides), thin);
    QPainterPath frame;
    frame.addRect(square);
    sheet.canvas.svg().addPath(sheet.place.map(frame), linePaint(2));
}

void drawCharacter(const Sheet &sheet, const QRectF &square, const QString &letter, const QColor &color = Qt::black)
{
    // Characters fill the square of their size, which reaches so far below the line.
    constexpr double belowLine = 0.12;
    const double size = square.width() * 0.8;
    const QPointF middle = square.center() + QPointF(0, size * (0.5 - belowLine));
    sheet.canvas.addLetters(letter, size, middle, sheet.place, characterLook(color));
}

/*!
 * Squares in rows, as large as an area lets them be, and with room for pinyin above each row or without.
 */
struct Squares
{
    static constexpr double strip = 0.5; // for pinyin, of the side of a square
    static constexpr double gap = 0.08;

    //! count: at least one.
    Squares(const QRectF &area, int count, bool hasPinyin = false)
        : height(hasPinyin ? 1 + strip + gap : 1)
    {
        for (int inRow = 1; inRow <= count; ++inRow) {
            const int needed = (count + inRow - 1) / inRow;
            const double fitting = qMin(area.width() / inRow, area.height() / (needed * height));
            if (fitting > side) {
                side = fitting;
                columns = inRow;
                rows = needed;
            }
        }
        corner = area.center() - QPointF(columns * side, rows * side * height) / 2;
    }

    QRectF at(int i) const
    {
        return {corner.x() + (i % columns) * side, corner.y() + (int(i / columns) + 1) * side * height - side, side,
                side};
    }
    QRectF pinyinOf(int row) const
    {
        return {corner.x(), corner.y() + row * side * height, columns * side, side * strip};
    }
    QRectF pinyinAt(int i) const
    {
        return {corner.x() + (i % columns) * side, corner.y() + int(i / columns) * side * height, side, side * strip};
    }

    double height; // of a row, of the side of a square
    double side = 0;
    int columns = 1;
    int rows = 1;
    QPointF corner;
};

void drawCharacters(const Sheet &sheet, const QString &text, Grid grid)
{
    const QStringList letters = lettersOf(text);
    const Squares squares(sheet.area, qMax(1, letters.size()));
    for (int i = 0; i < qMax(1, letters.size()); ++i) {
        drawSquare(sheet, squares.at(i), grid);
        drawCharacter(sheet, squares.at(i), letters.value(i));
    }
}

// The four lines between which letters are written: small ones between the two in the middle.
void drawFourLines(const Sheet &sheet, const QRectF &frame)
{
    QPainterPath lines;
    for (int i = 0; i < 4; ++i) {
        const double y = frame.top() + frame.height() * i / 3;
        lines.moveTo(frame.left(), y);
        lines.lineTo(frame.right(), y);
    }
    sheet.canvas.svg().addPath(sheet.place.map(lines), linePaint(1.5));
}

// As large as the lines want it, smaller where it would be longer than they are.
double sizeBetweenLines(const QRectF &frame, const QString &text)
{
    const LetterLine line(text);
    const double size = frame.height() / 3 / line.xHeight();
    return line.width() * size > frame.width() * usedWidth ? frame.width() * usedWidth / line.width() : size;
}

// Letters on the third of the four lines.
void drawBetweenLines(const Sheet &sheet, const QRectF &frame, const QString &text, double size, double middle,
                      const QColor &color = Qt::black)
{
    TextLook look;
    look.color = color;
    sheet.canvas.addLetters(text, size, {middle, frame.bottom() - frame.height() / 3}, sheet.place, look);
}

void drawBetweenLines(const Sheet &sheet, const QRectF &frame, const QString &text, const QColor &color = Qt::black)
{
    drawBetweenLines(sheet, frame, text, sizeBetweenLines(frame, text), frame.center().x(), color);
}

// Words in as many rows as let them be largest.
QStringList rowsOf(const QString &text, const QSizeF &area)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    constexpr int mostRows = 20;
    QStringList best;
    double largest = 0;
    for (int count = 1; count <= qMin(words.size(), mostRows); ++count) {
        QStringList rows;
        double longest = 0;
        const int inRow = (words.size() + count - 1) / count;
        for (int i = 0; i < words.size(); i += inRow) {
            rows.append(QStringList(words.mid(i, inRow)).join(QLatin1Char(' ')));
            longest = qMax(longest, LetterLine(rows.constLast()).width());
        }
        const double size = qMin(area.height() / rows.size() / 2, area.width() / qMax(longest, 1e-3));
        if (size > largest) {
            largest = size;
            best = rows;
        }
    }
    return best;
}

void drawRows(const Sheet &sheet, const QString &text)
{
    constexpr double gap = 0.2; // between rows, of their height
    const QStringList rows = rowsOf(text, sheet.area.size());
    const int count = qMax(1, rows.size());
    const double height = qMin(sheet.area.height() / (count + gap * (count - 1)), sheet.area.width() / 2);
    QRectF frame(0, 0, sheet.area.width(), height);
    frame.moveTopLeft({sheet.area.left(), sheet.area.center().y() - height * (count + gap * (count - 1)) / 2});
    double size = sizeBetweenLines(frame, QString());
    for (const QString &row : rows) {
        size = qMin(size, sizeBetweenLines(frame, row));
    }
    for (int i = 0; i < count; ++i) {
        drawFourLines(sheet, frame);
        drawBetweenLines(sheet, frame, rows.value(i), size, frame.center().x());
        frame.translate(0, height * (1 + gap));
    }
}

// A character on its background, which is a picture or a square with a cross, and its pinyin.
void drawCharacterCard(const Sheet &sheet, const ItemView &item)
{
    const QString pinyin = wordsOf(item.text(QLatin1String("current_pinyin")));
    const QStringList letters = lettersOf(wordsOf(item.text(QLatin1String("current_text"))));
    const int count = qMax(1, letters.size());
    const Squares squares(sheet.area, count, !pinyin.isEmpty());
    if (!pinyin.isEmpty()) {
        drawFourLines(sheet, squares.pinyinOf(0));
        drawBetweenLines(sheet, squares.pinyinOf(0), pinyin);
    }
    const QString picture = item.text(ItemKeys::document).section(QLatin1Char(','), 0, 0);
    for (int i = 0; i < count; ++i) {
        if (!sheet.canvas.addPicture(picture, squares.at(i), sheet.place)) {
            drawSquare(sheet, squares.at(i), Grid::Field);
        }
        drawCharacter(sheet, squares.at(i), letters.value(i));
    }
}

// Characters with their pinyin above: each its own, or all together where there are more or fewer syllables.
void drawPinyinCard(const Sheet &sheet, const ItemView &item)
{
    const auto either = [&item](const char *first, const char *second) {
        const QString text = wordsOf(item.text(QLatin1String(first)));
        return text.isEmpty() ? wordsOf(item.text(QLatin1String(second))) : text;
    };
    const QStringList letters = lettersOf(either("ChineseWord", "ArtObj_Hanzi"));
    const QString pinyin = wordsOf(item.text(QLatin1String("ArtObj_Pinyin")));
    const QStringList syllables = pinyin.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QColor letterColor = firstColor(item, {"ArtObj_HZcolor"}, Qt::black);
    const QColor pinyinColor = firstColor(item, {"ArtObj_Color"}, Qt::black);
    const int count = qMax(1, letters.size());
    const Squares squares(sheet.area, count, true);
    for (int row = 0; row < squares.rows; ++row) {
        drawFourLines(sheet, squares.pinyinOf(row));
    }
    if (syllables.size() != letters.size()) {
        drawBetweenLines(sheet, squares.pinyinOf(0), pinyin, pinyinColor);
    }
    for (int i = 0; i < count; ++i) {
        if (item.flag(QLatin1String("DispGrid"), true)) {
            drawSquare(sheet, squares.at(i), Grid::Field);
        }
        if (item.flag(QLatin1String("ArtObj_DispHanzi"), true)) {
            drawCharacter(sheet, squares.at(i), letters.value(i), letterColor);
        }
        if (syllables.size() == letters.size()) {
            drawBetweenLines(sheet, squares.pinyinAt(i), syllables.value(i), pinyinColor);
        }
    }
}

void drawWordLattice(const Sheet &sheet, const ItemView &item)
{
    drawCharacters(sheet, wordsOf(item.text(ItemKeys::text)), Grid::Field);
}

// The item doesn't hold in which order the strokes are written.
void drawStrokeCharacter(const Sheet &sheet, const ItemView &item)
{
    const QString word = wordsOf(item.text(QLatin1String("ChineseWord")));
    drawCharacters(sheet, word.isEmpty() ? wordsOf(item.text(QLatin1String("ArtObj_HZ"))) : word, Grid::Rice);
}

void drawPhonetic(const Sheet &sheet, const ItemView &item)
{
    if (const auto color = item.color(QLatin1String("Fill_Color"))) {
        SvgPaint paint;
        paint.line = Qt::transparent;
        paint.fill = *color;
        paint.fill.setAlphaF(color->alphaF() * qBound(0.0, item.number(ItemKeys::opacity, 255) / 255, 1.0));
        QPainterPath paper;
        paper.addRect(sheet.area);
        sheet.canvas.svg().addPath(sheet.place.map(paper), paint);
    }
    drawRows(sheet, wordsOf(item.text(QLatin1String("TextPhonetic"))));
}

void drawAlphabet(const Sheet &sheet, const ItemView &item)
{
    drawRows(sheet, wordsOf(item.text(QLatin1String("original_alphabet"))));
}

// A word, at the left where it says so, unless it is hidden. Its transcription isn't held.
void drawEnglishWord(const Sheet &sheet, const ItemView &item)
{
    const double height = qMin(sheet.area.height(), sheet.area.width() / 2);
    QRectF frame(0, 0, sheet.area.width(), height);
    frame.moveCenter(sheet.area.center());
    drawFourLines(sheet, frame);
    if (!item.flag(QLatin1String("WordHide"))) {
        QString word = wordsOf(item.text(QLatin1String("EnglishWord")));
        word = word.isEmpty() ? wordsOf(item.text(QLatin1String("ArtObj_English"))) : word;
        const double size = sizeBetweenLines(frame, word);
        const bool isAtLeft = item.flag(QLatin1String("WordAtLeft"));
        const double middle = isAtLeft
            ? frame.center().x() + (LetterLine(word).width() * size - frame.width() * usedWidth) / 2
            : frame.center().x();
        drawBetweenLines(sheet, frame, word, size, middle);
    }
}

// Letters that fill the item's box, in rows as the text has lines and in the colours of its letters.
void drawWordArt(const Sheet &sheet, const ItemView &item)
{
    constexpr double used = 0.94; // of a row, since other viewers have other fonts
    const QString html = item.text(ItemKeys::html);
    const IwbTextInfoList runs =
        (html.isEmpty() ? textRunsFromPlainText(item.text(ItemKeys::text)) : textRunsFromHtml(html)).runs;
    TextLook look = characterLook(firstColor(item, {"Color", "ArtObj_Color"}, QColor(runs.constFirst().fill)));
    look.family = runs.constFirst().fontFamily.section(QLatin1Char(','), 0, 0);
    look.isBold = runs.constFirst().fontWeight == QLatin1String("bold");
    QString text;
    for (const IwbTextInfo &run : runs) {
        text += run.text;
    }
    QStringList rows;
    for (const QString &row :
         text.left(mostSquares).replace(QChar::LineSeparator, QLatin1Char('\n')).split(QLatin1Char('\n'))) {
        if (!row.simplified().isEmpty()) {
            rows.append(row.simplified());
        }
    }
    const double height = sheet.area.height() / qMax(1, rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        const QRectF ink = LetterLine(rows.at(i), look).ink();
        if (ink.isEmpty()) {
            continue;
        }
        const double size = height * used / ink.height();
        const double stretched = sheet.area.width() * used / (ink.width() * size);
        const QTransform toRow = QTransform::fromScale(stretched, 1)
            * QTransform::fromTranslate(0, sheet.area.top() + (i + 0.5) * height - ink.center().y() * size);
        sheet.canvas.addLetters(rows.at(i), size, {}, toRow * sheet.place, look);
    }
}

// Of word art that doesn't tell its words, nothing is known.
bool tellsNothing(const ItemView &item)
{
    return item.type() == wordArt && wordsOf(item.text(ItemKeys::html)).isEmpty()
        && wordsOf(item.text(ItemKeys::text)).isEmpty();
}

using SheetDrawing = void (*)(const Sheet &sheet, const ItemView &item);

const QHash<QString, SheetDrawing> &sheetDrawings()
{
    static const QHash<QString, SheetDrawing> drawings{
        {QStringLiteral("ZQChineseCharacterItem"), &drawCharacterCard},
        {QStringLiteral("ZQWordLatticeItem"), &drawWordLattice},
        {QStringLiteral("ZQChinesePhoneticItem"), &drawPhonetic},
        {QStringLiteral("ZQChineseAlphabetItem"), &drawAlphabet},
        {QStringLiteral("ZQLiteraturePinyin"), &drawPinyinCard},
        {QStringLiteral("ZQLiteratureHanzibihua"), &drawStrokeCharacter},
        {QStringLiteral("ZQLiteratureYinbiao"), &drawEnglishWord},
        {wordArt, &drawWordArt},
    };
    return drawings;
}

bool drawLanguage(Canvas &canvas, const ItemView &item)
{
    const PlacedBox box(item);
    if (box.isEmpty() || tellsNothing(item)) {
        return false;
    }
    const QRectF area(-box.width / 2, -box.height / 2, box.width, box.height);
    sheetDrawings().value(item.type())({canvas, box.inPixels(), area}, item);
    return true;
}

} // namespace

SvgDrawing languageDrawing(const QString &type)
{
    return sheetDrawings().contains(type) ? &drawLanguage : nullptr;
}

} // namespace lessonhost
