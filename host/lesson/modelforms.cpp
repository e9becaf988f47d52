#include "lesson/modelforms.h"

#include "files/xmltext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lessonhost {

namespace {

const QLatin1String typeKey("Type");
const QLatin1String solidKey("Solid");
const QLatin1String alphaKey("Alpha");

QString shortestText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

bool isColorObject(const QJsonObject &object)
{
    return object.contains(solidKey)
        && std::all_of(object.constBegin(), object.constEnd(),
                       [](const QJsonValue &value) { return value.isDouble(); });
}

QString colorText(const QJsonObject &color)
{
    const int solid = color.value(solidKey).toInt();
    const int alpha = qRound(color.value(alphaKey).toDouble(1.0) * 255.0);
    return QStringLiteral("%1,%2,%3,%4").arg(alpha).arg((solid >> 16) & 255).arg((solid >> 8) & 255).arg(solid & 255);
}

bool isNumberArray(const QJsonArray &array)
{
    return std::all_of(array.constBegin(), array.constEnd(), [](const QJsonValue &value) { return value.isDouble(); });
}

QString numberArrayText(const QJsonArray &array)
{
    QStringList numbers;
    for (const QJsonValue &number : array) {
        numbers.append(shortestText(number.toDouble()));
    }
    return numbers.join(QLatin1Char(','));
}

// JSON in ASCII, since the text is read back as Latin-1.
QString asciiJson(const QJsonArray &array)
{
    const QString json = QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    QString ascii;
    for (const QChar c : json) {
        if (c.unicode() < 0x80) {
            ascii += c;
        } else {
            ascii += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return ascii;
}

bool asFlag(const QJsonValue &value)
{
    return value.isBool() ? value.toBool() : valueText(value).toInt() != 0;
}

double asNumber(const QJsonValue &value)
{
    return value.isDouble() ? value.toDouble() : valueText(value).toDouble();
}

using Change = QJsonValue (*)(const QJsonValue &value);

QJsonValue toFlag(const QJsonValue &value)
{
    return asFlag(value);
}

QJsonValue toNumber(const QJsonValue &value)
{
    return asNumber(value);
}

// Kept in whole numbers only.
QJsonValue toWhole(const QJsonValue &value)
{
    return std::round(asNumber(value));
}

QJsonValue toEscaped(const QJsonValue &value)
{
    return escapedForXml(valueText(value));
}

// For the text of an element. One of blanks alone would be dropped, but for a section of its own.
QJsonValue toElementText(const QJsonValue &value)
{
    const QString text = valueText(value);
    const bool isBlank = !text.isEmpty() && text.trimmed().isEmpty();
    return isBlank ? QLatin1String("<![CDATA[") + escapedForCData(text) + QLatin1String("]]>") : escapedForXml(text);
}

QJsonValue toCData(const QJsonValue &value)
{
    return escapedForCData(valueText(value));
}

struct KeyChange
{
    const char *key;
    Change change;
};

template <size_t size> void applyChanges(QJsonObject &object, const KeyChange (&changes)[size])
{
    for (const KeyChange &row : changes) {
        const QLatin1String key(row.key);
        const auto it = object.constFind(key);
        if (it != object.constEnd()) {
            object.insert(key, row.change(*it));
        }
    }
}

constexpr KeyChange mapInformation[] = {
    {"title", toElementText},     {"type", toWhole},
    {"style", toWhole},           {"spreadStyle", toWhole},
    {"fillColor", toElementText}, {"borderColor", toElementText},
    {"lineColor", toElementText},
};

constexpr KeyChange mapNode[] = {
    {"pos", toElementText},       {"position", toWhole},        {"width", toWhole},   {"height", toWhole},
    {"fillColor", toElementText}, {"lineColor", toElementText}, {"visiable", toFlag}, {"childrenVisiable", toFlag},
    {"nodeHtml", toCData},        {"link", toElementText},      {"shade", toFlag},    {"stamp", toWhole},
};

constexpr KeyChange mapAttachment[] = {{"type", toEscaped}, {"name", toEscaped}, {"path", toEscaped}};

constexpr KeyChange activityAttachments[] = {{"back", toEscaped}, {"front", toEscaped}, {"error", toEscaped}};

constexpr KeyChange question[] = {
    {"R_Content_svg", toElementText}, {"R_Answer_svg", toElementText}, {"page_scale", toNumber},
    {"page_state", toElementText},    {"answer_width", toNumber},      {"answer_height", toNumber},
    {"content_width", toNumber},      {"content_height", toNumber},
};

QJsonObject writableNode(QJsonObject node)
{
    applyChanges(node, mapNode);
    const QLatin1String attachmentsKey("attachments");
    if (node.contains(attachmentsKey)) {
        QJsonArray attachments;
        const QJsonArray given = node.value(attachmentsKey).toArray();
        for (const QJsonValue &value : given) {
            QJsonObject attachment = value.toObject();
            applyChanges(attachment, mapAttachment);
            attachments.append(attachment);
        }
        node.insert(attachmentsKey, attachments);
    }
    const QLatin1String childNodesKey("childNodes");
    if (node.contains(childNodesKey)) {
        QJsonArray childNodes;
        const QJsonArray given = node.value(childNodesKey).toArray();
        for (const QJsonValue &value : given) {
            childNodes.append(writableNode(value.toObject()));
        }
        node.insert(childNodesKey, childNodes);
    }
    return node;
}

QJsonValue writableMindMap(const QJsonValue &value)
{
    QJsonArray map = value.toArray();
    if (map.size() < 3) {
        return map;
    }
    QJsonObject information = map.at(0).toObject();
    applyChanges(information, mapInformation);
    QJsonObject edge = map.at(1).toObject();
    applyChanges(edge, {{"style", toWhole}});
    map.replace(0, information);
    map.replace(1, edge);
    map.replace(2, writableNode(map.at(2).toObject()));
    return map;
}

QJsonValue writableCourseware(const QJsonValue &value)
{
    if (!value.isArray()) {
        return value;
    }
    QJsonArray resources;
    const QJsonArray given = value.toArray();
    for (const QJsonValue &resource : given) {
        resources.append(toEscaped(resource));
    }
    return resources;
}

QJsonValue writableAttachments(const QJsonValue &value)
{
    QJsonObject attachments = value.toObject();
    applyChanges(attachments, activityAttachments);
    return attachments;
}

// The same tree with texts for numbers and flags.
QJsonValue treeOfTexts(const QJsonValue &value)
{
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = treeOfTexts(it.value());
        }
        return object;
    }
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (QJsonValueRef element : array) {
            element = treeOfTexts(element);
        }
        return array;
    }
    return valueText(value);
}

