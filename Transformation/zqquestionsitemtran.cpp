// SPDX-License-Identifier: MIT
#include "zqquestionsitemtran.h"

#include "domhelpers.h"
#include "markupbuilder.h"
#include "numbertext.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

struct Value
{
    QLatin1String name; //!< of the key and of the element
    bool isNumber;
};

// In the order of the children.
const Value values[] = {
    {QLatin1String("R_Content_svg"), false}, {QLatin1String("R_Answer_svg"), false},
    {QLatin1String("page_scale"), true},     {QLatin1String("page_state"), false},
    {QLatin1String("answer_width"), true},   {QLatin1String("answer_height"), true},
    {QLatin1String("content_width"), true},  {QLatin1String("content_height"), true},
};

using Texts = std::array<QString, std::size(values)>;

Texts textsOf(const QJsonObject &json)
{
    Texts texts;
    std::transform(std::begin(values), std::end(values), texts.begin(), [&json](const Value &value) {
        const QJsonValue content = json.value(value.name);
        return value.isNumber ? numberText(content.toDouble()) : content.toString();
    });
    return texts;
}

QString questionText(const Texts &texts)
{
    QString text = QStringLiteral(R"(<question id="" visible="1" locked="0" uclone="0" type="question">)"
                                  R"(<transform><rotate angle="0"/></transform><data>)");
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const QLatin1String name = values[i].name;
        text += QLatin1Char('<') + name + QLatin1Char('>') + texts[i] + QLatin1String("</") + name + QLatin1Char('>');
    }
    return text + QLatin1String(R"(<rect points="" controlpoints="" outlinetype=""/></data></question>)");
}

// The texts stand in their elements without escaping, so markup in them becomes part of the item.
QDomElement questionElement(const Texts &texts)
{
    if (!std::all_of(texts.cbegin(), texts.cend(), isPlainText)) {
        return elementFromWellFormedXml(questionText(texts));
    }
    static const ElementTemplate question(questionText({}));
    const QDomElement element = question.instance();
    QDomDocument document = element.ownerDocument();
    QDomElement child = childByTag(element, QStringLiteral("data")).firstChildElement();
    for (const QString &text : texts) {
        if (!text.isEmpty()) {
            child.appendChild(document.createTextNode(text));
        }
        child = child.nextSiblingElement();
    }
    return element;
}

} // namespace

ZQQuestionsItemTran::ZQQuestionsItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
}

std::unique_ptr<ZQHTran> ZQQuestionsItemTran::create(const QString &type)
{
    return type == QLatin1String("ZQQuestionItem") ? std::make_unique<ZQQuestionsItemTran>(type) : nullptr;
}

QJsonObject ZQQuestionsItemTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranZQTX2JSON(element, json, context);
    QDomElement current = childByTag(element, QStringLiteral("data")).firstChildElement();
    for (const Value &value : values) {
        if (current.tagName() == value.name) {
            const QString text = current.text();
            json.insert(value.name, value.isNumber ? QJsonValue(text.toDouble()) : QJsonValue(text));
        }
        current = current.nextSiblingElement();
    }
    return json;
}

QDomElement ZQQuestionsItemTran::newTxElement(const QJsonObject &json) const
{
    return questionElement(textsOf(json));
}
