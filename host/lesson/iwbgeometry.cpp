#include "lesson/iwbgeometry.h"

#include "izqtransformation.h"
#include "svg/svgvalues.h"

#include <QDomDocument>
#include <QDomElement>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String boxKey("BoundingBox");
const QLatin1String matrixKey("Matrix");
const QLatin1String controlKey("Control");
const QLatin1String pointsKey("XYValue");
const QLatin1String typeKey("Type");
const QLatin1String identityText("1,0,0,1,0,0");

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

QTransform turnAbout(const QPointF &center, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return QTransform::fromTranslate(-center.x(), -center.y()) * QTransform(c, s, -s, c, 0, 0)
        * QTransform::fromTranslate(center.x(), center.y());
}

// Scale along one axis; points that have no extent of their own stay together.
double fitScale(double own, double target)
{
    if (own < 1e-9 || qAbs(target - own) < 1e-7) {
        return 1;
    }
    return target / own;
}

// Stretches points to fill a box, with what has no extent in the middle, and turns them about its centre.
QPolygonF fitted(const QPolygonF &points, const ItemPlace &place)
{
    const QRectF own = extentOf(points);
    const double scaleX = fitScale(own.width(), place.box.width());
    const double scaleY = fitScale(own.height(), place.box.height());
    const QTransform fit = QTransform::fromTranslate(-own.center().x(), -own.center().y())
        * QTransform::fromScale(scaleX, scaleY)
        * QTransform::fromTranslate(place.box.center().x(), place.box.center().y());
    const QPolygonF filled = fit.map(points);
    return place.angle == 0 ? filled : turnAbout(place.box.center(), place.angle).map(filled);
}

QPolygonF withoutRepeatedEnd(QPolygonF points)
{
    if (points.size() > 1 && points.first() == points.last()) {
        points.removeLast();
    }
    return points;
}

// XYValue ends in one character that is no part of the numbers; a digit at the end is one.
QPolygonF polylinePoints(const QJsonObject &item)
{
    const QJsonValue value = item.value(pointsKey);
    QString text = value.toString();
    if (!text.isEmpty() && !text.at(text.size() - 1).isDigit()) {
        text.chop(1);
    }
    return pointsOf(itemNumbers(value.isArray() ? value : QJsonValue(text)));
}

// What the plug-in draws of a shape whose outline only it knows.
QPolygonF derivedOutline(const QJsonObject &item, IZQTransformation *plugin)
{
    QJsonObject plain{{typeKey, item.value(typeKey)},
                      {controlKey, pointsText(pointsOf(itemNumbers(item.value(controlKey))))}};
    const QLatin1String corners("ArtObj_Ln");
    if (item.contains(corners)) {
        plain.insert(corners, item.value(corners));
    }
    QDomDocument document;
    const QDomElement element = plugin->tranItemJSON2IWB(document, plain);
    return withoutRepeatedEnd(pointsOf(svgNumbers(element.attribute(QStringLiteral("points")))));
}

QPolygonF ownPoints(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin)
{
    QPolygonF points;
    switch (form.outline) {
    case ShapeForm::Polyline:
        return polylinePoints(item);
    case ShapeForm::Circle:
    case ShapeForm::Ellipse:
        return points;
    case ShapeForm::Derived:
        return derivedOutline(item, plugin);
    case ShapeForm::Segment:
        points = pointsOf(itemNumbers(item.value(controlKey)).mid(0, 4));
        break;
    case ShapeForm::Angle:
        points = pointsOf(itemNumbers(item.value(controlKey)).mid(0, 4));
        if (points.size() == 2) {
            points.append(QPointF());
        }
        break;
    default:
        points = pointsOf(itemNumbers(item.value(controlKey)));
        break;
    }
    return points;
}

// An item as the plug-in's import leaves it, which tells the place of its origin and points of the page.
std::optional<QPointF> createdAt(const QJsonObject &item)
{
    const QLatin1String x("Discipline_xCreate");
    const QLatin1String y("Discipline_yCreate");
    if (item.contains(boxKey) || !item.contains(x) || !item.contains(y)) {
        return std::nullopt;
    }
    return QPointF(item.value(x).toString().toDouble(), item.value(y).toString().toDouble());
}

// Radii of a circle or ellipse under the identity, from its points on the rim.
QSizeF ownRadii(const QJsonObject &item, ShapeForm::Outline outline, const QPointF &origin)
{
    const QPolygonF rim = pointsOf(itemNumbers(item.value(controlKey)));
    const auto radius = [&](int i, double usual) {
        return i < rim.size() ? std::hypot(rim.at(i).x() - origin.x(), rim.at(i).y() - origin.y()) : usual;
    };
    if (outline == ShapeForm::Circle) {
        const double r = radius(0, 50);
        return QSizeF(r, r);
    }
    return QSizeF(radius(0, 100), radius(1, 100));
}

