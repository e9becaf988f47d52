// SPDX-License-Identifier: MIT
#include "render/drawntexts.h"

#include <QSet>

namespace lessonhost {

namespace {

// The family that is asked for first stands at the beginning of the style.
QString familyIn(const QString &style)
{
    const QLatin1String start("font-family:");
    const QString family = style.startsWith(start)
        ? style.mid(start.size()).section(QLatin1Char(','), 0, 0).section(QLatin1Char(';'), 0, 0)
        : QString();
    return family.trimmed().remove(QLatin1Char('\''));
}

} // namespace

DrawnTexts DrawnTexts::of(const QDomElement &svg)
{
    DrawnTexts drawn;
    QSet<QString> styles;
    const auto lookAt = [&](const QDomElement &element) {
        const QString style = element.attribute(QStringLiteral("style"));
        if (style.isEmpty() || styles.contains(style)) {
            return;
        }
        styles.insert(style);
        const QString family = familyIn(style);
        if (!family.isEmpty() && !drawn.families.contains(family)) {
            drawn.families.append(family);
        }
    };
    const QDomNodeList texts = svg.elementsByTagName(QStringLiteral("text"));
    for (int i = 0; i < texts.size(); ++i) {
        const QDomElement text = texts.at(i).toElement();
        const QString words = text.text();
        drawn.words.append(words);
        if (!text.parentNode().toElement().hasAttribute(QStringLiteral("xml:lang"))) {
            drawn.language.add(words);
        }
        lookAt(text);
        for (QDomElement span = text.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
            lookAt(span);
        }
    }
    return drawn;
}

} // namespace lessonhost
