// SPDX-License-Identifier: MIT
#include "svg/iwboutline.h"

#include "lesson/isoneof.h"
#include "lesson/numbertexts.h"
#include "svg/svgnames.h"
#include "svg/svgvalues.h"

#include <QMap>

namespace lessonhost {

namespace {

// A page that tells no size is as large as the editor's page for lessons in the shape 4:3.
const QSizeF usualPage(1440, 1080);

bool isTrue(const QString &text)
{
    return text == QLatin1String("true") || text == QLatin1String("1");
}

bool isPageSet(const QString &name)
{
    return name == QLatin1String("pageSet") || name == QLatin1String("pageset");
}

QString idOf(const QDomElement &element)
{
    return element.attribute(QStringLiteral("id"));
}

QString refOf(const QDomElement &row)
{
    return row.attribute(QStringLiteral("ref"));
}

} // namespace

void IwbOutline::beginDocument()
{
    *this = IwbOutline();
}

XmlVisitor::Way IwbOutline::begin(const QDomElement &element)
{
    m_isInPage = false;
    m_passedGroup = 0;
    if (m_root.isNull()) {
        m_root = element;
        m_rootTag = element.tagName();
        m_rules.isIwb = iwbName(element) == QLatin1String("iwb");
        m_hasKnownRoot = m_rules.isIwb || svgName(element) == QLatin1String("svg");
    }
    const QDomElement holder = element.parentNode().toElement();
    if (!m_groups.isEmpty() && m_groups.last() == holder) {
        m_rules.groups.insert(refOf(element), m_groupNumbers.last());
        return beginRecord(element);
    }
    if (!m_section.isNull()) {
        return beginInSection(element);
    }
    if (beginsSection(element)) {
        beginSection(element);
        return Inside;
    }
    if (element == m_root) {
        return Inside;
    }
    if (holder == m_root || isIwbRecord(element)) {
        return beginRecord(element);
    }
    // The first svg element may stand anywhere.
    return m_hasSvg ? Past : Inside;
}

XmlVisitor::Fate IwbOutline::end(const QDomElement &element)
{
    if (!m_groups.isEmpty() && m_groups.last() == element) {
        m_groups.removeLast();
        m_groupNumbers.removeLast();
    }
    if (element == m_section) {
        m_section.clear();
        if (m_layersInSection == 0) {
            for (const QString &id : qAsConst(m_strayRectangles)) {
                m_rectangles.append({m_partCount, id});
            }
            addLayer(element);
            return LatePart;
        }
        m_layerRemarks += m_strays;
        return Kept;
    }
    const bool isAroundParts = element == m_root || element == m_sectionHolder || !m_section.isNull();
    return isAroundParts || element.hasChildNodes() ? Kept : Dropped;
}

void IwbOutline::pass(const Passed &passed)
{
    m_passedGroup = passed.level > m_passedGroup ? m_passedGroup : 0;
    const QString name = passed.name.mid(passed.name.indexOf(QLatin1Char(':')) + 1);
    const bool isRectangle = m_isInPage && passed.level == 1 && name == QLatin1String("rect");
    if (isRectangle || isOneOf(iwbRecordNames, name)) {
        lookAt(passed.node(), passed.level);
    }
    const QString id = passed.attribute(QLatin1String("id"));
    rememberPage(QStringRef(&id));
}

// Which of a page's rectangles is its background is known when all records are. Some of these may stand within a page.
void IwbOutline::lookAt(const QDomElement &element, int level)
{
    m_passedGroup = level > m_passedGroup ? m_passedGroup : 0;
    if (m_isInPage && level == 1 && svgName(element) == QLatin1String("rect") && !idOf(element).isEmpty()) {
        m_rectangles.append({m_partCount - 1, idOf(element)});
    }
    if (!isIwbRecord(element)) {
        return;
    }
    if (m_passedGroup > 0) {
        m_rules.groups.insert(refOf(element), m_groupCount - 1);
    }
    if (iwbName(element) == QLatin1String("group")) {
        m_passedGroup = level;
        ++m_groupCount;
    } else {
        beginRecord(element);
    }
}

// All identifiers of a large document would take more than its largest page.
void IwbOutline::rememberPage(const QStringRef &id)
{
    if (!id.isEmpty() && !m_section.isNull()) {
        m_elementPages.insert(markOf(id), qMax(0, m_layersInSection - 1));
    }
}

quint64 IwbOutline::markOf(const QStringRef &id)
{
    return (quint64(qHash(id, 1)) << 32) | qHash(id, 2);
}

void IwbOutline::finish()
{
    m_rules.hasPlainTurns = isOwn();
    m_rules.isOwn = isOwn() && !m_rules.isNative;
    QHash<int, QString> backgrounds;
    for (const Rectangle &rectangle : qAsConst(m_rectangles)) {
        const auto record = m_rules.records.constFind(rectangle.id);
        if (record != m_rules.records.constEnd() && record->isBackground && !backgrounds.contains(rectangle.part)) {
            backgrounds.insert(rectangle.part, rectangle.id);
        }
    }
    m_rectangles = {};
    m_strays = {};
    m_strayRectangles = {};
    m_root.clear();
    m_sectionHolder.clear();
    const QLatin1String ending("_rect");
    for (Page &page : m_pages) {
        for (const int part : qAsConst(page.layers)) {
            const auto id = backgrounds.constFind(part);
            if (id != backgrounds.constEnd()) {
                page.backgroundName = id->endsWith(ending) ? id->chopped(ending.size()) : QString();
                break;
            }
        }
    }
}

// Some programs write a section for each layer of the pages.
bool IwbOutline::beginsSection(const QDomElement &element) const
{
    return svgName(element) == QLatin1String("svg")
        && (!m_hasSvg || element.parentNode().toElement() == m_sectionHolder);
}

void IwbOutline::beginSection(const QDomElement &section)
{
    if (!m_hasSvg) {
        m_hasSvg = true;
        m_sectionHolder = section.parentNode().toElement();
        m_svgId = idOf(section);
        m_rules.isNative = section.attribute(QStringLiteral("version")) == QLatin1String("tesselmark");
        readSize(section);
    }
    m_section = section;
    m_layersInSection = 0;
    m_strays.clear();
    m_strayRectangles.clear();
}

XmlVisitor::Way IwbOutline::beginInSection(const QDomElement &element)
{
    const QString name = svgName(element);
    const QString id = idOf(element);
    if (isIwbRecord(element)) {
        return beginRecord(element);
    }
    if (name == QLatin1String("page")) {
        addLayer(element);
        m_isInPage = true;
        return Part;
    }
    if (isPageSet(name)) {
        return Inside;
    }
    rememberPage(QStringRef(&id));
    if (isDrawnName(name)) {
        m_strays.append({name, id, say("it stands on no page and is left out")});
    }
    if (element.parentNode() == m_section && name == QLatin1String("rect")) {
        m_strayRectangles.append(id);
    }
    return Past;
}

void IwbOutline::addLayer(const QDomElement &page)
{
    if (m_layersInSection == m_pages.size()) {
        m_pages.append({idOf(page), {}, {}});
    }
    m_pages[m_layersInSection].layers.append(m_partCount);
    ++m_layersInSection;
    ++m_partCount;
}

void IwbOutline::readSize(const QDomElement &svg)
{
    QVector<double> box = svgNumbers(svg.attribute(QStringLiteral("viewBox")));
    if (box.size() != 4) {
        box = svgNumbers(svg.attribute(QStringLiteral("viewbox")));
    }
    if (box.size() == 4 && box.at(2) > 0 && box.at(3) > 0) {
        m_rules.viewBox = QRectF(box.at(0), box.at(1), box.at(2), box.at(3));
        return;
    }
    const auto width = svgLength(svg.attribute(QStringLiteral("width")));
    const auto height = svgLength(svg.attribute(QStringLiteral("height")));
    if (width && height && *width > 0 && *height > 0) {
        m_rules.viewBox = QRectF(0, 0, *width, *height);
        return;
    }
    m_rules.viewBox = QRectF(QPointF(), usualPage);
    m_sizeRemarks.append({QStringLiteral("svg"), {}, say("the file tells no page size; 1440 x 1080 was taken"), false});
}

XmlVisitor::Way IwbOutline::beginRecord(const QDomElement &row)
{
    const QString name = iwbName(row);
    if (name == QLatin1String("element") || name == QLatin1String("tspan") || name == QLatin1String("link")) {
        readRecord(row);
    } else if (name == QLatin1String("group")) {
        m_groups.append(row);
        m_groupNumbers.append(m_groupCount++);
        return Inside;
    } else if (name == QLatin1String("meta")) {
        m_meta.insert(row.attribute(QStringLiteral("name")), row.attribute(QStringLiteral("content")));
    } else if (svgName(row) != QLatin1String("svg")) {
        m_recordRemarks.append({row.tagName(), row.attribute(QStringLiteral("ref"), idOf(row)),
                                say("lessons have no such record"), false});
    }
    return m_hasSvg ? Past : Inside;
}

// Written by this system, which says so before all else.
bool IwbOutline::isOwn() const
{
    return m_meta.value(QStringLiteral("creator")).startsWith(QLatin1String("lessonconv "));
}

// What a record says that no item has, and the value of each that says nothing.
void IwbOutline::nameUnread(const QDomElement &row)
{
    constexpr const char *read[] = {"ref",        "locked",          "replicate",
                                    "background", "backgorund",      "background-posture",
                                    "flip",       "revealer",        "freehand",
                                    "highlight",  "background-fill", "highlight-fill",
                                    "type",       "list-style-type", "list-style-type-fill",
                                    "file"};
    const QDomNamedNodeMap attributes = row.attributes();
    QMap<QString, QString> unread; // in the same order each time
    for (int i = 0; i < attributes.size(); ++i) {
        const QString name = attributes.item(i).nodeName();
        const QString value = attributes.item(i).nodeValue();
        const bool isShape = name.startsWith(QLatin1String("stroke-lineshape"));
        const bool isPlain = value.isEmpty() || value == QLatin1String("none")
            || (isShape ? value == QLatin1String("arrow") || isOwn()
                        : name == QLatin1String("editable") && value == QLatin1String("true"));
        if (!isOneOf(read, name) && !isPlain && !name.startsWith(QLatin1String("xmlns"))) {
            unread.insert(name, value);
        }
    }
    for (auto it = unread.cbegin(); it != unread.cend(); ++it) {
        m_recordRemarks.append({QLatin1String("iwb:") + iwbName(row), refOf(row),
                                say("%1 \"%2\" is left out").arg(it.key(), it.value().left(80)), false});
    }
}

// Of two records of one element, the later says what it says.
void IwbOutline::readRecord(const QDomElement &row)
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
    readText("highlight-fill", record.highlightFill);
    readText("list-style-type", record.listMarks);
    readText("list-style-type-fill", record.listMarkFill);
    const QString type = row.attribute(QStringLiteral("type"));
    record.isList = type.isEmpty() ? record.isList : type == QLatin1String("list");
    const QString file = row.attribute(QStringLiteral("file"));
    record.isOutside = file.isEmpty() ? record.isOutside : file == QLatin1String("external");
    nameUnread(row);
    const QString flip = row.attribute(QStringLiteral("flip"));
    if (!flip.isEmpty()) {
        record.flipsAcross = flip == QLatin1String("horizontal") || flip == QLatin1String("both");
        record.flipsDown = flip == QLatin1String("vertical") || flip == QLatin1String("both");
    }
}

QDomElement IwbOutline::sizeElement(QDomDocument &document) const
{
    QDomElement element = document.createElement(QStringLiteral("svg:svg"));
    document.appendChild(element);
    element.setAttribute(QStringLiteral("width"), numberText(m_rules.viewBox.width(), 10));
    element.setAttribute(QStringLiteral("height"), numberText(m_rules.viewBox.height(), 10));
    const QString id = m_meta.value(QLatin1String(identifierMeta), m_svgId);
    if (!id.isEmpty()) {
        element.setAttribute(QStringLiteral("id"), id);
    }
    return element;
}

int IwbOutline::groupOf(const QString &id) const
{
    for (const char *ending : {"", soundSign, filmSign}) {
        const auto group = m_rules.groups.constFind(id + QLatin1String(ending));
        if (group != m_rules.groups.constEnd()) {
            return *group;
        }
    }
    return -1;
}

} // namespace lessonhost
