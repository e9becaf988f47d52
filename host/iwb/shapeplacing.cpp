// SPDX-License-Identifier: MIT
#include "iwb/shapeplacing.h"

#include "lesson/planegeometry.h"

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String identityText("1,0,0,1,0,0");

// A coordinate in the place that its part of the own range has in the target's. Points that have no extent of their own
// stay together, in the middle.
double fittedCoordinate(double value, double own, double ownSize, double target, double targetSize)
{
    if (ownSize < 1e-9) {
        return target + targetSize / 2 + (value - own - ownSize / 2);
    }
    // Told from the edge, such that what fits already stays what it is.
    const double scale = qAbs(targetSize - ownSize) < 1e-7 ? 1 : targetSize / ownSize;
    return target + (value - own) * scale;
}

// Stretches points to fill a box and turns them about its centre.
QPolygonF fitted(const QPolygonF &points, const ItemPlace &place)
{
    const QRectF own = extentOf(points);
    const QRectF &box = place.box;
    QPolygonF filled = points;
    for (QPointF &point : filled) {
        point = {fittedCoordinate(point.x(), own.left(), own.width(), box.left(), box.width()),
                 fittedCoordinate(point.y(), own.top(), own.height(), box.top(), box.height())};
    }
    return place.angle == 0 ? filled : turnAbout(place.box.center(), place.angle).map(filled);
}

// A polyline of three points would come back as an angle, one of a single point shows nothing.
QPolygonF padded(QPolygonF points)
{
    if (points.size() == 3 || points.size() == 1) {
        points.append(points.last());
    }
    return points;
}

class ShapePlacer
{
public:
    ShapePlacer(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines)
        : m_item(withImplied(item.json(), form))
        , m_form(form)
        , m_outlines(outlines)
    {
        m_result.form = &form;
        copy(ItemKeys::corners);
        copy(ItemKeys::arrows);
    }

    PlacedShape place()
    {
        const auto matrix = m_item.matrix();
        switch (m_form.outline) {
        case ShapeForm::Circle:
        case ShapeForm::Ellipse:
            matrix ? ellipseUnder(*matrix) : ellipseInBox();
            break;
        case ShapeForm::Rectangle:
            matrix ? rectangleUnder(*matrix) : rectangleInBox();
            break;
        default:
            matrix ? pointsUnder(*matrix) : pointsInBox();
            break;
        }
        m_result.geometry.insert(ItemKeys::type, QLatin1String(m_result.form->type));
        return m_result;
    }

private:
    void copy(QLatin1String key)
    {
        if (m_item.has(key)) {
            set(key, m_item.text(key));
        }
    }

    void set(QLatin1String key, const QString &text) { m_result.geometry.insert(key, text); }

    ItemPlace target(const QRectF &own) const { return {m_item.box().value_or(own), m_item.angle()}; }

    void pointsUnder(const QTransform &matrix)
    {
        if (m_form.outline == ShapeForm::Derived && m_item.has(ItemKeys::control)) {
            // Under a matrix of its own a parallelogram would lie flat whichever way it is turned.
            m_result.form = shapeForm(QStringLiteral("ZQMath2DQuadrangle"));
            set(ItemKeys::matrix, identityText);
            set(ItemKeys::control, pointsText(matrix.map(m_outlines(m_item.json()))));
            return;
        }
        set(ItemKeys::matrix, transformText(matrix));
        if (m_form.outline == ShapeForm::Polyline) {
            set(ItemKeys::polyline, pointsText(padded(shapePoints(m_item, m_form, m_outlines))) + QLatin1Char(','));
        } else {
            set(ItemKeys::control, pointsText(m_item.points(ItemKeys::control)));
        }
    }

    void pointsInBox()
    {
        QPolygonF points = shapePoints(m_item, m_form, m_outlines);
        if (points.isEmpty()) {
            return;
        }
        const auto origin = m_form.outline == ShapeForm::Angle ? m_item.createdAt() : std::nullopt;
        if (origin) {
            points.last() = *origin;
        } else {
            points = fitted(points, target(extentOf(points)));
        }
        m_result.box = extentOf(points);
        set(ItemKeys::matrix, identityText);
        switch (m_form.outline) {
        case ShapeForm::Polyline:
            set(ItemKeys::polyline, pointsText(padded(points)) + QLatin1Char(','));
            break;
        case ShapeForm::Angle:
            angle(points);
            break;
        case ShapeForm::Derived:
            m_result.form = shapeForm(QStringLiteral("ZQMath2DQuadrangle"));
            Q_FALLTHROUGH();
        default:
            set(ItemKeys::control, pointsText(points));
            break;
        }
    }

