// SPDX-License-Identifier: MIT
#include "losses/carriedcheck.h"

#include "losses/attributes.h"
#include "losses/equivalence.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace lessonhost {

namespace {

constexpr int longestValue = 60;
// Longer ways to a value are told by their two ends, longer names as well: places are told for each value of a deep
// tree.
constexpr int toldPlaces = 64;
constexpr int longestName = 200;
// How far a list is looked through for the next element that came through.
constexpr int furthestPartner = 8;
// An element of more attributes is known from another by its text alone.
constexpr int comparedAttributes = 100;

const QLatin1String rowTag("property");
const QLatin1String labelName("name");

QString textOf(const QDomElement &element)
{
    QString text;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isText()) {
            text += child.nodeValue();
        }
    }
    return text;
}

bool isBare(const QDomElement &element)
{
    return !element.hasAttributes() && !element.hasChildNodes();
}

// True for two trees that say the same, letter for letter and in the same order.
bool isSameTree(const QDomElement &one, const QDomElement &other)
{
    const QDomNamedNodeMap attributes = one.attributes();
    const int count = attributes.count();
    if (other.isNull() || count != other.attributes().count()) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        const QDomNode attribute = attributes.item(i);
        const QString name = attribute.nodeName();
        if (other.attribute(name) != attribute.nodeValue() || !other.hasAttribute(name)) {
            return false;
        }
    }
    QDomNode partner = other.firstChild();
    for (QDomNode node = one.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const bool isSameNode = node.nodeType() == partner.nodeType() && node.nodeName() == partner.nodeName()
            && node.nodeValue() == partner.nodeValue();
        if (!isSameNode || (node.isElement() && !isSameTree(node.toElement(), partner.toElement()))) {
            return false;
        }
        partner = partner.nextSibling();
    }
    return partner.isNull();
}

// True if an element has nothing of its own that another lacks; its children are not looked at.
bool looksLike(const QDomElement &element, const QDomElement &other)
{
    if (textOf(element) != textOf(other)) {
        return false;
    }
    if (element.attributes().count() > comparedAttributes) {
        return true;
    }
    const auto attributes = attributesOf(element);
    return std::all_of(attributes.cbegin(), attributes.cend(), [&other](const QPair<QString, QString> &attribute) {
        return other.attribute(attribute.first) == attribute.second;
    });
}

// False for an element that looks like every other one.
bool saysAnything(const QDomElement &element)
{
    const auto attributes = attributesOf(element);
    return !textOf(element).isEmpty()
        || std::any_of(attributes.cbegin(), attributes.cend(),
                       [](const QPair<QString, QString> &attribute) { return !attribute.second.isEmpty(); });
}

/*!
 * One element and what was written of it, with the way from the outermost element to where the two are compared.
 */
class Comparing
{
public:
    // written: the outermost one.
    Comparing(const SlideLosses &losses, CarriedCheck::Texts texts, const LossOwner &owner, const QDomElement &written)
        : m_losses(losses)
        , m_texts(texts)
        , m_owner(owner)
        , m_written(written)
    {
    }

    void compare(const QDomElement &read, const QDomElement &written)
    {
        compareAttributes(read, written);
        compareContent(read, written);
    }

    void compareContent(const QDomElement &read, const QDomElement &written)
    {
        QString text;
        QVector<Child> children;
        Counts counts;
        for (QDomNode node = read.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.isElement()) {
                const QDomElement child = node.toElement();
                const QString tag = child.tagName();
                const QString label = labelOf(child, tag);
                children.append({child, {tag, label, counts.next(tag, label)}});
            } else if (node.isText()) {
                text += node.nodeValue();
            }
        }
        if (!text.isEmpty()) {
            compareValue(read, {}, text, textOf(written));
        }
        if (written.isNull() && isBare(read) && !standsOtherwise(read)) {
            lose({}, {});
        }
        if (!children.isEmpty() && !compareInOrder(children, written)) {
            compareLines(children, written);
        }
    }

    void compareValue(const QDomElement &element, const QString &attribute, const QString &given, const QString &found)
    {
        if (given == found) {
            return;
        }
        if (m_texts == CarriedCheck::InOwnWords) {
            if (!given.isEmpty()) {
                lose(attribute, given);
            }
            return;
        }
        const QString tag = m_steps.isEmpty() ? QString() : element.tagName();
        const QString parent = m_steps.size() < 2 ? QString() : m_steps.at(m_steps.size() - 2).tag;
        const XmlPlace place{parent, tag, attribute};
        const QString implied = impliedText(place);
        const QString meant = given.isEmpty() ? implied : given;
        if (!meant.isEmpty() && !isSameText(formOfPlace(place), meant, found.isEmpty() ? implied : found)) {
            lose(attribute, given);
        }
    }

