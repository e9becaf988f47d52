// SPDX-License-Identifier: MIT
#include "svg/svgpagebuilder.h"

#include "lesson/isoneof.h"
#include "svg/svgmedia.h"
#include "svg/svgnames.h"
#include "svg/svgshapes.h"
#include "svg/svgstrokes.h"
#include "svg/svgtextboxes.h"
#include "svg/svgvalues.h"

namespace lessonhost {

namespace {

// The format that an alternative asks for and that nothing here draws; empty for one that can be shown.
QString unknownFormat(const QDomElement &element)
{
    constexpr const char *known[] = {"bmp", "png",  "jpg", "jpeg", "gif", "svg",
                                     "mpg", "mpeg", "mp4", "swf",  "mp3", "wav"};
    for (const char *name : {"requiredExtensions", "requiredExtension"}) {
        const QString required = element.attribute(QLatin1String(name)).trimmed();
        const QString format = required.section(QLatin1Char('/'), -1).toLower();
        if (!required.isEmpty() && !isOneOf(known, format)) {
            return format;
        }
    }
    const QString suffix = linkTarget(element).section(QLatin1Char('.'), -1).toLower();
    constexpr const char *undrawn[] = {"wmf", "emf", "wmz", "emz"};
    return svgName(element) == QLatin1String("image") && isOneOf(undrawn, suffix) ? suffix : QString();
}

bool isSignOf(const QDomElement &element, const QString &linkId)
{
    const QString id = element.attribute(QStringLiteral("id"));
    return id == linkId + QLatin1String(soundSign) || id == linkId + QLatin1String(filmSign);
}

using Reader = void (*)(SvgPage &, const QDomElement &, const SvgPlace &);

// Of elements that hold no others.
const QHash<QString, Reader> &readers()
{
    static const QHash<QString, Reader> table{
        {QStringLiteral("rect"), readRectangle},    {QStringLiteral("circle"), readEllipse},
        {QStringLiteral("ellipse"), readEllipse},   {QStringLiteral("line"), readLine},
        {QStringLiteral("polyline"), readPolyline}, {QStringLiteral("polygon"), readPolygon},
        {QStringLiteral("path"), readPath},         {QStringLiteral("image"), readPicture},
        {QStringLiteral("video"), readPicture},     {QStringLiteral("audio"), readSound},
        {QStringLiteral("text"), readText},         {QStringLiteral("textarea"), readTextArea},
        {QStringLiteral("textArea"), readTextArea},
    };
    return table;
}

} // namespace

SvgPageBuilder::SvgPageBuilder(const IwbDocumentRules &rules)
    : m_page(rules)
    , m_background(m_page)
{
}

// Of elements that hold others.
const QHash<QString, SvgPageBuilder::Walk> &SvgPageBuilder::walks()
{
    static const QHash<QString, Walk> table{
        {QStringLiteral("g"), &SvgPageBuilder::children},
        {QStringLiteral("svg"), &SvgPageBuilder::nestedSvg},
        {QStringLiteral("switch"), &SvgPageBuilder::alternatives},
        {QStringLiteral("a"), &SvgPageBuilder::link},
    };
    return table;
}

IwbPage SvgPageBuilder::build(const QVector<XmlPart> &layers)
{
    for (const XmlPart &layer : layers) {
        children(layer.element, m_page.placeOn(layer.element));
    }
    m_background.finish();
    return m_page.result();
}

IwbPage SvgPageBuilder::build(const QDomElement &page, const QVector<QDomElement> &chosen,
                              const QVector<QDomElement> &backgrounds)
{
    const SvgPlace place = m_page.placeOn(page);
    m_background.setKnown(backgrounds);
    for (const QDomElement &child : chosen) {
        convert(child, place);
    }
    m_background.finish();
    return m_page.result();
}

void SvgPageBuilder::convert(const QDomElement &element, const SvgPlace &outer)
{
    const QString name = svgName(element);
    if (!name.isEmpty() && !isDrawnName(name)) {
        nameWithoutPage(element, name);
        return;
    }
    if (isIwbRecord(element)) {
        return; // which was read before
    }
    const Walk walk = walks().value(name);
    const Reader reader = readers().value(name);
    if (!walk && !reader) {
        m_page.remark(element, say("lessons have nothing like it"));
        return;
    }
    const SvgPlace place = m_page.placeIn(outer, element);
    if (!m_background.take(element, name, place.style)) {
        walk ? (this->*walk)(element, place) : reader(m_page, element, place);
    }
    m_page.remarkOnExtras(element, name);
}

// A set of pages that has none.
void SvgPageBuilder::nameWithoutPage(const QDomElement &element, const QString &name)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull() && name != QLatin1String("defs");
         child = child.nextSiblingElement()) {
        if (isDrawnName(svgName(child))) {
            m_page.remark(child, say("it stands on no page and is left out"));
        }
    }
}

