#include "zqquestionsitemtran.h"

#include "domhelpers.h"
#include "numbertext.h"

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

QString questionText(const QJsonObject &json)
{
    QString text = QStringLiteral(R"(<question id="" visible="1" locked="0" uclone="0" type="question">)"
                                  R"(<transform><rotate angle="0"/></transform><data>)");
    for (const Value &value : values) {
        const QJsonValue content = json.value(value.name);
        text += QLatin1Char('<') + value.name + QLatin1Char('>')
            + (value.isNumber ? numberText(content.toDouble()) : content.toString()) + QLatin1String("</") + value.name
            + QLatin1Char('>');
    }
    return text + QLatin1String(R"(<rect points="" controlpoints="" outlinetype=""/></data></question>)");
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

QDomElement ZQQuestionsItemTran::tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject context)
{
    if (element.isNull()) {
        element = elementFromWellFormedXml(questionText(json));
    }
    return ZQComItemControlTran::tranJSON2ZQTX(element, json, context);
}
