// SPDX-License-Identifier: MIT
#include "documentdifference.h"

#include "valuerest.h"

#include <QColor>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>

namespace {

bool isItem(const QDomElement &element)
{
    const QDomElement parent = element.parentNode().toElement();
    return parent.tagName() == "items"
        || (parent.tagName() == "data" && element.hasAttribute("type") && element.hasAttribute("id"));
}

QString ownText(const QDomElement &element)
{
    QString text;
    bool hasSection = false;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        text += child.isText() ? child.nodeValue() : QString();
        hasSection = hasSection || child.isCDATASection();
    }
    return hasSection || !text.trimmed().isEmpty() ? text : QString();
}

// The texts of a question are the source of their markup, which may stand there as elements.
bool isMarkup(const QString &tag)
{
    return tag == "R_Content_svg" || tag == "R_Answer_svg";
}

QString markupIn(const QDomElement &element)
{
    QString markup;
    QTextStream stream(&markup);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        child.save(stream, -1);
    }
    return markup;
}

// What a document says of itself and of its items, by their identifiers. Those of one identifier are one to the report.
struct Said
{
    Owner owner;
    Texts texts;
};

void collectSaid(int slide, const QDomElement &element, QMap<QString, Said> &all)
{
    const bool isOfItem = isItem(element);
    if (isOfItem || all.isEmpty()) {
        const QString id = element.attribute("id");
        const QString type = isOfItem ? element.attribute("type") : QString(slide == 0 ? "presentation" : "slide");
        Said &said = all[isOfItem ? "item " + id : QString()];
        // Types have other names in the model.
        said.owner = {slide, isOfItem && id.isEmpty() ? QString() : type, id};
        collectTexts(element, {}, isItem, said.texts);
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        collectSaid(slide, child, all);
    }
}

Rest restOfText(const QString &way, const QString &given, const QString &found)
{
    const QString name = way.section('@', 1);
    const bool isColorRow = name == "value" && way.contains("olor");
    const Rest rest = restOf(isColorRow ? "Color" : name, given, found, Road::Packed);
    return rest == Rest::Less && isSameXml("<a>" + given + "</a>", "<a>" + found + "</a>") ? Rest::Alike : rest;
}

// Takes the text that says the most of another one out of several, if it says any of it.
Rest takeRest(const QString &way, const QString &text, QStringList &others)
{
    int best = others.indexOf(text);
    for (int i = 0; i < others.size() && !text.isEmpty(); ++i) {
        best = best < 0 || restOfText(way, text, others.at(i)) < restOfText(way, text, others.at(best)) ? i : best;
    }
    const Rest rest = restOfText(way, text, others.value(best));
    if (best >= 0 && rest != Rest::Less) {
        others.removeAt(best);
    }
    return rest;
}

// Of several elements of one identifier, any may be the one whose colour has it; others' colours come back as they are.
void removeOpacityInColor(Texts &texts, const QStringList &colorsBack)
{
    const QStringList opacities = texts.value("@opacity");
    for (const QString &opacity : opacities) {
        for (const QString &back : colorsBack) {
            const QStringList own = texts.value("@color");
            const auto color = std::find_if(own.begin(), own.end(), [&](const QString &text) {
                return QColor(text).isValid() && isOpacityInColor(opacity, text, back);
            });
            const bool isColorless = std::none_of(own.begin(), own.end(), [&](const QString &text) {
                return QColor(text).isValid() && !colorsBack.contains(text);
            });
            if (color != own.end() || (isColorless && isOpacityInColor(opacity, back, back))) {
                texts["@opacity"].removeOne(opacity);
                color != own.end() ? texts["@color"].removeOne(*color) : false;
                break;
            }
        }
    }
}

void compareTexts(const Said &given, const Said &found, Differences &differences)
{
    QVector<QPair<QString, QString>> left; // with its way
    Texts others; // by ways without numbers
    for (auto it = given.texts.begin(); it != given.texts.end(); ++it) {
        const QString way = withoutNumbers(it.key());
        QStringList back = found.texts.value(it.key());
        for (const QString &text : it.value()) {
            const Rest rest = takeRest(way, text, back);
            if (rest == Rest::Less) {
                left.append({way, text});
            } else if (rest == Rest::Alike || text.isEmpty()) {
                differences.append({given.owner, way, text, {}, true}); // a bare element says little
            }
        }
        others[way] += back;
    }
    for (auto it = found.texts.begin(); it != found.texts.end(); ++it) {
        const QString way = withoutNumbers(it.key());
        if (!given.texts.contains(it.key())) {
            others[way] += it.value();
            if (!given.texts.contains(way) && restOfText(way, {}, it.value().first()) == Rest::Less) {
                differences.append({given.owner, way, {}, it.value().first()});
            }
        }
    }
    for (const auto &text : qAsConst(left)) {
        // Elements may stand in another order, and a row is known by its label.
        const bool isElsewhere = takeRest(text.first, text.second, others[text.first]) != Rest::Less;
        differences.append({given.owner, text.first, text.second, others.value(text.first).join(' '),
                            isElsewhere || text.first.endsWith("]@name")});
    }
}

} // namespace

Differences documentDifferences(int slide, const QDomElement &given, const QDomElement &found)
{
    QMap<QString, Said> all;
    QMap<QString, Said> others;
    collectSaid(slide, given, all);
    collectSaid(slide, found, others);
    Differences differences;
    for (auto it = all.begin(); it != all.end(); ++it) {
        const Said other = others.value(it.key());
        if (other.texts.value("@opacity").isEmpty()) {
            removeOpacityInColor(it->texts, other.texts.value("@color"));
        }
        compareTexts(*it, other, differences);
    }
    return differences;
}

void collectTexts(const QDomElement &element, const QString &way,
                  const std::function<bool(const QDomElement &child)> &isOther, Texts &texts)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        texts[way + '@' + attributes.item(i).nodeName()].append(attributes.item(i).nodeValue());
    }
    const QDomElement first = element.firstChildElement();
    if (isMarkup(element.tagName()) && !first.isNull()) {
        texts[way].append(markupIn(element));
        return;
    }
    const QString text = ownText(element);
    if (!text.isEmpty() || (!way.isEmpty() && attributes.isEmpty() && first.isNull())) {
        texts[way].append(text);
    }
    QMap<QString, int> counts;
    for (QDomElement child = first; !child.isNull(); child = child.nextSiblingElement()) {
        const QString label = child.attribute("name");
        const bool isRow = child.tagName() == "property" && !label.isEmpty();
        QString step = child.tagName() + (isRow ? '[' + label + ']' : QString());
        const int number = ++counts[step];
        step += number > 1 ? '#' + QString::number(number) : QString();
        if (!isOther(child)) {
            collectTexts(child, way.isEmpty() ? step : way + '/' + step, isOther, texts);
        }
    }
}

QString withoutNumbers(QString way)
{
    static const QRegularExpression number("#\\d+(?=[/@]|$)");
    return way.remove(number);
}
