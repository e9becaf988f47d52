#ifndef GRAPHDRAWING_H
#define GRAPHDRAWING_H

#include "svg/svgstyle.h"

#include <QPainterPath>
#include <QRectF>
#include <QTransform>
#include <QVector>

#include <optional>

namespace lessonhost {

class ItemView;

/*!
 * What is to be seen of a basic graph or a figure: a shape in its box, a segment, an arrow or a free drawing.
 */
struct GraphDrawing
{
    struct Part
    {
        QPainterPath path; //!< on the page, so that no stretching reaches the width of its line
        SvgPaint paint;
    };
    QVector<Part> parts;
    QRectF textArea; //!< where the shape has room for a text, under placed
    QTransform placed;
};

//! True for the types that graphDrawing() knows.
bool isGraph(const QString &type);

//! Nothing for an item that doesn't tell where its lines are.
std::optional<GraphDrawing> graphDrawing(const ItemView &item);

} // namespace lessonhost

#endif // GRAPHDRAWING_H
