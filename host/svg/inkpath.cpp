// SPDX-License-Identifier: MIT
#include "svg/inkpath.h"

#include "files/drawingbounds.h"

#include <QHash>
#include <QLineF>

#include <cmath>

namespace lessonhost {

namespace {

constexpr double samePlace = 0.01;
// Closer points are smooth enough.
constexpr double shortStep = 2;

double dotProduct(const QPointF &a, const QPointF &b)
{
    return QPointF::dotProduct(a, b);
}

double vectorLength(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

QPointF unitVector(const QPointF &vector)
{
    const double size = vectorLength(vector);
    return size > 0 ? vector / size : QPointF();
}

/*!
 * The way of a line into a point and out of it; the same but in a corner.
 */
struct Tangents
{
    QPointF in;
    QPointF out;
};

/*!
 * The lines into a point and out of it.
 */
struct Bend
{
    QPointF in;
    QPointF out;
    double turn = 0; //!< from one to the other, in radians

    Bend() = default;
    Bend(const QPointF &before, const QPointF &at, const QPointF &after)
        : in(at - before)
        , out(after - at)
        , turn(std::atan2(in.x() * out.y() - in.y() * out.x(), dotProduct(in, out)))
    {
    }
};

// A sharp turn in the midst of straight lines, or of lines so long that no hand drew a curve with them.
bool isCorner(const Bend &before, const Bend &bend, const Bend &after)
{
    constexpr double sharp = 1.3;
    constexpr double small = 0.1; // of a turn
    constexpr double longStep = 50;
    const double turn = std::abs(bend.turn);
    const bool isAlone = std::abs(before.turn) < small * turn && std::abs(after.turn) < small * turn;
    return turn > sharp && (isAlone || (vectorLength(bend.in) > longStep && vectorLength(bend.out) > longStep));
}

// As a circle through the point and those beside it goes.
Tangents smoothTangents(const Bend &bend)
{
    const QPointF both =
        unitVector(unitVector(bend.in) * vectorLength(bend.out) + unitVector(bend.out) * vectorLength(bend.in));
    return {both, both};
}

Tangents tangentsAt(const Bend &before, const Bend &bend, const Bend &after)
{
    return isCorner(before, bend, after) ? Tangents{unitVector(bend.in), unitVector(bend.out)} : smoothTangents(bend);
}

// At the end of a line that bends as at the point beside it.
QPointF mirroredTangent(const QPointF &tangent, const QPointF &along)
{
    return 2 * dotProduct(tangent, along) * along - tangent;
}

QVector<Tangents> tangentsOf(const QPolygonF &points)
{
    const int last = points.size() - 1;
    QVector<Bend> bends(points.size());
    for (int i = 1; i < last; ++i) {
        bends[i] = Bend(points.at(i - 1), points.at(i), points.at(i + 1));
    }
    const bool isClosed = last > 2 && QLineF(points.first(), points.last()).length() < 1;
    if (isClosed) {
        bends[0] = bends[last] = Bend(points.at(last - 1), points.at(0), points.at(1));
    }
    QVector<Tangents> tangents(points.size());
    for (int i = 1; i < last; ++i) {
        tangents[i] = tangentsAt(bends.at(i - 1), bends.at(i), bends.at(i + 1));
    }
    const QPointF first = unitVector(points.at(1) - points.at(0));
    const QPointF end = unitVector(points.at(last) - points.at(last - 1));
    if (isClosed) {
        tangents[0] = tangents[last] = tangentsAt(bends.at(last - 1), bends.at(0), bends.at(1));
    } else if (last > 1) {
        tangents[0].out = mirroredTangent(tangents.at(1).in, first);
        tangents[last].in = mirroredTangent(tangents.at(last - 1).out, end);
    } else {
        tangents[0].out = first;
        tangents[last].in = end;
    }
    return tangents;
}

/*!
 * A piece of a smooth line, from the end of the one before it.
 */
struct Piece
{
    QPointF first; //!< what a curve bends towards
    QPointF second;
    QPointF to;
    bool isStraight = true;
};

// The pieces of the smooth line through points, from the second point on.
template <typename Use> void forEachPiece(const QPolygonF &points, const Use &use)
{
    const QVector<Tangents> tangents = points.size() < 2 ? QVector<Tangents>() : tangentsOf(points);
    for (int i = 1; i < points.size(); ++i) {
        const QPointF along = points.at(i) - points.at(i - 1);
        const double chord = vectorLength(along);
        const QPointF &out = tangents.at(i - 1).out;
        const QPointF &in = tangents.at(i).in;
        constexpr double straight = 0.9999;
        const bool isStraight = chord < shortStep
            || (dotProduct(out, along) > straight * chord && dotProduct(in, along) > straight * chord);
        use(isStraight ? Piece{{}, {}, points.at(i)}
                       : Piece{points.at(i - 1) + out * chord / 3, points.at(i) - in * chord / 3, points.at(i), false});
    }
}

/*!
 * A part of an outline: the edges to the left and right of a track, as far as they don't cross each other.
 */
class Ribbon
{
public:
    explicit Ribbon(QPainterPath &outline)
        : m_outline(outline)
    {
    }

    // The edges' points at a point of the track.
    void go(const QPointF &at, const QPointF &across)
    {
        const QPointF left = at + across;
        const QPointF right = at - across;
        if (!m_left.isEmpty() && !isAhead(left, right)) {
            end();
        }
        m_left.append(left);
        m_right.append(right);
    }

    void end()
    {
        if (m_left.size() > 1) {
            m_outline.addPolygon(m_left);
            for (int i = m_right.size() - 1; i >= 0; --i) {
                m_outline.lineTo(m_right.at(i));
            }
            m_outline.closeSubpath();
        }
        m_left.clear();
        m_right.clear();
    }

    bool isStart() const { return m_left.size() == 1; }

private:
    // True if the piece to these points lies on the same side of both of its ends.
    bool isAhead(const QPointF &left, const QPointF &right) const
    {
        const auto side = [](const QPointF &from, const QPointF &to, const QPointF &point) {
            const QPointF along = to - from;
            const QPointF away = point - from;
            return along.x() * away.y() - along.y() * away.x();
        };
        const QPointF &l = m_left.constLast();
        const QPointF &r = m_right.constLast();
        return side(r, l, left) >= 0 && side(r, l, right) >= 0 && side(right, left, l) <= 0
            && side(right, left, r) <= 0;
    }

    QPainterPath &m_outline;
    QPolygonF m_left;
    QPolygonF m_right;
};

// The same way round as the pieces of a ribbon.
void addDot(QPainterPath &outline, const QPointF &at, double radius)
{
    QPainterPath dot;
    dot.addEllipse(at, radius, radius);
    outline.addPath(dot);
}

/*!
 * A track as fine as its line is drawn.
 */
struct FineTrack
{
    QPolygonF points;
    QVector<double> widths;
    QVector<QPointF> tangents;
};

FineTrack refined(const InkTrack &track)
{
    constexpr double stepLength = 4;
    constexpr int mostSteps = 24;
    constexpr int mostPoints = 200000;
    const int most = qBound(1, mostPoints / track.points.size(), mostSteps);
    FineTrack fine;
    const QVector<Tangents> tangents = tangentsOf(track.points);
    for (int i = 0; i + 1 < track.points.size(); ++i) {
        const QPointF &from = track.points.at(i);
        const QPointF &to = track.points.at(i + 1);
        const double chord = vectorLength(to - from);
        const QPointF first = from + tangents.at(i).out * chord / 3;
        const QPointF second = to - tangents.at(i + 1).in * chord / 3;
        const int steps = int(qBound(1.0, chord / stepLength, double(most)));
        // In a corner there is one point that ends what comes before and one that begins what follows.
        const bool isBegin = i == 0 || tangents.at(i).in != tangents.at(i).out;
        for (int step = isBegin ? 0 : 1; step <= steps; ++step) {
            const double t = double(step) / steps;
            const double u = 1 - t;
            fine.points.append(u * u * u * from + 3 * u * u * t * first + 3 * u * t * t * second + t * t * t * to);
            fine.widths.append(u * track.widths.at(i) + t * track.widths.at(i + 1));
            fine.tangents.append(
                unitVector(u * u * (first - from) + 2 * u * t * (second - first) + t * t * (to - second)));
        }
    }
    return fine;
}

} // namespace

InkTrack::InkTrack(const QPolygonF &all, const QVector<double> &allWidths)
{
    const bool hasWidths = !all.isEmpty() && allWidths.size() >= all.size();
    const auto bounded = [](double value) {
        return qIsNaN(value) ? 0 : qBound(-largestInDrawing, value, largestInDrawing);
    };
    for (int i = 0; i < all.size(); ++i) {
        const QPointF point(bounded(all.at(i).x()), bounded(all.at(i).y()));
        if (points.isEmpty() || QLineF(points.last(), point).length() > samePlace) {
            points.append(point);
            if (hasWidths) {
                widths.append(allWidths.at(i));
            }
        }
    }
}

double InkTrack::length() const
{
    double sum = 0;
    for (int i = 1; i < points.size(); ++i) {
        sum += QLineF(points.at(i - 1), points.at(i)).length();
    }
    return sum;
}

QPainterPath smoothLine(const InkTrack &track)
{
    QPainterPath path;
    path.moveTo(track.points.value(0));
    forEachPiece(track.points, [&path](const Piece &piece) {
        piece.isStraight ? path.lineTo(piece.to) : path.cubicTo(piece.first, piece.second, piece.to);
    });
    return path;
}

QPolygonF fineLine(const QPolygonF &points)
{
    constexpr int mostPoints = 50000;
    if (points.size() < 3 || points.size() > mostPoints) {
        return points;
    }
    constexpr double invisible = 0.1;
    constexpr double mostPieces = 24;
    const InkTrack track(points, {});
    QPolygonF fine;
    fine.append(track.points.first());
    bool isFiner = false;
    forEachPiece(track.points, [&](const Piece &piece) {
        if (!piece.isStraight) {
            const QPointF from = fine.last();
            const auto &[first, second, to, isStraight] = piece;
            const double bend = qMax(vectorLength(from - 2 * first + second), vectorLength(first - 2 * second + to));
            // So many chords stay this close to a curve.
            const int chords = int(qBound(1.0, std::ceil(std::sqrt(0.75 * bend / invisible)), mostPieces));
            isFiner = isFiner || chords > 1;
            for (int chord = 1; chord < chords; ++chord) {
                const double t = double(chord) / chords;
                const double u = 1 - t;
                fine.append(u * u * u * from + 3 * u * u * t * first + 3 * u * t * t * second + t * t * t * to);
            }
        }
        fine.append(piece.to);
    });
    return isFiner ? fine : points;
}

// What a number means nobody tells.
QVector<double> inkDashes(const QString &style)
{
    QString name;
    for (const QChar c : style) {
        name += c.isLetter() ? QString(c.toLower()) : QString();
    }
    name.remove(QLatin1String("line"));
    static const QHash<QString, QVector<double>> named{
        {QStringLiteral("dash"), {4, 3}},          {QStringLiteral("dashed"), {4, 3}},
        {QStringLiteral("dot"), {1, 2}},           {QStringLiteral("dotted"), {1, 2}},
        {QStringLiteral("dashdot"), {4, 2, 1, 2}}, {QStringLiteral("dashdotdot"), {4, 2, 1, 2, 1, 2}},
    };
    return named.value(name);
}

Qt::PenCapStyle inkCap(const QString &name)
{
    return name == QLatin1String("flat") || name == QLatin1String("butt") ? Qt::FlatCap
        : name == QLatin1String("square")                                 ? Qt::SquareCap
                                                                          : Qt::RoundCap;
}

QPainterPath brushOutline(const InkTrack &track)
{
    QPainterPath outline;
    if (track.points.size() < 2) {
        addDot(outline, track.points.value(0), track.widths.value(0) / 2);
        return outline;
    }
    const FineTrack fine = refined(track);
    Ribbon ribbon(outline);
    for (int i = 0; i < fine.points.size(); ++i) {
        const double radius = fine.widths.at(i) / 2;
        const QPointF &along = fine.tangents.at(i);
        ribbon.go(fine.points.at(i), QPointF(along.y(), -along.x()) * radius);
        if (ribbon.isStart() || i + 1 == fine.points.size()) {
            addDot(outline, fine.points.at(i), radius);
        }
    }
    ribbon.end();
    return outline;
}

} // namespace lessonhost