    // The origin is a matrix's, in single precision; the other points are told from where it really is.
    void angle(const QPolygonF &points)
    {
        if (points.size() < 3) {
            return;
        }
        const auto single = [](double value) { return qAbs(value) < 1e-9 ? 0 : double(float(value)); };
        const QPointF origin(single(points.at(2).x()), single(points.at(2).y()));
        set(ItemKeys::matrix,
            QLatin1String("1,0,0,1,") + QString::number(origin.x(), 'g', 17) + QLatin1Char(',')
                + QString::number(origin.y(), 'g', 17));
        set(ItemKeys::control, pointsText(QPolygonF() << points.at(0) - origin << points.at(1) - origin));
    }

    void ellipseUnder(const QTransform &matrix)
    {
        set(ItemKeys::matrix, transformText(matrix));
        const QPolygonF rim = m_item.points(ItemKeys::control);
        if (!rim.isEmpty()) {
            set(ItemKeys::control, pointsText(rim));
        }
        if (m_form.outline == ShapeForm::Ellipse) {
            m_result.angle = std::atan2(matrix.m12(), matrix.m11());
        }
    }

    void ellipseInBox()
    {
        const QPointF origin = m_item.createdAt().value_or(QPointF());
        const QSizeF radii = ownRadii(m_item, m_form.outline, origin);
        const QPointF corner(radii.width(), radii.height());
        const ItemPlace place = target(QRectF(origin - corner, origin + corner));
        const double rx = place.box.width() / 2;
        const double ry = place.box.height() / 2;
        const bool isCircle = m_form.outline == ShapeForm::Circle && qAbs(rx - ry) <= 0.5;
        if (isCircle) {
            set(ItemKeys::control, exactText((rx + ry) / 2) + QLatin1String(",0"));
        } else {
            m_result.form = shapeForm(QStringLiteral("ZQMath2DEllipse"));
            set(ItemKeys::control, exactText(rx) + QLatin1String(",0,0,") + exactText(ry));
            m_result.angle = place.angle;
        }
        set(ItemKeys::matrix,
            QLatin1String("1,0,0,1,") + exactText(place.box.center().x()) + QLatin1Char(',')
                + exactText(place.box.center().y()));
        m_result.box = place.box;
    }

    void rectangle(const ItemPlace &place)
    {
        m_result.box = place.box;
        m_result.angle = place.angle;
        set(ItemKeys::matrix, identityText);
        set(ItemKeys::box, boxText(place.box));
        set(ItemKeys::control, pointsText(QPolygonF() << place.box.topRight() << place.box.bottomLeft()));
    }

    void rectangleInBox() { rectangle(target(extentOf(m_item.points(ItemKeys::control)))); }

    void rectangleUnder(const QTransform &matrix)
    {
        const QRectF own = shapeExtent(m_item, m_form, m_outlines);
        if (scaleAndTurn(matrix)) {
            rectangle(placeUnder(matrix, own));
            return;
        }
        // A slanted rectangle is a quadrangle.
        m_result.form = shapeForm(QStringLiteral("ZQMath2DQuadrangle"));
        set(ItemKeys::matrix, identityText);
        set(ItemKeys::control, pointsText(withoutRepeatedEnd(matrix.map(QPolygonF(own)))));
    }

    const ItemView m_item;
    const ShapeForm &m_form;
    const OutlineSource &m_outlines;
    PlacedShape m_result;
};

} // namespace

PlacedShape placeShape(const ItemView &item, const ShapeForm &form, const OutlineSource &outlines)
{
    return ShapePlacer(item, form, outlines).place();
}

QPolygonF placeLine(const QPolygonF &points)
{
    const QPolygonF own = exactPoints(points);
    if (own.isEmpty()) {
        return own;
    }
    const QPolygonF line = fitted(own, {extentOf(own), 0});
    const auto isMoved = [](const QPointF &from, const QPointF &to) { return from.x() != to.x() || from.y() != to.y(); };
    QPolygonF read = own; // whose digits are told as they are
    for (int i = 0; i < line.size(); ++i) {
        if (isMoved(own.at(i), line.at(i))) {
            read[i] = exactPoints(QPolygonF() << line.at(i)).first();
        }
    }
    return padded(read);
}

} // namespace lessonhost
