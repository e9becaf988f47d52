// SPDX-License-Identifier: MIT
#include "files/domtools.h"

#include <QDomDocument>

namespace lessonhost {

QString bareName(const QString &name)
{
    return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1);
}

QDomElement childWithContent(const QDomElement &parent, const QString &tag, bool withChildren)
{
    for (QDomElement child = parent.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag)) {
        if (child.hasChildNodes() == withChildren) {
            return child;
        }
    }
    return {};
}

QDomElement looseElement(const QString &tag)
{
    // An element that was never attached would keep a pointer to a document that is gone; this one forgets it.
    QDomDocument document;
    document.appendChild(document.createElement(tag));
    return document.documentElement();
}

QVector<QDomElement> takeElements(QDomElement parent, QDomElement first)
{
    QVector<QDomElement> elements;
    while (!first.isNull()) {
        const QDomElement next = first.nextSiblingElement();
        elements.append(first);
        parent.removeChild(first);
        first = next;
    }
    return elements;
}

int elementDepth(const QDomElement &root)
{
    int depth = 1;
    int deepest = 1;
    QDomElement element = root;
    while (true) {
        QDomElement next = element.firstChildElement();
        if (!next.isNull()) {
            ++depth;
            deepest = qMax(deepest, depth);
        } else {
            while (depth > 1 && (next = element.nextSiblingElement()).isNull()) {
                element = element.parentNode().toElement();
                --depth;
            }
            if (depth == 1) {
                return deepest;
            }
        }
        element = next;
    }
}

} // namespace lessonhost
