// SPDX-License-Identifier: MIT
#include "formats/rawecho.h"

#include "files/domtools.h"
#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "files/xmlreadback.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/numbertexts.h"
#include "losses/attributes.h"
#include "losses/equivalence.h"

#include <QColor>
#include <QJsonArray>
#include <QSet>
#include <QTransform>
#include <QtMath>

#include <cmath>
#include <optional>

namespace lessonhost {

namespace {

const QLatin1String echoedId("NetID");
const QLatin1String boundName("Bound");
const QLatin1String matrixName("TransformMatrix");
const QLatin1String innerPrefix("ArtInner_");
const QLatin1String managerTag("ArtVectObj_Manager");

bool isFlag(const QString &name)
{
    return name == QLatin1String("Visible") || name == QLatin1String("LockIn")
        || name == QLatin1String("InfiniteClone");
}

// The files of an item and of a slide, of which the model has the names in the lesson's folder.
bool isReference(const QString &name)
{
    for (const char *reference :
         {"MultiMediaFile", "AttachFile", "DrawTexture", "Stamp", "resource", "document", "AudioPath"}) {
        if (name == QLatin1String(reference)) {
            return true;
        }
    }
    return false;
}

ValueForm formOf(const QString &name, const QJsonValue &value)
{
    if (isFlag(name)) {
        return ValueForm::Flag;
    }
    return value.isDouble() ? ValueForm::Number : value.isObject() ? ValueForm::SubjectColor : ValueForm::Text;
}

// What was given, if the value says the same, or the value's own text.
QString echoed(ValueForm form, const QString &given, const QJsonValue &value)
{
    const QString text = valueText(value);
    return isSameText(form, given, text) ? given : text;
}

// As many numbers as asked for, or nothing.
std::optional<QVector<double>> numbersIn(const QString &text, int count)
{
    if (text.count(QLatin1Char(',')) + 1 != count) {
        return std::nullopt;
    }
    QVector<double> numbers;
    numbers.reserve(count);
    int begin = 0;
    for (int i = 0; i < count; ++i) {
        const int comma = text.indexOf(QLatin1Char(','), begin);
        const int end = comma < 0 ? text.size() : comma;
        bool isNumber = false;
        numbers.append(numberOfText(QStringView(text).mid(begin, end - begin), &isNumber));
        if (!isNumber || !qIsFinite(numbers.last())) {
            return std::nullopt;
        }
        begin = end + 1;
    }
    return numbers;
}

std::optional<QTransform> transformIn(const QString &text)
{
    const auto n = numbersIn(text, 6);
    return n ? std::make_optional(QTransform(n->at(0), n->at(1), n->at(2), n->at(3), n->at(4), n->at(5)))
             : std::nullopt;
}

// In the six digits that the model's own have.
bool isNear(double one, double other)
{
    return qAbs(one - other) <= 1e-5 * qMax(1.0, qMax(qAbs(one), qAbs(other)));
}

bool isNear(const QTransform &one, const QTransform &other)
{
    return isNear(one.m11(), other.m11()) && isNear(one.m12(), other.m12()) && isNear(one.m21(), other.m21())
        && isNear(one.m22(), other.m22()) && isNear(one.dx(), other.dx()) && isNear(one.dy(), other.dy());
}

bool isUpright(const QTransform &matrix)
{
    return matrix.type() <= QTransform::TxScale && matrix.m11() > 0 && matrix.m22() > 0;
}

/*!
 * Where an item stands: by what its element says and by what the model says.
 */
class Places
{
public:
    Places(const QDomElement &element, const QJsonObject &item)
        : m_element(element)
        , m_left(transformIn(item.value(ItemKeys::matrix).toString()))
        , m_found(numbersIn(item.value(ItemKeys::box).toString(), 4))
    {
        const auto own = element.hasAttribute(matrixName) ? transformIn(element.attribute(matrixName)) : QTransform();
        m_fit = item.contains(ItemKeys::slideMatrix) ? transformIn(item.value(ItemKeys::slideMatrix).toString())
                                                     : QTransform();
        if (own && m_fit) {
            m_whole = *own * *m_fit;
        }
        // right, bottom, two numbers more, left, top.
        const auto bound = numbersIn(element.attribute(boundName), 6);
        if (bound && bound->at(2) == 0 && bound->at(3) == 0) {
            m_given = QVector<double>{bound->at(4), bound->at(5), bound->at(0), bound->at(1)};
        }
    }

