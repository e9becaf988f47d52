#include "losses/carriedcheck.h"

#include "losses/lossreport.h"

#include <QSet>

#include <algorithm>

namespace lessonhost {

namespace {

// Deeper than this, elements are told apart by their tags alone: lists of points, nodes and texts repeat there.
constexpr int numberedDepth = 2;
constexpr int distinctDepth = 8;
constexpr int distinctSiblings = 3;
constexpr int distinctData = 10;
constexpr int longestDetail = 60;

// Kinds that have no number: an attribute, a row of a list of properties, and what is deeper than distinctDepth.
constexpr int attributeMark = -1;
constexpr int rowMark = -2;
constexpr int deepMark = -3;

QString withoutDigits(const QString &tag)
{
    int end = tag.size();
    while (end > 1 && tag.at(end - 1).isDigit()) {
        --end;
    }
    return tag.left(end);
}

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

// What decides beside the type how the values of an element are read: the kind of a slide's game, and the order of what
// an item's data holds.
QString formOf(const QDomElement &element)
{
    const QDomElement activity = element.firstChildElement(QStringLiteral("activity"));
    QString form = QLatin1Char(' ') + activity.attribute(QStringLiteral("type")) + QLatin1Char(' ');
    QDomElement child = element.firstChildElement(QStringLiteral("data")).firstChildElement();
    for (int i = 0; i < distinctData && !child.isNull(); ++i, child = child.nextSiblingElement()) {
        form += child.tagName() + QLatin1Char(' ');
    }
    return form;
}

// Calls visit(child, step) for each child element.
template <typename Visit> void eachChild(const QDomElement &element, const Visit &visit)
{
    QHash<QString, int> counts;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        const bool isRow = tag == QLatin1String("property");
        visit(child,
              CarriedCheck::Step{tag, isRow ? child.attribute(QStringLiteral("name")) : QString(), ++counts[tag], -1});
    }
}

QString textOf(const CarriedCheck::Step &step, bool isFirst)
{
    const QString end = !step.row.isEmpty() ? QString(QLatin1Char('[') + step.row + QLatin1Char(']'))
        : step.count > 1                    ? QStringLiteral("[%1]").arg(step.count)
                                            : QString();
    return (isFirst ? QString() : QStringLiteral("/")) + step.tag + end;
}

// Calls visit(attribute, text) for each value of the element's own: its attributes, and its text, an empty one where it
// stands alone.
template <typename Visit> void eachValue(const QDomElement &element, bool isOutermost, const Visit &visit)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        if (!attribute.nodeValue().isEmpty()) {
            visit(attribute.nodeName(), attribute.nodeValue());
        }
    }
    const QString text = textOf(element);
    if (!text.isEmpty() || (!isOutermost && attributes.isEmpty() && !element.hasChildNodes())) {
        visit(QString(), text);
    }
}

/*!
 * Another value in the place of one, until the object goes.
 */
class Replacement
{
public:
    // other: null takes the value away.
    Replacement(const QDomElement &element, const QString &attribute, const QString &text, const QString &other)
        : m_element(element)
        , m_attribute(attribute)
        , m_text(text)
    {
        if (!attribute.isEmpty()) {
            if (other.isNull()) {
                m_element.removeAttribute(attribute);
            } else {
                m_element.setAttribute(attribute, other);
            }
        } else if (text.isEmpty() && other.isNull()) {
            m_parent = m_element.parentNode();
            m_next = m_element.nextSibling();
            m_parent.removeChild(m_element);
        } else {
            replaceText(other);
        }
    }
    ~Replacement()
    {
        if (!m_attribute.isEmpty()) {
            m_element.setAttribute(m_attribute, m_text);
        } else if (!m_parent.isNull()) {
            m_next.isNull() ? m_parent.appendChild(m_element) : m_parent.insertBefore(m_element, m_next);
        } else {
            m_element.removeChild(m_newText);
            for (const QDomNode &child : qAsConst(m_children)) {
                m_element.appendChild(child);
            }
        }
    }
    Replacement(const Replacement &) = delete;
    Replacement &operator=(const Replacement &) = delete;

private:
    void replaceText(const QString &text)
    {
        for (QDomNode child = m_element.firstChild(); !child.isNull(); child = child.nextSibling()) {
            m_children.append(child);
        }
        for (const QDomNode &child : qAsConst(m_children)) {
            if (child.isText()) {
                m_element.removeChild(child);
            }
        }
        if (!text.isEmpty()) {
            m_newText = m_element.appendChild(m_element.ownerDocument().createTextNode(text));
        }
    }

    QDomElement m_element;
    QString m_attribute;
    QString m_text;
    QDomNode m_parent; // of an element that is taken away
    QDomNode m_next;
    QVector<QDomNode> m_children; // as they were, where the text is replaced
    QDomNode m_newText;
};

/*!
 * The values of an element in some places. Only the ways to these are gone.
 */
class ValuesInPlaces
{
public:
    void addPlace(const QStringList &path)
    {
        int place = 0;
        for (const QString &step : path) {
            int &next = m_places[{place, step}];
            next = next ? next : m_places.size();
            place = next;
        }
    }