void SvgPageBuilder::children(const QDomElement &holder, const SvgPlace &place)
{
    for (QDomElement child = holder.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (!m_passed.isEmpty() && m_passed.contains(itemOfPart(child.attribute(QStringLiteral("id"))))) {
            m_page.passOver(child);
            continue;
        }
        const QVector<QDomElement> pieces = strokePieces(m_page, child);
        if (pieces.isEmpty()) {
            convert(child, place);
            continue;
        }
        if (!readStroke(m_page, pieces, place)) {
            for (const QDomElement &piece : pieces) {
                convert(piece, place);
            }
        }
        child = pieces.last();
    }
}

void SvgPageBuilder::nestedSvg(const QDomElement &element, const SvgPlace &place)
{
    SvgPlace inner = place;
    const QVector<double> box = svgNumbers(element.attribute(QStringLiteral("viewBox")));
    QTransform fit;
    if (box.size() == 4 && box.at(2) > 0 && box.at(3) > 0) {
        const double width = m_page.length(element, "width", box.at(2));
        const double height = m_page.length(element, "height", box.at(3));
        const double scale = qMin(width / box.at(2), height / box.at(3));
        fit = QTransform::fromTranslate(-box.at(0) - box.at(2) / 2, -box.at(1) - box.at(3) / 2)
            * QTransform::fromScale(scale, scale) * QTransform::fromTranslate(width / 2, height / 2);
    }
    inner.style.matrix =
        fit * QTransform::fromTranslate(m_page.length(element, "x"), m_page.length(element, "y")) * place.style.matrix;
    children(element, inner);
}

// The first that can be shown, alone.
void SvgPageBuilder::alternatives(const QDomElement &element, const SvgPlace &place)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString format = unknownFormat(child);
        if (format.isEmpty()) {
            convert(child, place);
            return;
        }
        const bool hasOther = !child.nextSiblingElement().isNull();
        m_page.remark(child,
                      (hasOther ? say("%1 can't be shown here, and what stands for it is taken")
                                : say("%1 can't be shown here, and nothing stands for it"))
                          .arg(format),
                      !hasOther);
    }
}

void SvgPageBuilder::link(const QDomElement &element, const SvgPlace &place)
{
    const QString id = element.attribute(QStringLiteral("id"));
    const QDomElement only = element.firstChildElement();
    if (!only.isNull() && only.nextSiblingElement().isNull() && !id.isEmpty() && isSignOf(only, id)) {
        readSound(m_page, element, place);
        return;
    }
    if (only.isNull()) {
        if (!element.text().trimmed().isEmpty()) {
            m_page.remark(element, say("it links a text that stands in no text element"));
            return;
        }
        readLinkedFile(m_page, element, place);
        return;
    }
    SvgPlace inner = place;
    inner.link = linkTarget(element);
    inner.leadsOutside = m_page.recordOf(element).isOutside;
    children(element, inner);
}

} // namespace lessonhost