private:
    struct Step
    {
        QString tag;
        QString label; // of a row in a list of properties
        int count; // how many of the tag, or rows of the label, there are up to this one
    };

    struct Child
    {
        QDomElement element;
        Step step;
    };

    // Children of one parent that stand for each other by their order: those of a tag, rows those of a label.
    struct Line
    {
        QVector<Child> read;
        QVector<QDomElement> written;
    };

    /*!
     * How many of a tag, or rows of a label, have come up.
     */
    class Counts
    {
    public:
        int next(const QString &tag, const QString &label)
        {
            const QString name = label.isEmpty() ? tag : QString(tag + QLatin1Char(' ') + label);
            if (name != m_last) {
                if (m_count > 0) {
                    m_counts.insert(m_last, m_count);
                }
                m_last = name;
                m_count = m_counts.isEmpty() ? 0 : m_counts.value(name);
            }
            return ++m_count;
        }

    private:
        QHash<QString, int> m_counts; // of all but the last name
        QString m_last;
        int m_count = 0;
    };

    static QString labelOf(const QDomElement &child, const QString &tag)
    {
        return tag == rowTag ? child.attribute(labelName) : QString();
    }

    // The tags of several children of the outermost element. Of those a reader takes the first that has children of its
    // own for some values and the first that has none for others, and a writer may put them the other way round.
    QSet<QString> mixedTags(const QVector<Child> &children, const QDomElement &written) const
    {
        QSet<QString> mixed;
        if (m_steps.isEmpty()) {
            for (const Child &child : children) {
                const QString tag = child.step.tag;
                if (child.step.count > 1 || !written.firstChildElement(tag).nextSiblingElement(tag).isNull()) {
                    mixed.insert(tag);
                }
            }
        }
        return mixed;
    }

    static QString lineOf(const QDomElement &child, const QString &tag, const QString &label,
                          const QSet<QString> &mixedTags)
    {
        QString line = tag;
        if (!label.isEmpty()) {
            line += QLatin1Char(' ') + label;
        } else if (!child.hasChildNodes() && mixedTags.contains(tag)) {
            line += QLatin1Char('/');
        }
        return line;
    }

    // A child of the outermost element is also there if the written one has something in it.
    bool standsOtherwise(const QDomElement &read) const
    {
        return m_steps.isEmpty() || (m_steps.size() == 1 && !m_written.firstChildElement(read.tagName()).isNull());
    }

    void compareAttributes(const QDomElement &read, const QDomElement &written)
    {
        const bool isRow = !m_steps.isEmpty() && !m_steps.last().label.isEmpty();
        const bool isEmptyRow = isRow && read.attribute(QStringLiteral("value")).isEmpty();
        const auto attributes = attributesOf(read);
        const auto others = attributesOf(written);
        // As a rule, the written element has the same ones in the same order.
        const bool arePaired = std::equal(attributes.cbegin(), attributes.cend(), others.cbegin(), others.cend(),
                                          [](const auto &one, const auto &other) { return one.first == other.first; });
        for (int i = 0; i < attributes.size(); ++i) {
            const auto &[name, value] = attributes.at(i);
            // A label says nothing without a value.
            if (!(isEmptyRow && name == labelName)) {
                compareValue(read, name, value, arePaired ? others.at(i).second : written.attribute(name));
            }
        }
        for (const auto &[name, value] : others) {
            if (!arePaired && !read.hasAttribute(name)) {
                compareValue(read, name, {}, value);
            }
        }
    }

    // The written element has the same children in the same order, and perhaps some behind them, in most cases. False
    // where it hasn't; then nothing is compared.
    bool compareInOrder(const QVector<Child> &children, const QDomElement &written)
    {
        QVector<QDomElement> partners;
        partners.reserve(children.size());
        QDomElement partner = written.firstChildElement();
        for (const Child &child : children) {
            const QString tag = partner.tagName();
            if (child.step.tag != tag || child.step.label != labelOf(partner, tag)
                || child.element.hasChildNodes() != partner.hasChildNodes()) {
                return false;
            }
            partners.append(partner);
            partner = partner.nextSiblingElement();
        }
        for (int i = 0; i < children.size(); ++i) {
            compareChild(children.at(i), partners.at(i));
        }
        return true;
    }

    void compareLines(const QVector<Child> &children, const QDomElement &written)
    {
        const QSet<QString> mixed = mixedTags(children, written);
        QVector<Line> lines;
        QHash<QString, int> indexes;
        for (const Child &child : children) {
            int &index = indexes[lineOf(child.element, child.step.tag, child.step.label, mixed)]; // from 1 on
            if (index == 0) {
                lines.append(Line());
                index = lines.size();
            }
            lines[index - 1].read.append(child);
        }
        QDomElement partner = written.firstChildElement();
        for (; !partner.isNull(); partner = partner.nextSiblingElement()) {
            const QString tag = partner.tagName();
            const int index = indexes.value(lineOf(partner, tag, labelOf(partner, tag), mixed));
            if (index > 0) {
                lines[index - 1].written.append(partner);
            }
        }
        for (const Line &line : qAsConst(lines)) {
            compareLine(line);
        }
    }

    // Where some are missing, the others are told by what they hold, so that a missing one doesn't shift them.
    void compareLine(const Line &line)
    {
        int missing = qMax(0, line.read.size() - line.written.size());
        int next = 0;
        for (int i = 0; i < line.read.size(); ++i) {
            const QDomElement partner = line.written.value(next);
            if (missing > 0 && isRatherALaterOne(line, i, partner, missing)) {
                compareChild(line.read.at(i), {});
                --missing;
            } else {
                compareChild(line.read.at(i), partner);
                ++next;
            }
        }
    }

    static bool isRatherALaterOne(const Line &line, int place, const QDomElement &partner, int missing)
    {
        if (partner.isNull() || looksLike(line.read.at(place).element, partner)) {
            return false;
        }
        for (int i = 1; i <= qMin(missing, furthestPartner); ++i) {
            const QDomElement later = line.read.at(place + i).element;
            if (saysAnything(later) && looksLike(later, partner)) {
                return true;
            }
        }
        return false;
    }

    void compareChild(const Child &child, const QDomElement &written)
    {
        // Most children of an item came through whole. Further down it would be asked on each level.
        if (m_steps.isEmpty() && isSameTree(child.element, written)) {
            return;
        }
        m_steps.append(child.step);
        compare(child.element, written);
        m_steps.removeLast();
    }

    static QString shortened(const QString &name)
    {
        return name.size() <= longestName
            ? name
            : name.left(longestName / 2) + QLatin1String("...") + name.right(longestName / 2);
    }

    // "data/rect@points", "properties/property[Color][2]@value".
    QString placeOf(const QString &attribute) const
    {
        QString place;
        for (int i = 0; i < m_steps.size(); ++i) {
            if (i == toldPlaces / 2 && m_steps.size() > toldPlaces) {
                place += QLatin1String("/...");
                i = m_steps.size() - toldPlaces / 2;
            }
            const Step &step = m_steps.at(i);
            place += (place.isEmpty() ? QString() : QStringLiteral("/")) + shortened(step.tag);
            if (!step.label.isEmpty()) {
                place += QLatin1Char('[') + shortened(step.label) + QLatin1Char(']');
            }
            if (step.count > 1) {
                place += QStringLiteral("[%1]").arg(step.count);
            }
        }
        return attribute.isEmpty() ? place : place + QLatin1Char('@') + shortened(attribute);
    }

    void lose(const QString &attribute, const QString &value)
    {
        m_losses.value(m_owner, placeOf(attribute), Sentence(value.left(longestValue)));
    }

    SlideLosses m_losses;
    CarriedCheck::Texts m_texts;
    LossOwner m_owner;
    QDomElement m_written; // outermost
    QVector<Step> m_steps;
};

} // namespace

CarriedCheck::CarriedCheck(const SlideLosses &losses, Texts texts)
    : m_losses(losses)
    , m_texts(texts)
{
}

void CarriedCheck::compare(const LossOwner &owner, const QDomElement &read, const QDomElement &written) const
{
    Comparing(m_losses, m_texts, owner, written).compare(read, written);
}

void CarriedCheck::compareAttribute(const LossOwner &owner, const QString &name, const QString &given,
                                    const QString &found) const
{
    if (given != found) {
        Comparing(m_losses, m_texts, owner, {}).compareValue({}, name, given, found);
    }
}

void CarriedCheck::compareContent(const LossOwner &owner, const QDomElement &read, const QDomElement &written) const
{
    Comparing(m_losses, m_texts, owner, written).compareContent(read, written);
}

} // namespace lessonhost
