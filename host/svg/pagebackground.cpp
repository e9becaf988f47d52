// SPDX-License-Identifier: MIT
#include "svg/pagebackground.h"

#include "svg/svggeometry.h"
#include "svg/svgnames.h"

#include <QDomDocument>

namespace lessonhost {

namespace {

// Names that the plug-in compares, so that the background is found whatever the file called it.
const QLatin1String backgroundRect("background_rect");
const QLatin1String backgroundImage("background_bgd");

} // namespace

PageBackground::PageBackground(SvgPage &page)
    : m_page(page)
    , m_color(Qt::white)
{
}

void PageBackground::setKnown(const QVector<QDomElement> &elements)
{
    m_known = elements;
}

// The rectangle that the plug-in makes shares the beginning of its name with the picture.
bool PageBackground::take(const QDomElement &element, const QString &name, const SvgStyle &style)
{
    if (m_known) {
        return m_known->contains(element);
    }
    const QString id = element.attribute(QStringLiteral("id"));
    const IwbRecord record = m_page.recordOf(element);
    if (name == QLatin1String("rect") && record.isBackground && !m_hasColor) {
        m_hasColor = true;
        m_page.result().backgrounds.append(element);
        m_color = svgPaint(style, m_page.rules().isNative, m_page.remarkAbout(element)).fill;
        m_stem = id.endsWith(QLatin1String("_rect")) ? id.chopped(5) : QString();
        return true;
    }
    const bool isNamedPicture = !m_stem.isEmpty() && id == m_stem + QLatin1String("_bgd");
    if (name == QLatin1String("image") && m_page.result().backgroundReference.isEmpty()
        && (record.isBackground || isNamedPicture) && !record.refusesPicture) {
        if (!fillsPage(element, record, style)) {
            return false;
        }
        if (!m_page.rules().isNative) {
            m_page.remarkOnOpacity(element, style, true);
        }
        m_page.result().backgroundReference = linkTarget(element);
        m_page.result().backgrounds.append(element);
        return true;
    }
    return false;
}

// The picture of a slide fills it. One that stands elsewhere is a picture that can't be moved.
bool PageBackground::fillsPage(const QDomElement &element, const IwbRecord &record, const SvgStyle &style)
{
    if (m_page.rules().isNative || record.posture == QLatin1String("stretched-to-fill")) {
        return true;
    }
    if (record.posture == QLatin1String("repeated")) {
        m_page.result().isBackgroundRepeated = true;
        m_page.result().backgroundTile =
            style.matrix.mapRect(QRectF(0, 0, m_page.length(element, "width"), m_page.length(element, "height")))
                .size();
        m_page.remark(element, say("a picture of all its repetitions took its place"), false);
        return true;
    }
    const QRectF box(m_page.length(element, "x"), m_page.length(element, "y"),
                     m_page.length(element, "width", m_page.rules().viewBox.width()),
                     m_page.length(element, "height", m_page.rules().viewBox.height()));
    const QRectF onPage = style.matrix.mapRect(box);
    const QSizeF page = m_page.rules().viewBox.size();
    const double tolerance = qMax(page.width(), page.height()) / 100;
    const QRectF difference(onPage.topLeft(), onPage.size() - page);
    const bool isFull = qAbs(difference.x()) <= tolerance && qAbs(difference.y()) <= tolerance
        && qAbs(difference.width()) <= tolerance && qAbs(difference.height()) <= tolerance;
    if (!isFull) {
        m_page.remark(element, say("it doesn't fill the page, so it became a picture that can't be moved"), false);
    }
    return isFull;
}

void PageBackground::finish()
{
    QDomDocument &document = m_page.result().document;
    QDomElement rect = document.createElement(QStringLiteral("svg:rect"));
    rect.setAttribute(QStringLiteral("id"), backgroundRect);
    setSvgBox(rect, QRectF(QPointF(), m_page.rules().viewBox.size()));
    const QColor color = m_color.alpha() > 0 ? m_color : QColor(Qt::white);
    rect.setAttribute(QStringLiteral("fill"),
                      QString(QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue())));
    m_page.result().page.appendChild(rect);
    if (!m_page.result().backgroundReference.isEmpty()) {
        QDomElement picture = document.createElement(QStringLiteral("svg:image"));
        picture.setAttribute(QStringLiteral("id"), backgroundImage);
        m_page.result().page.appendChild(picture);
    }
    QDomElement record = document.createElement(QStringLiteral("iwb:element"));
    record.setAttribute(QStringLiteral("ref"), backgroundRect);
    m_page.result().root.appendChild(record);
}

} // namespace lessonhost