    bool holdsMatrix() const { return m_whole && m_left && (isNear(*m_left, *m_whole) || isFolded()); }
    bool holdsBox() const { return m_given && m_found && (*m_given == *m_found || isFolded()); }
    bool holdsInnerMatrix()
    {
        if (!m_holdsInner) {
            m_holdsInner = m_fit && m_left && isNear(*m_left, innerMatrix() * *m_fit);
        }
        return *m_holdsInner;
    }

private:
    // The box of an item that is drawn larger is that of the page, which is no place for a turn or a mirror.
    bool isFolded() const
    {
        if (!m_whole || !m_left || !m_left->isIdentity() || !m_given || !m_found || !isUpright(*m_whole)) {
            return false;
        }
        const QRectF box =
            m_whole->mapRect(QRectF(QPointF(m_given->at(0), m_given->at(1)), QPointF(m_given->at(2), m_given->at(3))));
        return isNear(box.left(), m_found->at(0)) && isNear(box.top(), m_found->at(1))
            && isNear(box.right(), m_found->at(2)) && isNear(box.bottom(), m_found->at(3));
    }

    double number(const char *name, double usual) const
    {
        const QString whole = innerPrefix + QLatin1String(name);
        return m_element.hasAttribute(whole) ? m_element.attribute(whole).toDouble() : usual;
    }

    double sign(const char *name) const
    {
        return m_element.attribute(innerPrefix + QLatin1String(name)) == QLatin1String("0") ? 1 : -1;
    }

    // The matrix that vector shapes and figures have in attributes of their own.
    QTransform innerMatrix() const
    {
        const double angle = -qDegreesToRadians(number("Rotate", 0));
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        const double x = sign("HorzFlip");
        const double y = sign("VertFlip");
        const double zoomX = number("Zoom", 1);
        const double zoomY = number("Zoom_Y", 1);
        return {x * c * zoomX,
                y * s * zoomY,
                -x * s * zoomX,
                y * c * zoomY,
                number("CenterPointX", 0) + x * number("OfpX", 0),
                number("CenterPointY", 0) + y * number("OfpY", 0)};
    }

