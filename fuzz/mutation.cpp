// SPDX-License-Identifier: MIT
#include "mutation.h"

#include "domhelpers.h"
#include "fuzzsupport.h"
#include "translatorchains.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QVector>

#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

using Random = std::minstd_rand;

const char *const tableWords[] = {
#include "words.inc"
};

// Texts in the forms that the conversions take apart, whole and broken.
const QStringList values =
    QString(
        "0 1 -1 true false 1,2 1,2,3,4 1,0,0,1,10,20 0,0,0,0,0,0 10,20,110,220,5,6,7,8,9 ,,,,,,,, "
        "255,0,128,64 #ff8000 rgb(1,2,3) 1e308,-1e308,nan,inf,1e-320 99999999999999999999 -2147483648 2147483647 a|b;c "
        "../../up.png images/a.png http://a/b file:///dev/null /dev/zero #page3 rotate(0.5,10,20) <![CDATA[x]]> \"'&<> "
        "[{\"a\":1}] {\"Solid\":\"255,0,0\",\"Alpha\":\"128\"} 2.0 3.0")
        .split(' ')
    << ""
    << "1 2;3 4|5 6"
    << "M 0 0 L 10 10 Z"
    << R"(<a><b c="1"/></a>)"
    << R"(<pageEffect Effect="3" Time="2"/>)"
    << R"(<interactive><Trigger><ID value="1"/><Action><ID value="2"/></Action></Trigger></interactive>)";

int below(Random &random, int limit)
{
    return limit > 0 ? int(random() % unsigned(limit)) : 0;
}

const QStringList words = [] {
    QStringList all;
    for (const char *word : tableWords) {
        all.append(word);
    }
    return all;
}();

template <typename Condition> QStringList wordsThat(const Condition &condition)
{
    QStringList list;
    std::copy_if(words.cbegin(), words.cend(), std::back_inserter(list), condition);
    return list;
}

bool isName(const QString &text)
{
    static const QRegularExpression name("^[A-Za-z][A-Za-z0-9_:.-]*$");
    return name.match(text).hasMatch();
}

const QStringList &names()
{
    static const QStringList list = wordsThat(isName);
    return list;
}

const QString &anyOf(const QStringList &list, Random &random)
{
    return list.at(below(random, list.size()));
}

// XML has no way to write other control characters and lone surrogates.
QString writable(const QString &text)
{
    QString good;
    for (const QChar c : text) {
        if (!c.isSurrogate() && c.unicode() < 0xfffe && (c.unicode() >= 0x20 || c == QLatin1Char('\n'))) {
            good += c;
        }
    }
    return good;
}

QString mutated(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    const std::size_t size = std::size_t(bytes.size());
    bytes.resize(int(size) * 2 + 16);
    const std::size_t newSize =
        LLVMFuzzerMutate(reinterpret_cast<std::uint8_t *>(bytes.data()), size, std::size_t(bytes.size()));
    bytes.truncate(int(newSize));
    return writable(QString::fromUtf8(bytes));
}

QString newValue(const QString &old, Random &random)
{
    switch (below(random, 6)) {
    case 0:
        return anyOf(words, random);
    case 1:
        return anyOf(itemTypes(), random);
    case 2:
        return mutated(old);
    case 3:
        return old + QLatin1Char(',') + QString::number(int(random()) % 1000);
    default:
        return anyOf(values, random);
    }
}

// XML

QStringList attributeNames(const QDomElement &element)
{
    QStringList list;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        list.append(attributes.item(i).nodeName());
    }
    list.sort();
    return list;
}

QVector<QDomElement> elementsOf(const QDomDocument &document)
{
    QVector<QDomElement> elements{document.documentElement()};
    forEachDescendant(document.documentElement(), [&elements](const QDomElement &element) {
        elements.append(element);
        return elements.size() < 4000;
    });
    return elements;
}

void setNewType(QDomElement &element, Random &random)
{
    const QString &type = anyOf(itemTypes(), random);
    if (element.hasAttribute("type") || !isName(type)) {
        element.setAttribute("type", type);
    } else {
        element.setTagName(type);
    }
}

void mutateElement(QDomElement element, const QVector<QDomElement> &elements, Random &random)
{
    const QStringList present = attributeNames(element);
    switch (below(random, 11)) {
    case 0:
    case 1:
        if (!present.isEmpty()) {
            const QString &name = anyOf(present, random);
            element.setAttribute(name, newValue(element.attribute(name), random));
            break;
        }
        [[fallthrough]];
    case 2:
        element.setAttribute(anyOf(names(), random), newValue({}, random));
        break;
    case 3:
        if (!present.isEmpty()) {
            element.removeAttribute(anyOf(present, random));
        }
        break;
    case 4:
        if (element != elements.first()) {
            element.parentNode().removeChild(element);
        }
        break;
    case 5:
        element.appendChild(elements.at(below(random, elements.size())).cloneNode());
        break;
    case 6:
        element.insertBefore(element.ownerDocument().createElement(anyOf(names(), random)), element.firstChild());
        break;
    case 7:
        element.setTagName(anyOf(names(), random));
        break;
    case 8:
        setNewType(element, random);
        break;
    case 9:
        element.appendChild(element.ownerDocument().createCDATASection(newValue({}, random).replace("]]>", "]]")));
        break;
    default:
        element.appendChild(filledItem(anyOf(itemTypes(), random), newValue({}, random)));
        break;
    }
}

