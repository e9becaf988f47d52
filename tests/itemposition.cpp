// SPDX-License-Identifier: MIT
#include "itemposition.h"

#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "losses/modelvalues.h"
#include "valuerest.h"

#include <QLineF>
#include <QStringList>

#include <algorithm>

using namespace lessonhost;

std::optional<QPolygonF> pairsOf(const QJsonValue &value)
{
    const auto numbers = wholeNumbers(value);
    return numbers && !numbers->isEmpty() && numbers->size() % 2 == 0 ? std::optional(pointsOf(*numbers))
                                                                      : std::nullopt;
}

bool hasWorkedOutCorners(const QString &type)
{
    return type.contains("Normal") || type.contains("Parallel") || type == "ZQMath2DAngle";
}

bool hasOwnPoints(const QString &type)
{
    static const QStringList inBoxes{"ZQMath2DCircle", "ZQMath2DEllipse", "ZQMath2DRectangle"};
    return type.startsWith("ZQMath2D") && !inBoxes.contains(type) && !hasWorkedOutCorners(type);
}

bool hasMatrix(const QJsonObject &item)
{
    return !isNothing(item.value("Matrix"));
}

std::optional<QTransform> matrixOf(const QJsonObject &item)
{
    const auto n = wholeNumbers(hasMatrix(item) ? item.value("Matrix") : QJsonValue("1,0,0,1,0,0"));
    return n && n->size() == 6 ? std::optional<QTransform>({n->at(0), n->at(1), n->at(2), n->at(3), n->at(4), n->at(5)})
                               : std::nullopt;
}

bool hasSteps(const QString &type)
{
    return (type.contains("Stroke") && !isContainer(type)) || type == "stroke";
}

namespace {

QPolygonF stretched(QPolygonF points, const QRectF &frame)
{
    const QRectF own = points.boundingRect();
    for (QPointF &point : points) {
        const double x = own.width() > 0 ? (point.x() - own.left()) / own.width() : 0.5;
        const double y = own.height() > 0 ? (point.y() - own.top()) / own.height() : 0.5;
        point = QPointF(frame.left() + x * frame.width(), frame.top() + y * frame.height());
    }
    return points;
}

QPolygonF turned(const QPolygonF &points, const QPointF &center, double angle)
{
    QTransform turn = QTransform::fromTranslate(center.x(), center.y());
    turn.rotateRadians(angle);
    turn.translate(-center.x(), -center.y());
    return turn.map(points);
}

// Where an item stands on the page: its points, stretched into its box and turned, or its corners. Nothing where one of
// its values isn't what it should be. Points that are there twice in a row draw nothing.
std::optional<QPolygonF> drawing(const QJsonObject &item, bool isFlipped = false)
{
    const QString type = item.value("Type").toString();
    const auto matrix = matrixOf(item);
    const auto angle = isNothing(item.value("Angle")) || hasMatrix(item) ? 0 : numberOf(item.value("Angle"));
    const auto line = pairsOf(item.value("XY"));
    const QString boxKey = isNothing(item.value("BoundingBox")) ? "IgnoredBoundingBox" : "BoundingBox";
    const auto box = wholeNumbers(item.value(boxKey));
    if (!matrix || !angle) {
        return std::nullopt;
    }
    std::optional<QRectF> frame;
    if (box && box->size() == 4) {
        frame = QRectF(QPointF(box->at(0), box->at(1)), QPointF(box->at(2), box->at(3))).normalized();
    }
    QPolygonF points;
    QPointF center;
    if (line && hasSteps(type)) {
        points = *line;
        for (int i = 1; i < points.size(); ++i) {
            points[i] += points.at(i - 1);
        }
        center = frame ? frame->center() : points.boundingRect().center();
    } else if (frame) {
        points = QPolygonF({frame->topLeft(), frame->topRight(), frame->bottomRight(), frame->bottomLeft()});
        center = frame->center();
        if (hasOwnPoints(type)) {
            const auto own = pairsOf(item.value(type == "ZQMath2DPolyline" ? "XYValue" : "Control"));
            if (!own || (type.contains("Segment") && own->size() != 2)) {
                return std::nullopt;
            }
            // A matrix is around an origin of the points' own.
            points = hasMatrix(item) ? *own : stretched(*own, *frame);
        }
    } else {
        return std::nullopt;
    }
    if (isFlipped && !hasMatrix(item)) {
        QTransform flips = QTransform::fromTranslate(center.x(), center.y());
        flips.scale(itemFlag(item.value("HorizonFlip"), false) ? -1 : 1,
                    itemFlag(item.value("VerticalFlip"), false) ? -1 : 1);
        points = flips.translate(-center.x(), -center.y()).map(points);
    }
    points = hasMatrix(item) ? matrix->map(points) : turned(points, center, *angle); // a matrix has its own turn
    const auto isNear = [](const QPointF &one, const QPointF &other) { return QLineF(one, other).length() < 1e-4; };
    points.erase(std::unique(points.begin(), points.end(), isNear), points.end());
    return points;
}

} // namespace

bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, bool isFlipped)
{
    auto one = drawing(given, isFlipped);
    const auto other = drawing(found);
    const bool isInk = pairsOf(given.value("XY")) && hasSteps(given.value("Type").toString());
    if (!isInk && one && other && other->size() == one->size() + 1 && other->size() > 2) {
        one->append(one->first());
    }
    if (!one || !other) {
        return false;
    }
    auto at = other->begin();
    for (const QPointF &point : *one) {
        const auto isThere = [&point](const QPointF &there) { return QLineF(point, there).length() < 0.01; };
        at = isInk ? std::find_if(at, other->end(), isThere) : at;
        // Points so near that they were rounded into one.
        if (at != other->begin() && isThere(*(at - 1)) && (at == other->end() || !isThere(*at))) {
            continue;
        }
        if (at == other->end() || !isThere(*at)) {
            return false;
        }
        ++at;
    }
    return at == other->end();
}