// The keys of an animation become attributes.
QJsonObject writableAnimations(const QJsonValue &value)
{
    QJsonObject animations = treeOfTexts(value).toObject();
    for (auto group = animations.begin(); group != animations.end(); ++group) {
        QJsonObject values = group.value().toObject();
        for (auto it = values.begin(); it != values.end();) {
            it = isXmlName(it.key()) ? it + 1 : values.erase(it);
        }
        group.value() = values;
    }
    return animations;
}

// A null says no more than a key that is missing.
QJsonObject withoutNulls(QJsonObject object)
{
    for (auto it = object.begin(); it != object.end();) {
        it = it.value().isNull() ? object.erase(it) : it + 1;
    }
    return object;
}

QJsonValue plainValue(const QJsonValue &value)
{
    const QString text = valueText(value);
    return text.isNull() ? value : QJsonValue(text);
}

// What a read had to keep under a name of its own.
void putBack(QJsonObject &written, QLatin1String keptKey, QLatin1String key)
{
    const QJsonValue kept = written.take(keptKey);
    if (!kept.isUndefined() && !written.contains(key)) {
        written.insert(key, kept);
    }
}

bool isQuestionNumber(const QString &key)
{
    return std::any_of(std::begin(question), std::end(question), [&key](const KeyChange &row) {
        return row.change == toNumber && key == QLatin1String(row.key);
    });
}

// A comma at the end stands before no number.
QStringList numberParts(const QString &text)
{
    QStringList parts = text.split(QLatin1Char(','));
    if (parts.last().isEmpty()) {
        parts.removeLast();
    }
    return parts;
}

QVector<float> floatsOf(const QStringList &parts)
{
    QVector<float> numbers;
    numbers.reserve(parts.size());
    for (const QString &part : parts) {
        numbers.append(part.toFloat());
    }
    return numbers;
}

QString sixDigits(float number)
{
    return QString::number(double(number), 'g', 6);
}

/*!
 * One coordinate of a stroke on its way from steps to offsets. It follows what a reader does in single precision, so
 * that errors don't add up along the stroke.
 */
class OffsetTrack
{
public:
    explicit OffsetTrack(float origin)
        : m_origin(origin)
        , m_previous(origin)
    {
    }

