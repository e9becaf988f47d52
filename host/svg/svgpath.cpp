// SPDX-License-Identifier: MIT
#include "svg/svgpath.h"

#include "svg/svgnames.h"
#include "svg/svgscanner.h"
#include "svg/svgvalues.h"

#include <QTransform>
#include <QtMath>

#include <cmath>

namespace lessonhost {

namespace {

// How many numbers stand behind a command's letter; -1 for what is none.
int numbersAfter(char command)
{
    switch (command) {
    case 'Z':
        return 0;
    case 'H':
    case 'V':
        return 1;
    case 'M':
    case 'L':
    case 'T':
        return 2;
    case 'S':
    case 'Q':
        return 4;
    case 'C':
        return 6;
    case 'A':
        return 7;
    default:
        return -1;
    }
}

struct Arc
{
    QPointF radii;
    double angle = 0; //!< of the first radius, in degrees
    bool isLarge = false;
    bool isClockwise = false; //!< on the screen
};

// From the path's end to a point on an ellipse that both lie on; of the four such arcs the one that is told. Radii that
// are too short for the distance grow.
void addArc(QPainterPath &path, const Arc &arc, const QPointF &to)
{
    const QPointF from = path.currentPosition();
    double rx = qAbs(arc.radii.x());
    double ry = qAbs(arc.radii.y());
    if (from == to) {
        return;
    }
    if (rx <= 0 || ry <= 0) {
        path.lineTo(to);
        return;
    }
    // Where the ellipse is the unit circle, its centre lies on the perpendicular bisector of both points.
    const QTransform turned = QTransform().rotate(arc.angle);
    QTransform toPage = QTransform::fromScale(rx, ry) * turned;
    QPointF half = toPage.inverted().map(to - from) / 2;
    const double distance = std::hypot(half.x(), half.y());
    if (distance > 1) {
        toPage = QTransform::fromScale(distance, distance) * toPage;
        half /= distance;
    }
    const double squared = qMin(1.0, half.x() * half.x() + half.y() * half.y());
    const double side = std::sqrt((1 - squared) / squared) * (arc.isLarge == arc.isClockwise ? -1 : 1);
    const QPointF center = half + QPointF(-half.y(), half.x()) * side;
    const auto degrees = [](const QPointF &point) { return qRadiansToDegrees(std::atan2(point.y(), point.x())); };
    const double start = degrees(-center);
    double sweep = degrees(2 * half - center) - start;
    constexpr double wholeTurn = 360;
    if (arc.isClockwise && sweep < 0) {
        sweep += wholeTurn;
    } else if (!arc.isClockwise && sweep > 0) {
        sweep -= wholeTurn;
    }
    // QPainterPath counts its angles counterclockwise.
    QPainterPath circle;
    const QRectF unit(center - QPointF(1, 1), QSizeF(2, 2));
    circle.arcMoveTo(unit, -start);
    circle.arcTo(unit, -start, -sweep);
    const QPainterPath curves = (toPage * QTransform::fromTranslate(from.x(), from.y())).map(circle);
    for (int i = 0; i + 2 < curves.elementCount(); ++i) {
        if (curves.elementAt(i).isCurveTo()) {
            path.cubicTo(curves.elementAt(i), curves.elementAt(i + 1), curves.elementAt(i + 2));
        }
    }
}

// Walks the commands of a path.
class PathReader
{
public:
    explicit PathReader(const QString &data)
        : m_scanner(data)
    {
    }

    std::optional<QPainterPath> read()
    {
        char command = 0;
        bool isRelative = false;
        while (!m_scanner.atEnd()) {
            if (m_scanner.peek().isLetter()) {
                const QChar letter = m_scanner.take();
                command = letter.toUpper().toLatin1();
                isRelative = letter.isLower();
            } else if (command == 'M') {
                command = 'L'; // pairs behind the first are lines
            } else if (command == 'Z') {
                return std::nullopt;
            }
            if ((command != 'M' && m_path.elementCount() == 0) || !readNumbers(command)) {
                return std::nullopt;
            }
            step(command, isRelative ? m_at : QPointF());
        }
        return m_path;
    }

private:
    bool readNumbers(char command)
    {
        m_numbers.clear();
        const int count = numbersAfter(command);
        while (m_numbers.size() < count) {
            const bool isFlag = command == 'A' && (m_numbers.size() == 3 || m_numbers.size() == 4);
            const auto value = isFlag ? m_scanner.digitFlag() : m_scanner.number();
            if (!value) {
                return false;
            }
            m_numbers.append(*value);
        }
        return count >= 0;
    }