class ShapePlacer
{
public:
    ShapePlacer(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin)
        : m_item(withImplied(item, form))
        , m_form(form)
        , m_plugin(plugin)
    {
        m_result.form = &form;
        copy(QLatin1String("ArtObj_Ln"));
        copy(QLatin1String("ArtObj_ArrowType"));
    }

    PlacedShape place()
    {
        const auto matrix = matrixOf(m_item);
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
        m_result.geometry.insert(typeKey, QLatin1String(m_result.form->type));
        return m_result;
    }

private:
    void copy(QLatin1String key)
    {
        if (m_item.contains(key)) {
            m_result.geometry.insert(key, m_item.value(key));
        }
    }

    void set(QLatin1String key, const QString &text) { m_result.geometry.insert(key, text); }

    ItemPlace target(const QRectF &own) const { return {boxOf(m_item).value_or(own), angleOf(m_item)}; }

    void pointsUnder(const QTransform &matrix)
    {
        if (m_form.outline == ShapeForm::Derived && m_item.contains(controlKey)) {
            // Under a matrix of its own a parallelogram would lie flat whichever way it is turned.
            m_result.form = shapeForm(QStringLiteral("ZQMath2DQuadrangle"));
            set(matrixKey, identityText);
            set(controlKey, pointsText(matrix.map(derivedOutline(m_item, m_plugin))));
            return;
        }
        copy(matrixKey);
        if (m_form.outline == ShapeForm::Polyline) {
            set(pointsKey, pointsText(padded(polylinePoints(m_item))) + QLatin1Char(','));
        } else {
            set(controlKey, pointsText(pointsOf(itemNumbers(m_item.value(controlKey)))));
        }
    }

    void pointsInBox()
    {
        QPolygonF points = ownPoints(m_item, m_form, m_plugin);
        if (points.isEmpty()) {
            return;
        }
        const auto origin = m_form.outline == ShapeForm::Angle ? createdAt(m_item) : std::nullopt;
        if (origin) {
            points.last() = *origin;
        } else {
            points = fitted(points, target(extentOf(points)));
        }
        m_result.box = extentOf(points);
        set(matrixKey, identityText);
        switch (m_form.outline) {
        case ShapeForm::Polyline:
            set(pointsKey, pointsText(padded(points)) + QLatin1Char(','));
            break;
        case ShapeForm::Angle:
            angle(points);
            break;
        case ShapeForm::Derived:
            m_result.form = shapeForm(QStringLiteral("ZQMath2DQuadrangle"));
            Q_FALLTHROUGH();
        default:
            set(controlKey, pointsText(points));
            break;
        }
    }

    // A polyline of three points would come back as an angle, one of a single point shows nothing.
    static QPolygonF padded(QPolygonF points)
    {
        if (points.size() == 3 || points.size() == 1) {
            points.append(points.last());
        }
        return points;
    }

    // The origin is a matrix's, in single precision; the other points are told from where it really is.
    void angle(const QPolygonF &points)
    {
        if (points.size() < 3) {
            return;
        }
        const auto single = [](double value) { return qAbs(value) < 1e-9 ? 0 : double(float(value)); };
        const QPointF origin(single(points.at(2).x()), single(points.at(2).y()));
        set(matrixKey,
            QLatin1String("1,0,0,1,") + QString::number(origin.x(), 'g', 17) + QLatin1Char(',')
                + QString::number(origin.y(), 'g', 17));
        set(controlKey, pointsText(QPolygonF() << points.at(0) - origin << points.at(1) - origin));
    }

    void ellipseUnder(const QTransform &matrix)
    {
        copy(matrixKey);
        const QPolygonF rim = pointsOf(itemNumbers(m_item.value(controlKey)));
        if (!rim.isEmpty()) {
            set(controlKey, pointsText(rim));
        }
        if (m_form.outline == ShapeForm::Ellipse) {
            m_result.angle = std::atan2(matrix.m12(), matrix.m11());
        }
    }