    QString offset(float step)
    {
        const float wanted = m_previous + step;
        const float near = wanted - m_origin;
        const float limit = std::numeric_limits<float>::infinity();
        float offset = near;
        for (const float candidate : {near, std::nextafter(near, limit), std::nextafter(near, -limit)}) {
            if (sixDigits(candidate + m_origin - m_previous) == sixDigits(step)) {
                offset = candidate;
                break;
            }
        }
        m_previous = offset + m_origin;
        return QString::number(double(offset), 'g', 9);
    }

private:
    float m_origin;
    float m_previous;
};

} // namespace

int majorVersion(const QJsonObject &presentation)
{
    return valueText(presentation.value(QLatin1String("Version"))).section(QLatin1Char('.'), 0, 0).toInt();
}

bool isContainer(const QString &itemType)
{
    return itemType == QLatin1String("ZQGroupItem") || itemType == QLatin1String("group")
        || itemType == QLatin1String("ZQStrokesMathFormula") || itemType == QLatin1String("ZQStrokesChemFormula");
}

QVector<float> singleNumbers(const QString &text)
{
    return floatsOf(numberParts(text));
}

bool isFigure(const QString &itemType)
{
    return itemType.startsWith(QLatin1String("ZQShape"));
}

QString valueText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String: {
        const QString text = value.toString();
        return text.isNull() ? QString(QLatin1String("")) : text;
    }
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QJsonValue::Double:
        return shortestText(value.toDouble());
    case QJsonValue::Array: {
        const QJsonArray array = value.toArray();
        return isNumberArray(array) ? numberArrayText(array) + QLatin1String("") : QString();
    }
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        if (object.isEmpty()) {
            return QLatin1String("");
        }
        return isColorObject(object) ? colorText(object) : QString();
    }
    default:
        return QLatin1String("");
    }
}

QJsonObject writableProperties(const QJsonObject &properties)
{
    QJsonObject written = withoutNulls(properties);
    for (auto it = written.begin(); it != written.end(); ++it) {
        const bool isTree = it.key() == QLatin1String("activity") || it.key() == QLatin1String("animations");
        it.value() = isTree ? treeOfTexts(it.value()) : plainValue(it.value());
    }
    return written;
}

QJsonObject writableItem(const QJsonObject &item, int majorVersion)
{
    const QString type = item.value(typeKey).toString();
    QJsonObject written = withoutNulls(item);
    written.remove(HostKeys::children);
    putBack(written, HostKeys::ignoredBox, QLatin1String("BoundingBox"));
    putBack(written, HostKeys::ignoredControl, QLatin1String("Control"));
    const bool isQuestion = type == QLatin1String("ZQQuestionItem");
    if (isQuestion) {
        applyChanges(written, question);
    }
    for (auto it = written.begin(); it != written.end(); ++it) {
        const QString key = it.key();
        const QJsonValue value = it.value();
        if (key == QLatin1String("Visible")) {
            it.value() = asFlag(value);
        } else if (key == QLatin1String("mindMapData")) {
            it.value() = writableMindMap(value);
        } else if (key == QLatin1String("animations")) {
            it.value() = writableAnimations(value);
        } else if (key == QLatin1String("attachments")) {
            it.value() = writableAttachments(value);
        } else if (key == QLatin1String("document") && type == QLatin1String("ZQDyCoursewareItem")) {
            it.value() = writableCourseware(value);
        } else if (key == QLatin1String("PixelDeleteInfos") && value.isArray()) {
            it.value() = asciiJson(value.toArray());
        } else if (key == QLatin1String("XY") && majorVersion < 3) {
            it.value() = pointsAsOffsets(valueText(value));
        } else if (!isQuestion || !isQuestionNumber(key)) {
            it.value() = plainValue(value);
        }
    }
    return written;
}

QString pointsAsOffsets(const QString &steps)
{
    const QStringList parts = numberParts(steps);
    if (parts.size() < 4) {
        return steps;
    }
    const QVector<float> numbers = floatsOf(parts);
    OffsetTrack x(numbers.at(0));
    OffsetTrack y(numbers.at(1));
    QStringList offsets{parts.at(0), parts.at(1)};
    for (int i = 2; i + 1 < numbers.size(); i += 2) {
        offsets.append(x.offset(numbers.at(i)));
        offsets.append(y.offset(numbers.at(i + 1)));
    }
    return offsets.join(QLatin1Char(','));
}

} // namespace lessonhost