    QDomElement m_element;
    std::optional<QTransform> m_left; // the model's matrix
    std::optional<QTransform> m_fit; // what fits the slide into the page
    std::optional<QTransform> m_whole; // that of the element, on the page
    std::optional<QVector<double>> m_given; // left, top, right, bottom
    std::optional<QVector<double>> m_found;
    std::optional<bool> m_holdsInner; // once it was asked for
};

// What the inner matrix is made of, in a form that the matrix tells.
bool isPartOfInnerMatrix(const QString &name, const QString &given)
{
    const QString part = name.mid(innerPrefix.size());
    if (part == QLatin1String("HorzFlip") || part == QLatin1String("VertFlip")) {
        return given == QLatin1String("0") || given == QLatin1String("1");
    }
    const bool isNumber = numbersIn(given, 1).has_value();
    for (const char *number : {"Rotate", "Zoom", "Zoom_Y", "CenterPointX", "CenterPointY", "OfpX", "OfpY"}) {
        if (part == QLatin1String(number)) {
            return isNumber;
        }
    }
    return false;
}

// a,r,g,b, of which the alpha doesn't count, or the name of a colour.
std::optional<QColor> opaqueColor(const QString &text)
{
    const int parts = text.count(QLatin1Char(',')) + 1;
    if (parts < 4) {
        const QColor color(text);
        return color.isValid() ? std::make_optional(color) : std::nullopt;
    }
    const auto n = numbersIn(text, parts);
    const auto isChannel = [&n](int i) { return n->at(i) >= 0 && n->at(i) <= 255 && n->at(i) == std::floor(n->at(i)); };
    return n && parts == 4 && isChannel(1) && isChannel(2) && isChannel(3)
        ? std::make_optional(QColor(int(n->at(1)), int(n->at(2)), int(n->at(3))))
        : std::nullopt;
}

// Whatever was in front of the names, and whichever sign stood between them.
QStringList fileNames(const QString &text)
{
    const QLatin1Char separator(text.contains(QLatin1Char('|')) ? '|' : text.contains(QLatin1Char(';')) ? ';' : ',');
    QStringList files = text.split(separator);
    while (!files.isEmpty() && files.last().isEmpty()) {
        files.removeLast();
    }
    for (QString &file : files) {
        const int slash = file.lastIndexOf(QLatin1Char('/'));
        file.remove(0, (slash >= 0 ? slash : file.lastIndexOf(QLatin1Char('\\'))) + 1);
    }
    return files;
}

QString echoedFiles(const QString &given, const QString &found)
{
    return fileNames(given) == fileNames(found) ? given : found;
}

// The number of a pair of control points and which of the two it is, from "Discipline_xControl3"; -1 for other names.
int controlIndex(const QString &name)
{
    for (const char *prefix : {"Discipline_xControl", "Discipline_yControl"}) {
        if (name.startsWith(QLatin1String(prefix))) {
            bool isNumber = false;
            const QString digits = name.mid(int(qstrlen(prefix)));
            const int number = digits.toInt(&isNumber);
            const bool isPlain = isNumber && digits == QString::number(number) && number >= 0 && number < 1000000;
            return isPlain ? 2 * number + (name.at(11) == QLatin1Char('y') ? 1 : 0) : -1;
        }
    }
    return -1;
}

// Read in single precision.
QString echoedPoint(const QString &given, const QJsonValue &found)
{
    bool isNumber = false;
    const float number = given.toFloat(&isNumber);
    return isNumber && found.isDouble() && number == float(found.toDouble()) ? given : valueText(found);
}

// The angles of an arc run the other way round.
QString echoedArc(const QString &name, const QString &given, const QString &found)
{
    const double other = (name == QLatin1String("StartAngle") ? 360 : 0) - found.toDouble();
    const auto number = numbersIn(given, 1);
    return number && isNear(number->first(), other) ? given : QString::number(other);
}

bool isArcAngle(const QString &type, const QString &name)
{
    return type == QLatin1String("ZQMath2DNewArc")
        && (name == QLatin1String("StartAngle") || name == QLatin1String("SweepAngle"));
}

// Ink has a colour as a text.
bool isInkItem(const QJsonObject &item)
{
    return item.value(ItemKeys::color).isString();
}

QString echoedInk(const QString &name, const QString &given, const QJsonObject &item)
{
    const QColor found(item.value(ItemKeys::color).toString());
    if (name == ItemKeys::color) {
        const auto color = opaqueColor(given);
        return color && color->rgb() == found.rgb() ? given : found.name();
    }
    if (name == ItemKeys::opacity) {
        return echoed(ValueForm::Number, given, found.alpha());
    }
    return echoed(ValueForm::InkWidth, given, item.value(name));
}

// Of a colour, as its channels are given: a, r, g, b.
QStringList channelsOf(const QJsonObject &color)
{
    return color.contains(QLatin1String("Solid")) ? valueText(color).split(QLatin1Char(',')) : QStringList();
}

// The drawing of a vector shape, which is what it was as a rule.
QDomElement managerOf(const QJsonObject &item, const QDomElement &given)
{
    const QString text = item.value(QLatin1String("manager")).toString();
    if (readsBackAs(text, given)) {
        return given.cloneNode(true).toElement();
    }
    try {
        return loadXml(text.toUtf8(), {}).documentElement();
    } catch (const LessonError &) {
        return {};
    }
}

bool isInkValue(const QString &name)
{
    return name == ItemKeys::color || name == ItemKeys::opacity || name == ItemKeys::width;
}

} // namespace

RawEcho::RawEcho(IZQTransformation *plugin)
    : m_plugin(plugin)
{
}

void RawEcho::compareItem(const LossOwner &owner, const QDomElement &element, const QJsonObject &item,
                          const CarriedCheck &check)
{
    Places places(element, item);
    const auto attributes = attributesOf(element);
    for (const auto &[name, given] : attributes) {
        const bool isPlaced = name == matrixName ? places.holdsMatrix()
            : name == boundName                  ? places.holdsBox()
            : name.startsWith(innerPrefix)       ? places.holdsInnerMatrix() && isPartOfInnerMatrix(name, given)
                                                 : false;
        if (!isPlaced) {
            check.compareAttribute(owner, name, given, attributeOfItem(element, name, given, item));
        }
    }
    if (element.hasChildNodes()) {
        check.compareContent(owner, element, contentOfItem(element, item));
    }
}

QString RawEcho::attributeOfItem(const QDomElement &element, const QString &name, const QString &given,
                                 const QJsonObject &item)
{
    const QString type = element.tagName();
    if (name == echoedId) {
        return item.value(ItemKeys::id).toString();
    }
    const QJsonValue value = item.value(name);
    if (isReference(name)) {
        return echoedFiles(given, value.toString());
    }
    if (isInkValue(name) && isInkItem(item)) {
        return echoedInk(name, given, item);
    }
    const int control = value.isUndefined() ? controlIndex(name) : -1;
    if (control >= 0) {
        return echoedPoint(given, item.value(QLatin1String("Control")).toArray().at(control));
    }
    if (isArcAngle(type, name)) {
        return echoedArc(name, given, value.toString());
    }
    const QString same = echoed(formOf(name, value), given, value);
    if (same == given) {
        return given;
    }
    const QString key = keyOf({type, {}, name});
    return key.isEmpty() ? same : echoed(formOf(key, item.value(key)), given, item.value(key));
}

// A value in an element below is read from the first of its tag, however deep it is.
QDomElement RawEcho::contentOfItem(const QDomElement &element, const QJsonObject &item)
{
    struct Open
    {
        QDomElement next;
        QDomElement echo;
        QJsonArray list; // what the children of this one are in the model
        int index;
    };
    QDomElement result = m_document.createElement(element.tagName());
    QSet<QString> seen;
    QVector<Open> open{{element.firstChildElement(), result, {}, 0}};
    while (!open.isEmpty()) {
        const QDomElement child = open.last().next;
        if (child.isNull()) {
            open.removeLast();
            continue;
        }
        open.last().next = child.nextSiblingElement();
        const QString tag = child.tagName();
        const QJsonObject row = open.last().list.at(open.last().index++).toObject();
        const bool isFirst = !seen.contains(tag);
        seen.insert(tag);
        const QJsonValue value = isFirst ? item.value(tag) : QJsonValue();
        if (!child.hasAttributes() && !child.hasChildNodes() && !value.isArray() && !value.isObject()) {
            continue;
        }
        if (isFirst && tag == managerTag) {
            open.last().echo.appendChild(managerOf(item, child));
            continue;
        }
        QDomElement echo = open.last().echo.appendChild(m_document.createElement(tag)).toElement();
        const auto attributes = attributesOf(child);
        const QJsonObject object = value.toObject();
        const QStringList channels = channelsOf(object);
        for (const auto &[name, given] : attributes) {
            const QString inRow = row.value(name).toString();
            if (inRow == given || !isFirst) {
                echo.setAttribute(name, inRow == given ? given : QString());
                continue;
            }
            const auto own = object.constFind(name);
            echo.setAttribute(name,
                              own != object.constEnd()
                                  ? own->toString()
                                  : attributeOfChild({element.tagName(), tag, name}, given, channels, item));
        }
        open.append({child.firstChildElement(), echo, value.toArray(), 0});
    }
    return result;
}

QString RawEcho::attributeOfChild(const Place &place, const QString &given, const QStringList &channels,
                                  const QJsonObject &item)
{
    const int channel = place.attribute.size() == 1 ? QStringLiteral("argb").indexOf(place.attribute) : -1;
    if (channel >= 0 && channels.size() == 4) {
        return isSameText(ValueForm::Number, given, channels.at(channel)) ? given : channels.at(channel);
    }
    const QString key = keyOf(place);
    return key.isEmpty() ? QString() : valueText(item.value(key));
}

// The key map of the plug-in, asked with an item that says one thing alone.
QString RawEcho::keyOf(const Place &of)
{
    const auto &[type, tag, attribute] = of;
    QHash<QPair<QString, QString>, QString> &keys = m_keys[type];
    const auto known = keys.constFind({tag, attribute});
    if (known != keys.constEnd()) {
        return *known;
    }
    const QString mark = QStringLiteral("mark");
    QDomElement probe = looseElement(type);
    QDomElement holder = tag.isEmpty() ? probe : probe.appendChild(looseElement(tag)).toElement();
    holder.setAttribute(attribute, mark);
    const QJsonObject found = m_plugin->tranItemXML2JSON(probe, {});
    auto silent = m_silent.constFind(type);
    if (silent == m_silent.constEnd()) {
        silent = m_silent.insert(type, m_plugin->tranItemXML2JSON(looseElement(type), {}));
    }
    QString key;
    for (auto it = found.constBegin(); it != found.constEnd(); ++it) {
        const bool isMarked = it.value().toString() == mark;
        if (isMarked || (key.isEmpty() && it.key() != ItemKeys::id && it.value() != silent->value(it.key()))) {
            key = it.key();
        }
    }
    keys.insert({tag, attribute}, key);
    return key;
}

QDomElement RawEcho::ofSlide(const QDomElement &element, const QJsonObject &properties)
{
    QDomElement echo = looseElement(element.tagName());
    const auto attributes = attributesOf(element);
    for (const auto &[name, given] : attributes) {
        const QJsonValue value = properties.value(name == echoedId ? QString(ItemKeys::id) : name);
        QString text = valueText(value);
        if (name == QLatin1String("BackColor") && value.isDouble()) {
            const auto color = given.contains(QLatin1Char(',')) ? opaqueColor(given) : std::nullopt;
            text = color && int(color->rgb() & 0xffffff) == value.toInt() ? given : text;
        } else if (isReference(name)) {
            text = echoedFiles(given, text);
        }
        echo.setAttribute(name, text);
    }
    return echo;
}

QDomElement RawEcho::ofPresentation(const QDomElement &element, const QJsonObject &presentation)
{
    QDomElement echo = looseElement(element.tagName());
    const auto attributes = attributesOf(element);
    for (const auto &[name, given] : attributes) {
        echo.setAttribute(name, valueText(presentation.value(name == echoedId ? QString(ItemKeys::id) : name)));
    }
    return echo;
}

} // namespace lessonhost