    QPointF point(int at, const QPointF &base) const { return base + QPointF(m_numbers.at(at), m_numbers.at(at + 1)); }

    void step(char command, const QPointF &base)
    {
        // What a smooth curve begins with: the mirror image of the point before.
        const QPointF mirrored = 2 * m_at - m_bend;
        const char before = m_before;
        m_before = command;
        switch (command) {
        case 'M':
            m_at = m_start = point(0, base);
            m_path.moveTo(m_at);
            return;
        case 'Z':
            m_path.closeSubpath();
            m_at = m_start;
            return;
        case 'C':
            curve(point(0, base), point(2, base), point(4, base));
            return;
        case 'S':
            curve(before == 'C' || before == 'S' ? mirrored : m_at, point(0, base), point(2, base));
            return;
        case 'Q':
            m_bend = point(0, base);
            m_at = point(2, base);
            m_path.quadTo(m_bend, m_at);
            return;
        case 'T':
            m_bend = before == 'Q' || before == 'T' ? mirrored : m_at;
            m_at = point(0, base);
            m_path.quadTo(m_bend, m_at);
            return;
        case 'A':
            m_at = point(5, base);
            addArc(m_path, {point(0, {}), m_numbers.at(2), m_numbers.at(3) != 0, m_numbers.at(4) != 0}, m_at);
            return;
        case 'H':
            m_at.setX(base.x() + m_numbers.at(0));
            break;
        case 'V':
            m_at.setY(base.y() + m_numbers.at(0));
            break;
        default:
            m_at = point(0, base);
        }
        m_path.lineTo(m_at);
    }

    void curve(const QPointF &first, const QPointF &second, const QPointF &to)
    {
        m_path.cubicTo(first, second, to);
        m_bend = second;
        m_at = to;
    }

    SvgScanner m_scanner;
    QVector<double> m_numbers;
    QPainterPath m_path;
    QPointF m_at;
    QPointF m_start;
    QPointF m_bend; //!< the last point that a curve bent towards
    char m_before = 0;
};

double length(const QDomElement &shape, const char *name)
{
    return svgLength(shape.attribute(QLatin1String(name))).value_or(0);
}

QPainterPath polygon(const QDomElement &shape, bool isClosed)
{
    const QVector<double> numbers = svgNumbers(shape.attribute(QStringLiteral("points")));
    QPolygonF points;
    for (int i = 0; i + 1 < numbers.size(); i += 2) {
        points.append(QPointF(numbers.at(i), numbers.at(i + 1)));
    }
    QPainterPath path;
    path.addPolygon(points);
    if (isClosed) {
        path.closeSubpath();
    }
    return path;
}

} // namespace

std::optional<QPainterPath> svgPath(const QString &data)
{
    return PathReader(data).read();
}

std::optional<QPainterPath> svgOutline(const QDomElement &shape)
{
    const QString name = svgName(shape);
    const auto at = [&shape](const char *x, const char *y) { return QPointF(length(shape, x), length(shape, y)); };
    QPainterPath path;
    if (name == QLatin1String("path")) {
        return svgPath(shape.attribute(QStringLiteral("d")));
    }
    if (name == QLatin1String("rect")) {
        const double rx = length(shape, shape.hasAttribute(QStringLiteral("rx")) ? "rx" : "ry");
        const double ry = length(shape, shape.hasAttribute(QStringLiteral("ry")) ? "ry" : "rx");
        const QRectF box(at("x", "y"), QSizeF(length(shape, "width"), length(shape, "height")));
        path.addRoundedRect(box, rx, ry);
    } else if (name == QLatin1String("circle")) {
        path.addEllipse(at("cx", "cy"), length(shape, "r"), length(shape, "r"));
    } else if (name == QLatin1String("ellipse")) {
        path.addEllipse(at("cx", "cy"), length(shape, "rx"), length(shape, "ry"));
    } else if (name == QLatin1String("line")) {
        path.moveTo(at("x1", "y1"));
        path.lineTo(at("x2", "y2"));
    } else if (name == QLatin1String("polyline") || name == QLatin1String("polygon")) {
        return polygon(shape, name == QLatin1String("polygon"));
    } else {
        return std::nullopt;
    }
    return path;
}

} // namespace lessonhost