    void ellipseInBox()
    {
        const QPointF origin = createdAt(m_item).value_or(QPointF());
        const QSizeF radii = ownRadii(m_item, m_form.outline, origin);
        const QPointF corner(radii.width(), radii.height());
        const ItemPlace place = target(QRectF(origin - corner, origin + corner));
        const double rx = place.box.width() / 2;
        const double ry = place.box.height() / 2;
        const bool isCircle = m_form.outline == ShapeForm::Circle && qAbs(rx - ry) <= 0.5;
        if (isCircle) {
            set(controlKey, exactText((rx + ry) / 2) + QLatin1String(",0"));
        } else {
            m_result.form = shapeForm(QStringLiteral("ZQMath2DEllipse"));
            set(controlKey, exactText(rx) + QLatin1String(",0,0,") + exactText(ry));
            m_result.angle = place.angle;
        }
        set(matrixKey,
            QLatin1String("1,0,0,1,") + exactText(place.box.center().x()) + QLatin1Char(',')
                + exactText(place.box.center().y()));
        m_result.box = place.box;
    }

    void rectangle(const ItemPlace &place)
    {
        m_result.box = place.box;
        m_result.angle = place.angle;
        set(matrixKey, identityText);
        set(boxKey, boxText(place.box));
        set(controlKey, pointsText(QPolygonF() << place.box.topRight() << place.box.bottomLeft()));
    }

    void rectangleInBox() { rectangle(target(extentOf(pointsOf(itemNumbers(m_item.value(controlKey)))))); }

    void rectangleUnder(const QTransform &matrix)
    {
        const QRectF own = shapeExtent(m_item, m_form, m_plugin);
        if (scaleAndTurn(matrix)) {
            rectangle(placeUnder(matrix, own));
            return;
        }
        // A slanted rectangle is a quadrangle.
        m_result.form = shapeForm(QStringLiteral("ZQMath2DQuadrangle"));
        set(matrixKey, identityText);
        set(controlKey, pointsText(withoutRepeatedEnd(matrix.map(QPolygonF(own)))));
    }

    const QJsonObject m_item;
    const ShapeForm &m_form;
    IZQTransformation *m_plugin;
    PlacedShape m_result;
};

double number(const QDomElement &element, const char *attribute)
{
    return element.attribute(QLatin1String(attribute)).toDouble();
}

} // namespace

std::optional<QTransform> transformOfText(const QString &text)
{
    const QVector<double> n = itemNumbers(text);
    if (n.size() < 6) {
        return std::nullopt;
    }
    return QTransform(n.at(0), n.at(1), n.at(2), n.at(3), n.at(4), n.at(5));
}

QString transformText(const QTransform &transform)
{
    QStringList numbers;
    for (const double number :
         {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()}) {
        numbers.append(exactText(number));
    }
    return numbers.join(QLatin1Char(','));
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

QPolygonF shapePoints(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin)
{
    return ownPoints(withImplied(item, form), form, plugin);
}

QRectF shapeExtent(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin)
{
    if (form.outline == ShapeForm::Circle || form.outline == ShapeForm::Ellipse) {
        const QSizeF radii = ownRadii(item, form.outline, QPointF());
        const QPointF corner(radii.width(), radii.height());
        return QRectF(-corner, corner);
    }
    const QPolygonF points = shapePoints(item, form, plugin);
    if (form.outline == ShapeForm::Rectangle && points.size() < 2) {
        return boxOf(item).value_or(QRectF());
    }
    return extentOf(points);
}

PlacedShape placeShape(const QJsonObject &item, const ShapeForm &form, IZQTransformation *plugin)
{
    return ShapePlacer(item, form, plugin).place();
}

std::optional<QRectF> drawnExtent(const QDomElement &element)
{
    const QString tag = element.tagName();
    if (tag == QLatin1String("svg:circle") || tag == QLatin1String("svg:ellipse")) {
        const bool isCircle = tag == QLatin1String("svg:circle");
        const QPointF radii(number(element, isCircle ? "r" : "rx"), number(element, isCircle ? "r" : "ry"));
        const QPointF center(number(element, "cx"), number(element, "cy"));
        return QRectF(center - radii, center + radii);
    }
    if (tag == QLatin1String("svg:line") && element.hasAttribute(QStringLiteral("x1"))) {
        return QRectF(QPointF(number(element, "x1"), number(element, "y1")),
                      QPointF(number(element, "x2"), number(element, "y2")))
            .normalized();
    }
    if (element.hasAttribute(QStringLiteral("points"))) {
        return extentOf(pointsOf(svgNumbers(element.attribute(QStringLiteral("points")))));
    }
    if (tag != QLatin1String("svg:line") && tag != QLatin1String("svg:polyline")
        && element.hasAttribute(QStringLiteral("width"))) {
        return QRectF(number(element, "x"), number(element, "y"), number(element, "width"), number(element, "height"));
    }
    return std::nullopt;
}

} // namespace lessonhost
