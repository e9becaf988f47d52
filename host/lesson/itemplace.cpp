#include "lesson/itemplace.h"

#include "lesson/itemvalues.h"

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String boxKey("BoundingBox");
const QLatin1String matrixKey("Matrix");

} // namespace

std::optional<QRectF> boxOf(const QJsonObject &item)
{
    const QVector<double> numbers = itemNumbers(item.value(boxKey));
    if (numbers.size() < 4) {
        return std::nullopt;
    }
    return QRectF(QPointF(numbers.at(0), numbers.at(1)), QPointF(numbers.at(2), numbers.at(3))).normalized();
}

std::optional<QTransform> matrixOf(const QJsonObject &item)
{
    return transformOfText(item.value(matrixKey).toString());
}

double angleOf(const QJsonObject &item)
{
    const double angle = item.value(QLatin1String("Angle")).toString().toDouble();
    return qIsFinite(angle) ? angle : 0;
}

ItemPlace placeUnder(const QTransform &matrix, const QRectF &box)
{
    if (matrix.type() <= QTransform::TxScale && matrix.m11() > 0 && matrix.m22() > 0) {
        return {matrix.mapRect(box), 0};
    }
    const QSizeF size(box.width() * std::hypot(matrix.m11(), matrix.m12()),
                      box.height() * std::hypot(matrix.m21(), matrix.m22()));
    const QPointF corner = matrix.map(box.center()) - QPointF(size.width(), size.height()) / 2;
    return {QRectF(corner, size), std::atan2(matrix.m12(), matrix.m11())};
}

std::optional<ItemPlace> itemPlace(const QJsonObject &item)
{
    const auto box = boxOf(item);
    if (!box) {
        return std::nullopt;
    }
    const auto matrix = matrixOf(item);
    return matrix ? placeUnder(*matrix, *box) : ItemPlace{*box, angleOf(item)};
}

double itemScale(const QJsonObject &item)
{
    const auto matrix = matrixOf(item);
    const double scale = matrix ? std::sqrt(qAbs(matrix->determinant())) : 1;
    return scale > 0 ? scale : 1;
}

} // namespace lessonhost
