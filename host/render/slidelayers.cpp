// SPDX-License-Identifier: MIT
#include "render/slidelayers.h"

#include "canvas/picturestore.h"
#include "lesson/planegeometry.h"
#include "svg/svgpath.h"
#include "svg/svgvalues.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <tuple>

namespace lessonhost {

namespace {

const QLatin1String fillByName("url(#");

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

// What was painted for a page stands in it, and pictures that a text holds, always in these forms.
QImage pixelsIn(const QString &address)
{
    for (const char *type : {"png", "jpeg", "gif"}) {
        const QString form = QLatin1String("data:image/") + QLatin1String(type) + QLatin1String(";base64,");
        if (address.startsWith(form)) {
            return QImage::fromData(QByteArray::fromBase64(address.midRef(form.size()).toLatin1()), type);
        }
    }
    return {};
}

// Groups with a name are drawings with gradients and style sheets of their own, which stay together.
bool isOpenGroup(const QDomElement &element)
{
    return element.tagName() == QLatin1String("g") && !element.hasAttribute(QStringLiteral("id"));
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
            } else if (e.tagName() == QLatin1String("defs")) {
                findTextures(e);
            } else if (isTextured(e)) {
                paintTexture(e, toPage, opacity);
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

    void findTextures(const QDomElement &definitions)
    {
        for (QDomElement e = definitions.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            m_textures.insert(e.attribute(QStringLiteral("id")), m_store.pictureOf(e.firstChildElement()));
        }
    }

    static bool isTextured(const QDomElement &element)
    {
        return element.tagName() == QLatin1String("path")
            && element.attribute(QStringLiteral("fill")).startsWith(fillByName);
    }

    QImage imageOf(const QString &picture)
    {
        auto known = m_images.constFind(picture);
        if (known == m_images.constEnd()) {
            known = m_images.insert(picture, m_store.image(picture));
        }
        return *known;
    }

    // As a picture as sharp as the page, or in the one colour that is told beside the texture if there were too many.
    void paintTexture(const QDomElement &element, const QTransform &toPage, double opacity)
    {
        const QString fill = element.attribute(QStringLiteral("fill"));
        const int nameEnd = fill.indexOf(QLatin1Char(')'));
        const QString name = m_textures.value(fill.mid(fillByName.size(), nameEnd - fillByName.size()));
        QPainterPath area = svgPath(element.attribute(QStringLiteral("d"))).value_or(QPainterPath());
        const QRectF shown = area.boundingRect() & toPage.inverted().mapRect(m_page);
        const double fitting = std::sqrt(double(m_pixels.shareFor(1)) / qMax(1e-9, shown.width() * shown.height()));
        const QSize size = (shown.size() * qMin(meanScale(toPage), fitting)).toSize();
        if (shown.isEmpty()) {
            return;
        }
        const QImage texture = name.isEmpty() || size.isEmpty() ? QImage() : imageOf(name);
        if (texture.isNull()) {
            QDomElement plain = element.cloneNode().toElement();
            plain.setAttribute(QStringLiteral("fill"), fill.mid(nameEnd + 1).trimmed());
            innermost().appendChild(plain);
            return;
        }
        const bool isEvenOdd = element.attribute(QStringLiteral("fill-rule")) == QLatin1String("evenodd");
        area.setFillRule(isEvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
        PlacedPicture picture;
        picture.image = QImage(size, QImage::Format_ARGB32_Premultiplied);
        picture.image.fill(Qt::transparent);
        QPainter painter(&picture.image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(size.width() / shown.width(), size.height() / shown.height());
        painter.translate(-shown.topLeft());
        painter.fillPath(area, QBrush(texture));
        painter.end();
        m_pixels.take(1, qint64(size.width()) * size.height());
        picture.box = shown;
        picture.transform = toPage;
        picture.opacity = qBound(0.0, numberOf(element, "fill-opacity", 1), 1.0) * opacity;
        endPart();
        m_layers.append(SlideLayer{{}, {}, {}, picture});
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
    PixelBudget m_pixels; // of what is painted
    QHash<QString, QString> m_textures; // pictures by the names of patterns
    QHash<QString, QImage> m_images; // of textures
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
