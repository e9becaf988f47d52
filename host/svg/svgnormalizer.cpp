#include "svg/svgnormalizer.h"

#include "svg/svgnames.h"
#include "svg/svgpagebuilder.h"
#include "svg/svgvalues.h"

#include <QMap>

namespace lessonhost {

namespace {

// A page that tells no size is as large as the editor's page for lessons in the shape 4:3.
const QSizeF usualPage(1440, 1080);

QDomElement findSvg(const QDomElement &element)
{
    if (svgName(element) == QLatin1String("svg")) {
        return element;
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QDomElement found = findSvg(child);
        if (!found.isNull()) {
            return found;
        }
    }
    return {};
}

bool isTrue(const QString &text)
{
    return text == QLatin1String("true") || text == QLatin1String("1");
}

} // namespace

SvgNormalizer::SvgNormalizer(const QDomElement &root)
    : m_svg(findSvg(root))
{
    if (m_svg.isNull()) {
        return;
    }
    m_rules.isNative = m_svg.attribute(QStringLiteral("version")) == QLatin1String("tesselmark");
    readSize();
    readRecords(root);
    findPages(m_svg);
    if (m_pages.isEmpty()) {
        m_pages.append(m_svg);
    }
}

void SvgNormalizer::readSize()
{
    QVector<double> box = svgNumbers(m_svg.attribute(QStringLiteral("viewBox")));
    if (box.size() != 4) {
        box = svgNumbers(m_svg.attribute(QStringLiteral("viewbox")));
    }
    if (box.size() == 4 && box.at(2) > 0 && box.at(3) > 0) {
        m_rules.viewBox = QRectF(box.at(0), box.at(1), box.at(2), box.at(3));
        return;
    }
    const auto width = svgLength(m_svg.attribute(QStringLiteral("width")));
    const auto height = svgLength(m_svg.attribute(QStringLiteral("height")));
    if (width && height && *width > 0 && *height > 0) {
        m_rules.viewBox = QRectF(0, 0, *width, *height);
        return;
    }
    m_rules.viewBox = QRectF(QPointF(), usualPage);
    m_remarks.append(
        {QStringLiteral("svg"), {}, QStringLiteral("the file tells no page size; 1440 x 1080 was taken"), false});
}

void SvgNormalizer::findPages(const QDomElement &holder)
{
    for (QDomElement child = holder.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString name = svgName(child);
        if (name == QLatin1String("page")) {
            m_pages.append(child);
        } else if (name == QLatin1String("pageSet") || name == QLatin1String("pageset")) {
            findPages(child);
        }
    }
    if (m_pages.isEmpty() || holder != m_svg) {
        return;
    }
    for (QDomElement child = holder.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (SvgPageBuilder::isDrawn(svgName(child))) {
            m_remarks.append({svgName(child), child.attribute(QStringLiteral("id")),
                              QStringLiteral("it stands on no page and is left out")});
        }
    }
}

void SvgNormalizer::readRecords(const QDomElement &root)
{
    QMap<QString, int> others;
    for (QDomElement row = root.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        const QString name = iwbName(row);
        if (name == QLatin1String("element")) {
            IwbRecord &record = m_rules.records[row.attribute(QStringLiteral("ref"))];
            const QString background = row.attribute(QStringLiteral("background"));
            // The plug-in writes the attribute with a slip of the pen.
            record.isBackground = isTrue(background) || isTrue(row.attribute(QStringLiteral("backgorund")));
            record.refusesPicture = background == QLatin1String("false");
            record.isLocked = isTrue(row.attribute(QStringLiteral("locked")));
        } else if (row != m_svg && name != QLatin1String("link")) {
            ++others[row.tagName()];
        }
    }
    for (auto it = others.constBegin(); it != others.constEnd(); ++it) {
        m_remarks.append({it.key(),
                          {},
                          QString::number(it.value()) + QLatin1String(" left out: lessons have no such records"),
                          false});
    }
}

QDomElement SvgNormalizer::sizeElement(QDomDocument &document) const
{
    QDomElement element = document.createElement(QStringLiteral("svg:svg"));
    document.appendChild(element);
    element.setAttribute(QStringLiteral("width"), QString::number(m_rules.viewBox.width(), 'g', 10));
    element.setAttribute(QStringLiteral("height"), QString::number(m_rules.viewBox.height(), 'g', 10));
    const QString id = m_svg.attribute(QStringLiteral("id"));
    if (!id.isEmpty()) {
        element.setAttribute(QStringLiteral("id"), id);
    }
    return element;
}

QString SvgNormalizer::backgroundName(int index) const
{
    const QLatin1String ending("_rect");
    const QDomElement page = m_pages.at(index);
    for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString id = child.attribute(QStringLiteral("id"));
        if (svgName(child) == QLatin1String("rect") && m_rules.records.value(id).isBackground) {
            return id.endsWith(ending) ? id.chopped(ending.size()) : QString();
        }
    }
    return {};
}

IwbPage SvgNormalizer::page(int index) const
{
    return SvgPageBuilder(m_rules).build(m_pages.at(index));
}

} // namespace lessonhost
