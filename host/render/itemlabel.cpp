// SPDX-License-Identifier: MIT
#include "render/itemlabel.h"

#include "lesson/closedtext.h"
#include "lesson/itemtypes.h"
#include "lesson/plainnames.h"

#include <QFileInfo>

namespace lessonhost {

namespace {

constexpr int longestLabel = 1000;

// The first that says something stands on the item.
constexpr const char *textKeys[] = {
    "frontContent", "TextHtml",    "GapFillingContent", "R_Content_svg", "current_text",
    "TextPhonetic", "ChineseWord", "EnglishWord",       "Text",          "Title",
    "ArtObj_Text",  "name",        "original_alphabet",
};

QString plain(const QString &text)
{
    return text.contains(QLatin1Char('<')) ? plainWords(text) : text.simplified();
}

void collectNodes(const QJsonObject &node, QStringList &words, int depth)
{
    constexpr int deepest = 100;
    constexpr int mostNodes = 100;
    words.append(plain(valueText(node.value(QLatin1String("nodeHtml")))));
    const QJsonArray children = node.value(QLatin1String("childNodes")).toArray();
    for (const QJsonValue &child : children) {
        if (depth < deepest && words.size() < mostNodes) {
            collectNodes(child.toObject(), words, depth + 1);
        }
    }
}

QString textOn(const ItemView &item)
{
    const QJsonArray map = item.json().value(ItemKeys::mindMap).toArray();
    if (map.size() > 2) {
        QStringList words;
        collectNodes(map.at(2).toObject(), words, 0);
        words.removeAll(QString());
        return words.join(QLatin1String(", "));
    }
    for (const char *key : textKeys) {
        const QString text = plain(item.text(QLatin1String(key)));
        if (!text.isEmpty()) {
            return text;
        }
    }
    for (const QLatin1String key : {ItemKeys::resource, ItemKeys::mediaFiles}) {
        const QString file = item.firstText(key).replace(QLatin1Char('\\'), QLatin1Char('/'));
        if (!file.isEmpty()) {
            return QFileInfo(file).completeBaseName();
        }
    }
    return {};
}

} // namespace

ItemLabel itemLabel(const ItemView &item)
{
    const QString text = textOn(item);
    const QString name = plainName(item.type());
    if (text.isEmpty()) {
        return {name.left(longestLabel), name};
    }
    return isTextBoard(item.type()) ? ItemLabel{text.left(longestLabel), {}}
                                    : ItemLabel{QString(name + QLatin1String(": ") + text).left(longestLabel), name};
}

} // namespace lessonhost
