// SPDX-License-Identifier: MIT
#include "svg/svgnormalizer.h"

#include "svg/svgpagebuilder.h"

namespace lessonhost {

namespace {

void pass(const QDomElement &element, IwbOutline &outline, int level)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        outline.lookAt(child, level);
        pass(child, outline, level + 1);
    }
}

void tell(const QDomElement &element, IwbOutline &outline, QVector<QDomElement> &parts)
{
    const XmlVisitor::Way way = outline.begin(element);
    if (way == XmlVisitor::Inside) {
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            tell(child, outline, parts);
        }
    } else {
        pass(element, outline, 1);
    }
    if (way == XmlVisitor::Part || (way == XmlVisitor::Inside && outline.end(element) == XmlVisitor::LatePart)) {
        parts.append(element);
    }
}

} // namespace

SvgNormalizer::SvgNormalizer(const QDomElement &root)
    : m_outline(m_ownOutline)
{
    QVector<QDomElement> parts;
    tell(root, m_ownOutline, parts);
    m_ownOutline.finish();
    m_part = [parts](int index) { return XmlPart{parts.at(index).ownerDocument(), parts.at(index)}; };
}

SvgNormalizer::SvgNormalizer(const IwbOutline &outline, std::function<XmlPart(int)> part)
    : m_outline(outline)
    , m_part(std::move(part))
{
}

QVector<XmlPart> SvgNormalizer::layers(int index) const
{
    QVector<XmlPart> layers;
    for (const int part : m_outline.layers(index)) {
        layers.append(m_part(part));
    }
    return layers;
}

IwbPage SvgNormalizer::page(const QVector<XmlPart> &layers, const QSet<QString> &passed) const
{
    SvgPageBuilder builder(m_outline.rules());
    builder.passOver(passed);
    return builder.build(layers);
}

IwbPage SvgNormalizer::page(const QVector<XmlPart> &layers, const QVector<QDomElement> &children,
                            const QVector<QDomElement> &backgrounds) const
{
    return SvgPageBuilder(m_outline.rules()).build(layers.first().element, children, backgrounds);
}

} // namespace lessonhost
