// SPDX-License-Identifier: MIT
#include "drawings/gamedrawing.h"

#include "canvas/outline.h"
#include "drawings/chips.h"
#include "drawings/gridcells.h"
#include "lesson/activitypictures.h"
#include "svg/svgstyle.h"

#include <QJsonArray>

namespace lessonhost {

namespace {

constexpr double gameGap = 16; // pixels between cells
constexpr double largestGameLetters = 36;
constexpr int mostThings = 200;
const CellForm rowForm{9, {1400, 140}};

QString textOf(const QJsonObject &object, const char *key)
{
    return valueText(object.value(QLatin1String(key)));
}

/*!
 * A game as its slide holds it.
 */
struct Game
{
    explicit Game(const QJsonObject &slide)
    {
        const QJsonObject activity = withPackagedPictures(slide).value(QLatin1String("activity")).toObject();
        type = textOf(activity, "type");
        title = textOf(activity, "title");
        templet = activity.value(QLatin1String("templet")).toObject();
        for (const char *list : {"matchs", "unmatchs"}) {
            const QJsonArray entries = activity.value(QLatin1String(list)).toArray();
            for (int i = 0; i < entries.size() && i < mostThings; ++i) {
                matches.append(entries.at(i));
            }
        }
    }

    QString type;
    QString title;
    QJsonObject templet;
    QVector<QJsonValue> matches;
};

// How the text of a container or a material looks.
ChipLook lookOf(const Game &game, const char *figure, double letters)
{
    const QJsonObject values = game.templet.value(QLatin1String(figure)).toObject();
    ChipLook look = cardLook(letters);
    const QString family = textOf(values, "font_family");
    if (!family.isEmpty()) {
        look.text.family = family;
    }
    const double size = itemNumber(values.value(QLatin1String("font_size")));
    if (size > 0) {
        look.text.pixels = size;
    }
    look.text.color = itemColor(values.value(QLatin1String("font_color"))).value_or(look.text.color);
    takeAlignment(look.text, textOf(values, "font_align"));
    return look;
}

// A container or a material: its picture, if the lesson has it, under its text.
void addFigure(Canvas &canvas, const Game &game, const char *figure, const QRectF &cell, const QString &text,
               ChipLook look)
{
    const QString picture = textOf(game.templet.value(QLatin1String(figure)).toObject(), "path");
    if (canvas.holds(picture) && canvas.addPicture(picture, cell)) {
        look.face = look.edge = Qt::transparent;
    }
    addChip(canvas, cell, text, look);
}

double gameLetters(const QRectF &cell)
{
    return qMin(largestGameLetters, cell.height() * 0.45);
}

// To be marked as right or wrong.
void addMarks(PlainSvg &svg, const QRectF &cell)
{
    SvgPaint paint;
    paint.line = QColor(0x7d, 0x95, 0xad);
    paint.fill = Qt::transparent;
    paint.lineWidth = 3;
    const double side = cell.height() * 0.5;
    QRectF mark(cell.right() - 2.8 * side, cell.center().y() - side / 2, side, side);
    svg.addPath(outlineIn(mark, "M 0 .55 L .35 .9 L 1 .1"), paint);
    mark.translate(1.5 * side, 0);
    svg.addPath(outlineIn(mark, "M .05 .05 L .95 .95 M .95 .05 L .05 .95"), paint);
}

void drawQuestions(Canvas &canvas, const Game &game, const QRectF &area)
{
    const QVector<QRectF> cells = gridCells(area, game.matches.size(), rowForm, gameGap);
    for (int i = 0; i < cells.size(); ++i) {
        addFrame(canvas.svg(), cells.at(i), cardLook(0));
        addMarks(canvas.svg(), cells.at(i));
        ChipLook look = lookOf(game, "container", gameLetters(cells.at(i)));
        look.face = look.edge = Qt::transparent;
        addChip(canvas, cells.at(i).adjusted(0, 0, -1.6 * cells.at(i).height(), 0),
                textOf(game.matches.at(i).toObject(), "question"), look);
    }
}

// Terms, and an empty place for each sign between them.
void drawComparisons(Canvas &canvas, const Game &game, const QRectF &area)
{
    const QVector<QRectF> rows = gridCells(area, game.matches.size(), rowForm, gameGap);
    for (int i = 0; i < rows.size(); ++i) {
        const QJsonArray parts = game.matches.at(i).toArray();
        const QVector<QRectF> cells = gridCells(rows.at(i), qMin(parts.size(), mostThings), {2, {280, 140}}, gameGap);
        for (int j = 0; j < cells.size(); ++j) {
            const QString term = textOf(parts.at(j).toObject(), "condition");
            ChipLook look = lookOf(game, "container", gameLetters(cells.at(j)));
            look.isDashed = term.isEmpty();
            addChip(canvas, cells.at(j), term, look);
        }
    }
}

void drawTexts(Canvas &canvas, const Game &game, const QRectF &area)
{
    const QVector<QRectF> cells = gridCells(area, game.matches.size(), rowForm, gameGap);
    for (int i = 0; i < cells.size(); ++i) {
        addFigure(canvas, game, "container", cells.at(i), valueText(game.matches.at(i)),
                  lookOf(game, "container", gameLetters(cells.at(i))));
    }
}

// Baskets above, what goes into them below.
void drawBaskets(Canvas &canvas, const Game &game, const QRectF &area)
{
    QStringList baskets;
    QStringList things;
    for (const QJsonValue &match : game.matches) {
        const QString basket = textOf(match.toObject().value(QLatin1String("container")).toObject(), "txt");
        if (!basket.isEmpty()) {
            baskets.append(basket);
        }
        const QJsonArray materials = match.toObject().value(QLatin1String("materials")).toArray();
        for (const QJsonValue &material : materials) {
            const QString thing = textOf(material.toObject(), "txt");
            if (!thing.isEmpty() && things.size() < mostThings) {
                things.append(thing);
            }
        }
    }
    QRectF upper = area;
    QRectF lower = area;
    if (!baskets.isEmpty() && !things.isEmpty()) {
        upper.setHeight((area.height() - 2 * gameGap) / 2);
        lower.setTop(upper.bottom() + 2 * gameGap);
    }
    const QVector<QRectF> places = gridCells(upper, baskets.size(), {1.4, {600, 360}}, gameGap);
    for (int i = 0; i < places.size(); ++i) {
        ChipLook look = lookOf(game, "container", gameLetters(places.at(i)));
        look.isDashed = true;
        addFigure(canvas, game, "container", places.at(i), baskets.at(i), look);
    }
    const QVector<QRectF> cards = gridCells(lower, things.size(), {1.8, {280, 150}}, gameGap);
    for (int i = 0; i < cards.size(); ++i) {
        addFigure(canvas, game, "material", cards.at(i), things.at(i),
                  lookOf(game, "material", gameLetters(cards.at(i))));
    }
}

// The largest part of a page above, below or beside what is occupied.
QRectF freeArea(const QRectF &page, const QRectF &occupied)
{
    constexpr double margin = 40;
    QRectF largest = page;
    if (!occupied.isNull()) {
        largest = QRectF();
        for (QRectF part : {QRectF(page.topLeft(), QPointF(page.right(), occupied.top())),
                            QRectF(QPointF(page.left(), occupied.bottom()), page.bottomRight()),
                            QRectF(page.topLeft(), QPointF(occupied.left(), page.bottom())),
                            QRectF(QPointF(occupied.right(), page.top()), page.bottomRight())}) {
            part = part.isValid() ? part.intersected(page) : QRectF();
            if (part.width() * part.height() > largest.width() * largest.height()) {
                largest = part;
            }
        }
    }
    return largest.adjusted(margin, margin, -margin, -margin);
}

} // namespace

void drawGameBackground(Canvas &canvas, const QJsonObject &slide)
{
    const QString picture = textOf(Game(slide).templet, "background");
    if (canvas.holds(picture)) {
        canvas.addPicture(picture, QRectF(QPointF(), canvas.svg().size()));
    }
}

void drawGameRecord(Canvas &canvas, const QJsonObject &slide, const QRectF &occupied)
{
    constexpr double leastSide = 120;
    const Game game(slide);
    QRectF area = freeArea(QRectF(QPointF(), canvas.svg().size()), occupied);
    if (area.width() < leastSide || area.height() < leastSide) {
        return;
    }
    if (!game.title.isEmpty()) {
        constexpr double highest = 90;
        QRectF head = area;
        head.setHeight(qMin(highest, area.height() / 5));
        ChipLook look = cardLook(head.height() * 0.5);
        look.face = look.edge = QColor(255, 255, 255, canvas.holds(textOf(game.templet, "background")) ? 220 : 0);
        look.text.isBold = true;
        addChip(canvas, head, game.title, look);
        area.setTop(head.bottom() + gameGap);
    }
    if (game.matches.isEmpty()) {
        return;
    }
    if (game.type == QLatin1String("Judgment")) {
        drawQuestions(canvas, game, area);
    } else if (game.type.contains(QLatin1String("Comparison"))) {
        drawComparisons(canvas, game, area);
    } else if (game.type.contains(QLatin1String("Pronunciation"))) {
        drawTexts(canvas, game, area);
    } else {
        drawBaskets(canvas, game, area);
    }
}

} // namespace lessonhost
