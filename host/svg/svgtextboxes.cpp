// SPDX-License-Identifier: MIT
#include "svg/svgtextboxes.h"

#include "lesson/missingfonts.h"
#include "lesson/planegeometry.h"
#include "svg/svggeometry.h"
#include "svg/svgpage.h"
#include "svg/svgtext.h"

namespace lessonhost {

namespace {

SvgText::Kind kindOf(const IwbDocumentRules &rules)
{
    return rules.isNative ? SvgText::Native : rules.isOwn ? SvgText::Own : SvgText::Foreign;
}

// What text and text areas have in common.
void finishText(SvgPage &page, const QDomElement &source, const SvgText &content, const SvgPlace &place,
                IwbElement &item)
{
    content.writeInto(item.element, meanScale(place.style.matrix));
    for (const Sentence &note : content.notes()) {
        page.remark(source, note, false);
    }
    if (item.link.isEmpty()) {
        item.link = content.link();
    } else if (!content.link().isEmpty()) {
        page.remark(source, say("the link of its letters to \"%1\" is left out").arg(content.link()));
    }
}

} // namespace

void readText(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const SvgText content(element, place.style, kindOf(page.rules()), page.remarkAbout(element), page.rules().records);
    IwbElement &item = page.addItem(element, place, QStringLiteral("svg:textarea"));
    const QDomElement firstSpan = element.firstChildElement();
    const QDomElement &anchor = element.hasAttribute(QStringLiteral("y")) || firstSpan.isNull() ? element : firstSpan;
    const QRectF box = content.boxAt(page.length(anchor, "x"), page.length(anchor, "y"));
    const QMap<QString, QString> missing = missingLetters(content.plainText());
    for (auto it = missing.cbegin(); it != missing.cend(); ++it) {
        page.remark(element,
                    say("its size is a guess, as no font here has its %1: install %2")
                        .arg(say(it.key().toLatin1().constData()), it.value()),
                    false);
    }
    page.placeBox(element, item, box, place.style.matrix);
    finishText(page, element, content, place, item);
}

void readTextArea(SvgPage &page, const QDomElement &element, const SvgPlace &place)
{
    const SvgText content(element, place.style, kindOf(page.rules()), page.remarkAbout(element), page.rules().records);
    IwbElement &item = page.addItem(element, place, QStringLiteral("svg:textarea"));
    QRectF box(page.length(element, "x"), page.length(element, "y"), page.length(element, "width"),
               page.length(element, "height"));
    if (!(box.width() > 0)) {
        box.setWidth(content.size().width());
    }
    if (!(box.height() > 0)) {
        box.setHeight(content.size().height());
    }
    page.placeBox(element, item, box, place.style.matrix);
    finishText(page, element, content, place, item);
}

} // namespace lessonhost