QByteArray mutatedXml(const QByteArray &text, Random &random)
{
    QDomDocument document;
    if (!document.setContent(text, false) || document.documentElement().isNull()) {
        return {};
    }
    for (int i = below(random, 4); i >= 0; --i) {
        const QVector<QDomElement> elements = elementsOf(document);
        mutateElement(elements.at(below(random, elements.size())), elements, random);
    }
    return document.toByteArray(-1);
}

// JSON

QJsonValue newJsonValue(const QJsonValue &old, Random &random)
{
    switch (below(random, 8)) {
    case 0:
        return below(random, 2) == 0;
    case 1:
        return double(int(random()) % 2000) / 7;
    case 2:
        return QJsonArray{newValue({}, random), old};
    case 3:
        return filledObject(anyOf(itemTypes(), random), newValue({}, random));
    default:
        return newValue(old.toString(), random);
    }
}

QJsonValue mutatedJson(const QJsonValue &value, Random &random, int depth)
{
    const bool goesDown = depth < 8 && below(random, 3) == 0;
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        const int at = below(random, array.size());
        if (array.isEmpty() || !goesDown) {
            array.insert(at, newJsonValue(array.isEmpty() ? QJsonValue() : array.at(at), random));
        } else {
            array[at] = mutatedJson(array.at(at), random, depth + 1);
        }
        return array;
    }
    if (!value.isObject()) {
        return newJsonValue(value, random);
    }
    QJsonObject object = value.toObject();
    const QStringList keys = object.keys();
    const int choice = below(random, 8);
    if (choice == 0 || keys.isEmpty()) {
        object.insert("Type", anyOf(itemTypes(), random));
    } else if (choice == 1) {
        object.insert(anyOf(words, random), newJsonValue({}, random));
    } else if (choice == 2) {
        object.remove(anyOf(keys, random));
    } else {
        const QString &key = anyOf(keys, random);
        object.insert(key,
                      goesDown ? mutatedJson(object.value(key), random, depth + 1)
                               : newJsonValue(object.value(key), random));
    }
    return object;
}

QByteArray mutatedObject(const QByteArray &text, Random &random)
{
    QJsonObject object = parsedObject(text);
    for (int i = below(random, 4); i >= 0; --i) {
        object = mutatedJson(object, random, 0).toObject();
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

std::size_t mutateText(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    plugin();
    Random random(seed);
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    if (below(random, 10) != 0) {
        const QByteArray changed = text.startsWith('{') ? mutatedObject(text, random)
            : text.startsWith('<')                      ? mutatedXml(text, random)
                                                        : QByteArray();
        if (!changed.isEmpty() && std::size_t(changed.size()) <= maxSize) {
            std::memcpy(data, changed.constData(), std::size_t(changed.size()));
            return std::size_t(changed.size());
        }
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}

const QStringList &itemTypes()
{
    static const QStringList list = wordsThat([](const QString &word) { return createTranslator(word) != nullptr; });
    return list;
}

QJsonObject filledObject(const QString &type, const QString &value)
{
    const GenericTranslator translator(*createTranslator(type));
    QJsonObject object;
    for (const QJsonObject *map : {&translator.txMap(), &translator.iwbMap()}) {
        for (auto it = map->constBegin(); it != map->constEnd(); ++it) {
            object.insert(it.key(), value);
        }
    }
    object.insert("Type", type);
    return object;
}

QDomElement filledItem(const QString &type, const QString &value)
{
    return plugin().tranItemJSON2ZQTX({}, filledObject(type, value));
}

QDomElement filledRawItem(const QString &type, const QString &value)
{
    if (!isName(type)) {
        return {};
    }
    QDomElement element = newElement(type);
    const GenericTranslator translator(*createTranslator(type));
    const QJsonObject &map = translator.xmlMap();
    for (auto it = map.constBegin(); it != map.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        QString first = path.at(0).toString();
        const bool isList = first.startsWith(QLatin1Char('<'));
        if (isList || first.startsWith(QLatin1Char('['))) {
            first = first.mid(1, first.size() - 2);
        }
        QDomElement holder = element;
        if (path.size() > 1 || isList || first != path.at(0).toString()) {
            holder = childByTag(element, first);
            if (holder.isNull()) {
                holder = element.appendChild(newElement(first)).toElement();
            }
        }
        if (isList) {
            holder = holder.appendChild(newElement("row")).toElement();
        }
        holder.setAttribute(path.size() > 1 ? path.last().toString() : first, value);
    }
    return element;
}
