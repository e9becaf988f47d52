// SPDX-License-Identifier: MIT
#include "drawings/exercisedrawing.h"

#include "drawings/chips.h"
#include "drawings/gridcells.h"
#include "drawings/itemoutline.h"
#include "lesson/listentries.h"
#include "svg/svgstyle.h"

#include <algorithm>

namespace lessonhost {

namespace {

constexpr double cardGap = 10; // pixels between cells
constexpr double largestCardLetters = 30;

double cardLetters(const QRectF &cell)
{
    return qMin(largestCardLetters, cell.height() * 0.45);
}

// The front of each card.
void drawCards(Canvas &canvas, const QVector<ListEntry> &cards, const QRectF &area)
{
    const QVector<QRectF> cells = gridCells(area, cards.size(), {1.5, {330, 220}}, cardGap);
    for (int i = 0; i < cells.size(); ++i) {
        addChip(canvas, cells.at(i), cards.at(i).texts().value(0), cardLook(cardLetters(cells.at(i))));
    }
}

// A basket for each kind, with what is sorted into it below its name.
void drawBaskets(Canvas &canvas, const QVector<ListEntry> &kinds, const QRectF &area)
{
    const QVector<QRectF> cells = gridCells(area, kinds.size(), {0.9}, cardGap);
    ChipLook basket = cardLook(0);
    basket.face = QColor(0xe6, 0xf0, 0xe4);
    basket.edge = QColor(0x6f, 0x9a, 0x6a);
    ChipLook name = cardLook(0);
    name.face = name.edge = Qt::transparent;
    name.text.isBold = true;
    for (int i = 0; i < cells.size(); ++i) {
        const QRectF &cell = cells.at(i);
        const ListEntry &kind = kinds.at(i);
        addFrame(canvas.svg(), cell, basket);
        const bool isEmpty = kind.entries.isEmpty();
        QRectF head = cell;
        head.setHeight(isEmpty ? cell.height() : cell.height() * 0.24);
        name.text.pixels = cardLetters(head);
        addChip(canvas, head, kind.text, name);
        const QRectF room = cell.adjusted(cardGap, head.height(), -cardGap, -cardGap);
        const QVector<QRectF> things = gridCells(room, kind.entries.size(), {2, {240, 110}}, cardGap);
        for (int j = 0; j < things.size(); ++j) {
            addChip(canvas, things.at(j), kind.entries.at(j).texts().value(0), cardLook(cardLetters(things.at(j))));
        }
    }
}

// Pairs are told one by one, or as one list of all to the left and one of all to the right.
QVector<std::pair<QString, QString>> pairsOf(const QVector<ListEntry> &entries)
{
    QVector<std::pair<QString, QString>> pairs;
    const QStringList left = entries.value(0).texts();
    const QStringList right = entries.value(1).texts();
    if (entries.size() == 2 && left.size() > 2 && left.size() == right.size()) {
        for (int i = 0; i < left.size(); ++i) {
            pairs.append({left.at(i), right.at(i)});
        }
        return pairs;
    }
    for (const ListEntry &entry : entries) {
        const QStringList texts = entry.texts();
        pairs.append({texts.value(0), texts.value(1)});
    }
    return pairs;
}

// Two columns, and a knob at everything that is to be connected.
void drawPairs(Canvas &canvas, const QVector<ListEntry> &entries, const QRectF &area)
{
    constexpr double radiusOfKnob = 5;
    const auto pairs = pairsOf(entries);
    QRectF column = area;
    column.setWidth(area.width() * 0.34);
    // One column of cells, whatever their number.
    const QVector<QRectF> cells = gridCells(column, pairs.size(), {1e6, {column.width(), 110}}, cardGap);
    SvgPaint knobs;
    knobs.fill = QColor(0x4d, 0x69, 0x80);
    knobs.line = Qt::transparent;
    for (int i = 0; i < cells.size(); ++i) {
        const double radius = qMin(radiusOfKnob, cells.at(i).height() / 4);
        QPainterPath knob;
        for (const bool isLeft : {true, false}) {
            const QString &text = isLeft ? pairs.at(i).first : pairs.at(i).second;
            if (text.isEmpty()) {
                continue;
            }
            const QRectF cell = cells.at(i).translated(isLeft ? 0 : area.width() - column.width(), 0);
            addChip(canvas, cell, text, cardLook(cardLetters(cell)));
            const double away = 2 * radius;
            knob.addEllipse(QPointF(isLeft ? cell.right() + away : cell.left() - away, cell.center().y()), radius,
                            radius);
        }
        canvas.svg().addPath(knob, knobs);
    }
}

struct Exercise
{
    const char *type;
    const char *list; //!< key
    void (*draw)(Canvas &canvas, const QVector<ListEntry> &entries, const QRectF &area);
};

constexpr Exercise exercises[] = {
    {"General:everCard", "CardList", &drawCards},
    {"General:fiaction", "FicationList", &drawBaskets},
    {"General:connection", "ConnectionList", &drawPairs},
};

const Exercise *exerciseOf(const QString &type)
{
    const auto *const found =
        std::find_if(std::begin(exercises), std::end(exercises),
                     [&type](const Exercise &exercise) { return type == QLatin1String(exercise.type); });
    return found == std::end(exercises) ? nullptr : found;
}

bool drawExercise(Canvas &canvas, const ItemView &item)
{
    const Exercise *const exercise = exerciseOf(item.type());
    const PlacedBox box(item);
    if (!exercise || box.isEmpty()) {
        return false;
    }
    const QVector<ListEntry> entries = listEntries(item.json().value(QLatin1String(exercise->list)));
    const QString title = item.text(QLatin1String("Title"));
    if (entries.isEmpty() && title.isEmpty()) {
        return false;
    }
    const PlainSvg::Scope scope(canvas.svg(),
                                QTransform::fromTranslate(-box.width / 2, -box.height / 2) * box.inPixels());
    QRectF area(0, 0, box.width, box.height);
    ChipLook board = cardLook(0);
    board.face = QColor(0xf4, 0xf7, 0xfa);
    addFrame(canvas.svg(), area, board);
    const double margin = qMin(cardGap, qMin(box.width, box.height) / 20);
    area.adjust(margin, margin, -margin, -margin);
    if (!title.isEmpty()) {
        constexpr double highest = 56;
        QRectF head = area;
        head.setHeight(entries.isEmpty() ? area.height() : qMin(highest, area.height() * 0.2));
        ChipLook look = cardLook(head.height() * 0.55);
        look.face = look.edge = Qt::transparent;
        look.text.isBold = true;
        addChip(canvas, head, title, look);
        area.setTop(head.bottom() + margin);
    }
    if (!entries.isEmpty()) {
        exercise->draw(canvas, entries, area);
    }
    return true;
}

} // namespace

SvgDrawing exerciseDrawing(const QString &type)
{
    return exerciseOf(type) ? &drawExercise : nullptr;
}

} // namespace lessonhost
