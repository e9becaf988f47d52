// SPDX-License-Identifier: MIT
#include "svg/svgnames.h"

#include "lesson/isoneof.h"

#include <algorithm>
#include <iterator>

namespace lessonhost {

namespace {

// Elements that show nothing by themselves.
constexpr const char *silentElements[] = {"defs", "pageset", "pageSet", "page"};

// Of a name that begins with a prefix.
QString localNameOf(const QString &name)
{
    return name.mid(name.indexOf(QLatin1Char(':')) + 1);
}

// What declares the prefix of a name. Most have this one or none.
QString declarationOf(const QString &name)
{
    const int colon = name.indexOf(QLatin1Char(':'));
    if (colon <= 0) {
        return QStringLiteral("xmlns");
    }
    if (name.leftRef(colon) == QLatin1String("svg")) {
        return QStringLiteral("xmlns:svg");
    }
    return QLatin1String("xmlns:") + name.leftRef(colon);
}

// The namespace of an element, or an empty text.
QString namespaceOf(const QDomElement &element)
{
    const QString declaration = declarationOf(element.tagName());
    for (QDomElement at = element; !at.isNull(); at = at.parentNode().toElement()) {
        if (at.hasAttribute(declaration)) {
            return at.attribute(declaration);
        }
    }
    return {};
}

struct Vocabulary
{
    QLatin1String prefix;
    QLatin1String namespacePart;
};
const Vocabulary svgVocabulary{QLatin1String("svg"), QLatin1String("www.w3.org/2000/svg")};
// Two bodies have published the format, with dates and versions in the name.
const Vocabulary iwbVocabularies[] = {{QLatin1String("iwb"), QLatin1String("imsglobal.org/xsd/iwb")},
                                      {QLatin1String("iwb"), QLatin1String("becta.org.uk/iwb")}};

// Whether an element with a name and a namespace is of a vocabulary.
bool isOf(const QString &name, const QString &uri, const Vocabulary &vocabulary)
{
    if (uri.isEmpty()) {
        const int colon = name.indexOf(QLatin1Char(':'));
        return colon <= 0 || name.leftRef(colon) == vocabulary.prefix;
    }
    return uri.contains(vocabulary.namespacePart);
}

QDomElement neighbor(QDomElement element, bool isBehind)
{
    const auto sibling = [isBehind](const QDomElement &at) {
        return isBehind ? at.nextSiblingElement() : at.previousSiblingElement();
    };
    while (true) {
        QDomElement next = sibling(element);
        while (isPlainGroup(next)) {
            const QDomElement inner = isBehind ? next.firstChildElement() : next.lastChildElement();
            next = inner.isNull() ? sibling(next) : inner;
        }
        const QDomElement parent = element.parentNode().toElement();
        if (!next.isNull() || !isPlainGroup(parent)) {
            return next;
        }
        element = parent;
    }
}

} // namespace

QString svgName(const QDomElement &element)
{
    const QString name = element.tagName();
    return isOf(name, namespaceOf(element), svgVocabulary) ? localNameOf(name) : QString();
}

bool isSvg(const QDomElement &element, QLatin1String name)
{
    const QString tag = element.tagName();
    return tag.midRef(tag.indexOf(QLatin1Char(':')) + 1) == name && isOf(tag, namespaceOf(element), svgVocabulary);
}

QString iwbName(const QDomElement &element)
{
    const QString name = element.tagName();
    const QString uri = namespaceOf(element);
    const bool isIwb = std::any_of(std::begin(iwbVocabularies), std::end(iwbVocabularies),
                                   [&](const Vocabulary &vocabulary) { return isOf(name, uri, vocabulary); });
    return isIwb ? localNameOf(name) : QString();
}

bool isDrawnName(const QString &name)
{
    return !name.isEmpty() && !isOneOf(silentElements, name);
}

bool isIwbRecord(const QDomElement &element)
{
    return isOneOf(iwbRecordNames, localNameOf(element.tagName())) && !iwbName(element).isEmpty()
        && svgName(element).isEmpty();
}

bool isPlainGroup(const QDomElement &element)
{
    if (!isSvg(element, QLatin1String("g"))) {
        return false;
    }
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        if (!attributes.item(i).nodeName().startsWith(QLatin1String("xmlns"))) {
            return false;
        }
    }
    return true;
}

QDomElement elementBehind(const QDomElement &element)
{
    return neighbor(element, true);
}

QDomElement elementBefore(const QDomElement &element)
{
    return neighbor(element, false);
}

// Without a call for each level.
QVector<QDomElement> childrenThroughGroups(const QDomElement &holder,
                                           const std::function<bool(const QDomElement &)> &opens)
{
    QVector<QDomElement> children;
    QDomElement parent = holder;
    QDomElement child = holder.firstChildElement();
    while (true) {
        if (child.isNull()) {
            if (parent == holder) {
                return children;
            }
            child = parent.nextSiblingElement();
            parent = parent.parentNode().toElement();
        } else if (isPlainGroup(child) && opens(child)) {
            parent = child;
            child = child.firstChildElement();
        } else {
            children.append(child);
            child = child.nextSiblingElement();
        }
    }
}

QString linkTarget(const QDomElement &element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    QString plain;
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (localNameOf(attribute.name()) != QLatin1String("href")) {
            continue;
        }
        if (attribute.name() != QLatin1String("href")) {
            return attribute.value();
        }
        plain = attribute.value();
    }
    return plain;
}

} // namespace lessonhost