    void find(const QDomElement &element, int place = 0)
    {
        eachValue(element, place == 0, [this, place](const QString &attribute, const QString &text) {
            const int at = attribute.isEmpty() ? place : m_places.value({place, QLatin1Char('@') + attribute}, -1);
            m_texts.insert({at, text});
        });
        eachChild(element, [this, place](const QDomElement &child, const CarriedCheck::Step &step) {
            const auto next = m_places.constFind({place, textOf(step, place == 0)});
            if (next != m_places.constEnd()) {
                find(child, *next);
            }
        });
    }

    //! For a path that was added.
    bool contains(const QStringList &path, const QString &text) const
    {
        int place = 0;
        for (const QString &step : path) {
            place = m_places.value({place, step});
        }
        return m_texts.contains({place, text});
    }

private:
    QHash<QPair<int, QString>, int> m_places; // by the place before the last step and that step; 0 is the element
    QSet<QPair<int, QString>> m_texts; // by the place
};

} // namespace

CarriedCheck::CarriedCheck(LossReport *losses)
    : m_losses(losses)
{
}

void CarriedCheck::examine(const QString &type, const QString &id, const QDomElement &element, const Read &read,
                           const Write &write)
{
    QVector<Value> values;
    Place outermost;
    outermost.kind = kindOf(-1, type + formOf(element), 0);
    outermost.deepKind = outermost.kind;
    m_steps.clear();
    collect(element, outermost, values);
    m_unchanged = {};
    QVector<Value> lost;
    for (const Value &value : qAsConst(values)) {
        if (!isCarried(value, element, read)) {
            lost.append(value);
        }
    }
    if (!lost.isEmpty() && write) {
        ValuesInPlaces written;
        for (const Value &value : qAsConst(lost)) {
            written.addPlace(pathOf(value));
        }
        written.find(write());
        const auto end = std::remove_if(lost.begin(), lost.end(), [this, &written](const Value &value) {
            return written.contains(pathOf(value), value.text);
        });
        lost.erase(end, lost.end());
    }
    for (const Value &value : qAsConst(lost)) {
        Loss loss;
        loss.slide = m_slide;
        loss.itemType = type;
        loss.itemId = id;
        loss.key = pathOf(value).join(QString());
        loss.detail = value.text.left(longestDetail);
        m_losses->add(loss);
    }
}

int CarriedCheck::kindOf(int parent, const QString &name, int number)
{
    const Kind kind{parent, name, number};
    const auto known = m_kinds.constFind(kind);
    if (known != m_kinds.constEnd()) {
        return *known;
    }
    m_kinds.insert(kind, m_answers.size());
    m_answers.append(Unknown);
    return m_answers.size() - 1;
}

int CarriedCheck::kindOfChild(int parent, int depth, const Step &step)
{
    if (depth > distinctDepth) {
        return kindOf(parent, step.tag, deepMark);
    }
    if (depth > numberedDepth) {
        return kindOf(parent, withoutDigits(step.tag), 0);
    }
    return step.row.isEmpty() ? kindOf(parent, step.tag, qMin(step.count, distinctSiblings))
                              : kindOf(parent, step.row, rowMark);
}

// The values that aren't known to be carried.
void CarriedCheck::collect(const QDomElement &element, const Place &place, QVector<Value> &values)
{
    eachValue(element, place.depth == 0, [&](const QString &attribute, const QString &text) {
        const int kind = attribute.isEmpty() ? place.kind : kindOf(place.kind, attribute, attributeMark);
        if (m_answers.at(kind) != Carried) {
            values.append({element, attribute, text, kind, place.step});
        }
    });
    const bool isDeep = place.depth >= distinctDepth;
    eachChild(element, [&](const QDomElement &child, Step step) {
        Place next;
        next.depth = place.depth + 1;
        next.kind = kindOfChild(isDeep ? place.deepKind : place.kind, next.depth, step);
        next.deepKind = isDeep ? place.deepKind : next.kind;
        next.step = m_steps.size();
        step.previous = place.step;
        m_steps.append(step);
        collect(child, next, values);
    });
}

// The steps to a value, such as "data", "/rect", "@points".
QStringList CarriedCheck::pathOf(const Value &value) const
{
    QStringList path;
    if (!value.attribute.isEmpty()) {
        path.append(QLatin1Char('@') + value.attribute);
    }
    for (int step = value.step; step >= 0; step = m_steps.at(step).previous) {
        path.append(textOf(m_steps.at(step), m_steps.at(step).previous < 0));
    }
    std::reverse(path.begin(), path.end());
    return path;
}

bool CarriedCheck::isCarried(const Value &value, const QDomElement &element, const Read &read)
{
    if (m_answers.at(value.kind) == Unknown) {
        if (m_unchanged.isEmpty()) {
            m_unchanged = read(element);
        }
        // A value that is the default makes no difference when it goes, so others are tried as well.
        const QString others[] = {QString(), QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2,3,4,5,6,7")};
        const bool isCarried = std::any_of(std::begin(others), std::end(others), [&](const QString &other) {
            const Replacement replacement(value.element, value.attribute, value.text, other);
            return read(element) != m_unchanged;
        });
        m_answers[value.kind] = isCarried ? Carried : NotCarried;
    }
    return m_answers.at(value.kind) == Carried;
}

} // namespace lessonhost
