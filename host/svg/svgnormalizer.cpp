// SPDX-License-Identifier: MIT
#include "svg/svgnormalizer.h"

#include "svg/svgnames.h"
#include "svg/svgpagebuilder.h"
#include "svg/svgvalues.h"

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

bool isPageSet(const QString &name)
{
    return name == QLatin1String("pageSet") || name == QLatin1String("pageset");
}

void findPages(const QDomElement &holder, QVector<QDomElement> &pages)
{
    for (QDomElement child = holder.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString name = svgName(child);
        if (name == QLatin1String("page")) {
            pages.append(child);
        } else if (isPageSet(name)) {
            findPages(child, pages);
        }
    }
}

} // namespace

SvgNormalizer::SvgNormalizer(const QDomElement &root)
    : m_svg(findSvg(root))
{
    if (m_svg.isNull()) {
        return;
    }
    m_rules.isNative = m_svg.attribute(QStringLiteral("version")) == QLatin1String("tesselmark");
    m_rules.isIwb = iwbName(root) == QLatin1String("iwb");
    readSize();
    if (root != m_svg) {
        readRecords(root);
    }
    m_rules.hasPlainTurns = m_meta.value(QStringLiteral("creator")).startsWith(QLatin1String("lessonconv "));
    // Some programs write a section for each layer of the pages.
    for (QDomElement section = m_svg; !section.isNull(); section = section.nextSiblingElement()) {
        if (svgName(section) == QLatin1String("svg")) {
            addLayer(section);
        }
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

void SvgNormalizer::addLayer(const QDomElement &section)
{
    QVector<QDomElement> pages;
    findPages(section, pages);
    if (pages.isEmpty()) {
        pages.append(section);
    } else {
        for (QDomElement child = section.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            if (SvgPageBuilder::isDrawn(svgName(child))) {
                m_remarks.append({svgName(child), child.attribute(QStringLiteral("id")),
                                  QStringLiteral("it stands on no page and is left out")});
            }
        }
    }
    for (int i = 0; i < pages.size(); ++i) {
        if (i == m_pages.size()) {
            m_pages.append(QVector<QDomElement>());
        }
        m_pages[i].append(pages.at(i));
    }
}

void SvgNormalizer::readRecords(const QDomElement &holder)
{
    for (QDomElement row = holder.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        const QString name = iwbName(row);
        if (name == QLatin1String("element")) {
            readRecord(row);
        } else if (name == QLatin1String("group")) {
            const int number = m_groupCount++;
            for (QDomElement member = row.firstChildElement(); !member.isNull(); member = member.nextSiblingElement()) {
                m_rules.groups.insert(member.attribute(QStringLiteral("ref")), number);
            }
            readRecords(row);
        } else if (name == QLatin1String("meta")) {
            m_meta.insert(row.attribute(QStringLiteral("name")), row.attribute(QStringLiteral("content")));
        } else if (name != QLatin1String("link") && svgName(row) != QLatin1String("svg")) {
            m_remarks.append({row.tagName(), row.attribute(QStringLiteral("ref"), row.attribute(QStringLiteral("id"))),
                              QStringLiteral("lessons have no such record"), false});
        }
    }
}

// Of two records of one element, the later says what it says.
void SvgNormalizer::readRecord(const QDomElement &row)
{
    IwbRecord &record = m_rules.records[row.attribute(QStringLiteral("ref"))];
    const auto readFlag = [&row](const char *name, bool &flag) {
        const QString text = row.attribute(QLatin1String(name));
        flag = text.isEmpty() ? flag : isTrue(text);
    };
    const auto readText = [&row](const char *name, QString &text) { text = row.attribute(QLatin1String(name), text); };
    // The plug-in writes the attribute with a slip of the pen.
    readFlag("backgorund", record.isBackground);
    readFlag("background", record.isBackground);
    record.refusesPicture = row.attribute(QStringLiteral("background")) == QLatin1String("false")
        || (record.refusesPicture && !row.hasAttribute(QStringLiteral("background")));
    readFlag("locked", record.isLocked);
    readFlag("replicate", record.isEndless);
    readFlag("revealer", record.isRevealer);
    readFlag("freehand", record.isFreehand);
    readFlag("highlight", record.isHighlight);
    readText("stroke-lineshape-start", record.startShape);
    readText("stroke-lineshape-end", record.endShape);
    readText("background-posture", record.posture);
    readText("background-fill", record.textFill);
    const QString flip = row.attribute(QStringLiteral("flip"));
    if (!flip.isEmpty()) {
        record.flipsAcross = flip == QLatin1String("horizontal") || flip == QLatin1String("both");
        record.flipsDown = flip == QLatin1String("vertical") || flip == QLatin1String("both");
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

QString SvgNormalizer::pageId(int index) const
{
    return m_pages.at(index).first().attribute(QStringLiteral("id"));
}

QString SvgNormalizer::backgroundName(int index) const
{
    const QLatin1String ending("_rect");
    for (const QDomElement &page : m_pages.at(index)) {
        for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            const QString id = child.attribute(QStringLiteral("id"));
            if (svgName(child) == QLatin1String("rect") && m_rules.records.value(id).isBackground) {
                return id.endsWith(ending) ? id.chopped(ending.size()) : QString();
            }
        }
    }
    return {};
}

IwbPage SvgNormalizer::page(int index) const
{
    return SvgPageBuilder(m_rules).build(m_pages.at(index));
}

IwbPage SvgNormalizer::page(int index, const QVector<QDomElement> &children) const
{
    return SvgPageBuilder(m_rules).build(m_pages.at(index).first(), children);
}

} // namespace lessonhost
