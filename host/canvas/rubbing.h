// SPDX-License-Identifier: MIT
#ifndef RUBBING_H
#define RUBBING_H

#include <QPainterPath>
#include <QTransform>
#include <QVector>

#include <optional>

namespace lessonhost {

/*!
 * What is rubbed out of the ink of a slide, in the order of the slide: each area takes away what was drawn before it.
 */
class Rubbing
{
public:
    //! Adds an area of the page, which comes after those before.
    void add(const QPainterPath &onPage) { m_areas.append({onPage, onPage.boundingRect()}); }
    //! What is drawn from now on is above the first area.
    void passFirst() { ++m_passed; }

    //! True if something of a box is rubbed out. toPage: from where the box is told.
    bool reaches(const QRectF &box, const QTransform &toPage) const;

    //! What is left of an area, by the rule of even and odd. Nothing where it would take too long to find after what
    //! was found before.
    std::optional<QPainterPath> rest(const QPainterPath &ink, const QTransform &toPage);

    //! False where painting would take too long after what was painted before.
    bool mayPaint() const { return m_painting < mostPainting; }
    //! The areas that reach into a box, where the box is told, to be painted over.
    QVector<QPainterPath> areasToPaint(const QRectF &box, const QTransform &toPage);

private:
    struct Area
    {
        QPainterPath path;
        QRectF box;
    };

    static constexpr double mostPainting = 5e5; // some seconds

    QVector<QPainterPath> areasIn(const QRectF &box, const QTransform &toPage) const;

    QVector<Area> m_areas;
    int m_passed = 0;
    double m_cutting = 0; // so far, in pairs of points that may have met
    double m_painting = 0; // so far, in points
};

} // namespace lessonhost

#endif // RUBBING_H
