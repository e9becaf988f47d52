// SPDX-License-Identifier: MIT
#include "render/slidelayers.h"

#include "render/picturestore.h"
#include "svg/svgvalues.h"

#include <cmath>
#include <tuple>

namespace lessonhost {

namespace {

double numberOf(const QDomElement &element, const char *name, double otherwise)
{
    bool isNumber = false;
    const double number = element.attribute(QLatin1String(name)).toDouble(&isNumber);
    return isNumber ? number : otherwise;
}

QTransform transformOf(const QDomElement &element)
{
    return svgTransform(element.attribute(QStringLiteral("transform"))).value_or(QTransform());
}

double opacityOf(const QDomElement &element)
{
    return qBound(0.0, numberOf(element, "opacity", 1), 1.0);
}

// What was painted for a page stands in it, always in this form.
QImage pixelsIn(const QString &address)
{
    const QLatin1String form("data:image/png;base64,");
    return address.startsWith(form)
        ? QImage::fromData(QByteArray::fromBase64(address.midRef(form.size()).toLatin1()), "png")
        : QImage();
}

// Groups with a name are drawings with gradients and style sheets of their own, which stay together.
bool isOpenGroup(const QDomElement &element)
{
    return element.tagName() == QLatin1String("g") && !element.hasAttribute(QStringLiteral("id"));
}

// True for what a circle doesn't stay one under.
bool stretches(const QTransform &transform)
{
    constexpr double nearly = 1e-3;
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    return qAbs(across - down) > nearly * qMax(across, down);
}

bool holdsTexts(const QDomElement &element)
{
    return !element.elementsByTagName(QStringLiteral("text")).isEmpty();
}

/*!
 * Goes through a drawing and begins a new one behind each picture, within the same groups.
 */
class Parting
{
public:
    Parting(const QDomElement &svg, const PictureStore &store)
        : m_store(store)
        , m_around({svg})
    {
        const QVector<double> view = svgNumbers(svg.attribute(QStringLiteral("viewBox")));
        m_page = QRectF(view.value(0), view.value(1), view.value(2), view.value(3));
        m_box = m_page;
        walk(svg, {}, 1);
        endPart();
    }

    QVector<SlideLayer> layers() const { return m_layers; }

private:
    void walk(const QDomElement &parent, const QTransform &toPage, double opacity)
    {
        for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            PlacedPicture picture = placedPicture(e, m_store);
            if (!picture.isNone()) {
                endPart();
                picture.transform *= toPage;
                picture.opacity *= opacity;
                m_layers.append(SlideLayer{{}, {}, {}, picture});
            } else if (isOpenGroup(e) && stretches(transformOf(e)) && holdsTexts(e)) {
                walkStretched(e, transformOf(e) * toPage, opacityOf(e) * opacity);
            } else if (isOpenGroup(e) && !imagesIn(e).isEmpty()) {
                enter(e);
                walk(e, transformOf(e) * toPage, opacityOf(e) * opacity);
                leave();
            } else {
                innermost().appendChild(e.cloneNode());
            }
        }
    }

    // A part of its own, which shows as much as the page does.
    void walkStretched(const QDomElement &group, const QTransform &toPage, double opacity)
    {
        endPart();
        if (!toPage.isInvertible()) {
            return;
        }
        const QRectF box = toPage.inverted().mapRect(m_page);
        QDomElement svg = m_around.first().cloneNode(false).toElement();
        svg.setAttribute(QStringLiteral("viewBox"),
                         QStringLiteral("%1 %2 %3 %4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height()));
        svg.setAttribute(QStringLiteral("width"), QString::number(box.width()));
        svg.setAttribute(QStringLiteral("height"), QString::number(box.height()));
        QDomElement inner = group.cloneNode(false).toElement();
        inner.removeAttribute(QStringLiteral("transform"));
        const auto before = std::make_tuple(m_around, m_box, m_toPage);
        std::tie(m_around, m_box, m_toPage) = std::make_tuple(QVector<QDomElement>{svg, inner}, box, toPage);
        walk(group, toPage, opacity);
        endPart();
        std::tie(m_around, m_box, m_toPage) = before;
    }

    void enter(const QDomElement &group)
    {
        m_around.append(group);
        if (!m_part.isEmpty()) {
            m_part.append(m_part.last().appendChild(group.cloneNode(false)).toElement());
        }
    }

    void leave()
    {
        m_around.removeLast();
        if (!m_part.isEmpty()) {
            m_part.removeLast();
        }
    }

    // Where the next element of the part goes.
    QDomElement &innermost()
    {
        for (int i = m_part.size(); i < m_around.size(); ++i) {
            const QDomElement copy = m_around.at(i).cloneNode(false).toElement();
            if (i > 0) {
                m_part.last().appendChild(copy);
            }
            m_part.append(copy);
        }
        return m_part.last();
    }

    void endPart()
    {
        if (!m_part.isEmpty()) {
            m_layers.append(SlideLayer{m_store.text(m_part.first()), m_box, m_toPage, {}});
            m_part.clear();
        }
    }

    const PictureStore &m_store;
    QRectF m_page;
    QVector<QDomElement> m_around; // the drawing and the groups down to where it is
    QVector<QDomElement> m_part; // copies of them
    QRectF m_box; // of the part
    QTransform m_toPage; // from the part
    QVector<SlideLayer> m_layers;
};

} // namespace

PlacedPicture placedPicture(const QDomElement &element, const PictureStore &store)
{
    PlacedPicture placed;
    placed.name = store.pictureOf(element);
    if (placed.name.isEmpty() && element.tagName() == QLatin1String("image")) {
        placed.image = pixelsIn(element.attribute(QStringLiteral("xlink:href")));
    }
    if (!placed.isNone()) {
        placed.box = QRectF(numberOf(element, "x", 0), numberOf(element, "y", 0), numberOf(element, "width", 0),
                            numberOf(element, "height", 0));
        placed.transform = transformOf(element);
        placed.opacity = opacityOf(element);
    }
    return placed;
}

QVector<SlideLayer> layersOf(const QDomElement &svg, const PictureStore &store)
{
    return Parting(svg, store).layers();
}

} // namespace lessonhost
