#include "zqhtran.h"

#include "domhelpers.h"
#include "keypaths.h"
#include "numbertext.h"

#include <QDateTime>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QVarLengthArray>

#include <optional>

namespace {

const QLatin1String propertiesTag("properties");

// Stores the attribute's text under key if the attribute exists.
void readAttribute(QDomElement element, const QString &name, const QString &key, QJsonObject &json)
{
    const QDomAttr attribute = element.attributeNode(name);
    if (!attribute.isNull()) {
        json.insert(key, attribute.value());
    }
}

// The places of a ZQTX element that paths lead to. Child elements and property rows are looked up once and kept for the
// length of one walk, during which the tree must not change.
class TxPlaces
{
public:
    explicit TxPlaces(const QDomElement &element)
        : m_element(element)
    {
    }

    // The text at a path, or nothing if its place is missing.
    std::optional<QString> text(const QJsonArray &path)
    {
        const QString first = path.at(0).toString();
        switch (path.size()) {
        case 1:
            return attributeText(m_element, first);
        case 2: {
            const QDomElement holder = first == propertiesTag ? descendantByTag(m_element, first)
                                                              : childByTagAndContent(m_element, first, false);
            return holder.isNull() ? std::nullopt : attributeText(holder, path.at(1).toString());
        }
        case 3:
            return first == propertiesTag ? propertyText(path) : innerText(first, path);
        default:
            return std::nullopt;
        }
    }

private:
    struct Child
    {
        QString tag;
        QDomElement element;
    };

    static std::optional<QString> attributeText(QDomElement element, const QString &name)
    {
        const QDomAttr attribute = element.attributeNode(name);
        return attribute.isNull() ? std::nullopt : std::make_optional(attribute.value());
    }

    std::optional<QString> propertyText(const QJsonArray &path)
    {
        if (!m_rowsFound) {
            findRows();
        }
        if (m_rows.isEmpty()) {
            return std::nullopt;
        }
        const auto row = m_rows.constFind(path.at(2).toString());
        if (row == m_rows.constEnd()) {
            return std::nullopt;
        }
        return row->attribute(QStringLiteral("value"));
    }

    std::optional<QString> innerText(const QString &tag, const QJsonArray &path)
    {
        const QDomElement child = childWithContent(tag);
        if (child.isNull()) {
            return std::nullopt;
        }
        const QDomElement inner = descendantByTag(child, path.at(1).toString());
        return inner.isNull() ? std::nullopt : attributeText(inner, path.at(2).toString());
    }

    QDomElement childWithContent(const QString &tag)
    {
        for (const Child &child : qAsConst(m_children)) {
            if (child.tag == tag) {
                return child.element;
            }
        }
        m_children.append({tag, childByTagAndContent(m_element, tag, true)});
        return m_children.last().element;
    }

    void findRows()
    {
        m_rowsFound = true;
        const QString nameAttribute = QStringLiteral("name");
        const QDomElement properties = childByTagAndContent(m_element, propertiesTag, true);
        for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
            const QString name = row.attribute(nameAttribute);
            if (!m_rows.contains(name)) {
                m_rows.insert(name, row);
            }
        }
    }

    QDomElement m_element;
    QVarLengthArray<Child, 6> m_children;
    QHash<QString, QDomElement> m_rows; // the first row of each name
    bool m_rowsFound = false;
};

// Items of the mathematics box are left alone by the eraser. At this moment Type is still the ZQTX type.
void ignoreEraserForMathematics(QJsonObject &json)
{
    const QLatin1String ignoreEraser("IgnoreEraser");
    if (json.value(QLatin1String("Type")).toString().contains(QLatin1String("Math")) && !json.contains(ignoreEraser)) {
        json.insert(ignoreEraser, true);
    }
}

QString fileNameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

// Copies a file into tmpFilePath/additional/ and gives the reference to it; empty for a file that doesn't exist.
QString copyLinkedFile(const QString &file, const QString &tmpFilePath)
{
    if (!QFile::exists(file)) {
        return {};
    }
    const QString directory = tmpFilePath + QLatin1String("/additional/");
    if (!QDir(directory).exists()) {
        QDir().mkdir(directory);
    }
    const QString name = fileNameOf(file);
    QFile::copy(file, directory + name);
    return QLatin1String("additional/") + name;
}

QString linkTarget(const QString &kind, const QString &value, const QString &tmpFilePath)
{
    if (kind == QLatin1String("ACTION_OPENFILE")) {
        return copyLinkedFile(value, tmpFilePath);
    }
    if (kind == QLatin1String("ACTION_OPENWEB")) {
        const bool hasScheme = value.contains(QLatin1String("http://")) || value.contains(QLatin1String("https://"));
        return hasScheme ? value : QLatin1String("http://") + value;
    }
    if (kind == QLatin1String("ACTION_TOOLTIP")) {
        return QLatin1String("txt://") + value;
    }
    if (kind == QLatin1String("ACTION_GOTOSLIDE")) {
        return QLatin1String("#page") + value;
    }
    if (kind == QLatin1String("ACTION_OPENTOOL")) {
        return QLatin1String("tool://") + value;
    }
    return {};
}

// x, y, Width and Height of the box under the matrix, and "transform" if the item has an angle.
void writeMappedBox(QDomElement &element, QJsonObject &json)
{
    const auto box = boxFromText(json.value(QLatin1String("BoundingBox")).toString());
    const auto matrix = matrixFromText(json.value(QLatin1String("Matrix")).toString());
    if (!box || !matrix) {
        return;
    }
    // The differences are taken in single precision, as the numbers of the text are.
    const QRectF rectangle(box->left(), box->top(), qreal(float(box->right()) - float(box->left())),
                           qreal(float(box->bottom()) - float(box->top())));
    const QRectF mapped = matrix->mapRect(rectangle);
    json.insert(QLatin1String("x"), numberText(mapped.left()));
    json.insert(QLatin1String("y"), numberText(mapped.top()));
    json.insert(QLatin1String("Width"), numberText(mapped.width()));
    json.insert(QLatin1String("Height"), numberText(mapped.height()));
    if (json.contains(QLatin1String("Angle"))) {
        const double centerX = (mapped.right() + mapped.left()) * 0.5;
        const double centerY = (mapped.bottom() + mapped.top()) * 0.5;
        element.setAttribute(QStringLiteral("transform"),
                             QString(QLatin1String("rotate(") + json.value(QLatin1String("Angle")).toString()
                                     + QLatin1Char(',') + numberText(centerX) + QLatin1Char(',') + numberText(centerY)
                                     + QLatin1Char(')')));
    }
}

// The angle of a transform with exactly three numbers between its brackets, such as "rotate(0.5,10,20)".
std::optional<QString> angleOfTransform(const QString &transform)
{
    const int open = transform.indexOf(QLatin1Char('('));
    const int close = transform.lastIndexOf(QLatin1Char(')'));
    if (open < 0 || close < open) {
        return std::nullopt;
    }
    const QStringList parts = transform.mid(open + 1, close - open - 1).split(QLatin1Char(','));
    if (parts.size() != 3) {
        return std::nullopt;
    }
    return parts.first();
}

} // namespace

/*!
 * Puts values into the rows of a <properties> element: into the first row that has the name or none, or else into a new
 * one at the end. An empty value leaves no row behind.
 */
class ZQHTran::PropertyRows
{
public:
    void write(QDomElement &properties, const QString &name, const QString &value)
    {
        if (!m_namesFound) {
            findNames(properties);
        }
        if (m_unnamed > 0 || m_names.contains(name)) {
            writeExisting(properties, name, value);
        } else if (!value.isEmpty()) {
            static const ElementTemplate rowTemplate(QStringLiteral(R"(<property value="" name=""/>)"));
            QDomElement row = rowTemplate.part();
            row.setAttribute(QStringLiteral("value"), value);
            row.setAttribute(QStringLiteral("name"), name);
            properties.appendChild(row);
            m_names.insert(name);
        }
    }

private:
    void findNames(const QDomElement &properties)
    {
        m_namesFound = true;
        for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
            const QString name = row.attribute(QStringLiteral("name"));
            if (name.isEmpty()) {
                ++m_unnamed;
            } else {
                m_names.insert(name);
            }
        }
    }

    void writeExisting(QDomElement &properties, const QString &name, const QString &value)
    {
        const QString nameAttribute = QStringLiteral("name");
        for (QDomElement row = properties.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
            const QString rowName = row.attribute(nameAttribute);
            if (rowName != name && !rowName.isEmpty()) {
                continue;
            }
            if (rowName.isEmpty()) {
                --m_unnamed;
            }
            if (value.isEmpty()) {
                properties.removeChild(row);
            } else {
                row.setAttribute(QStringLiteral("value"), value);
                row.setAttribute(nameAttribute, name);
                m_names.insert(name);
            }
            return;
        }
        m_names.remove(name);
        write(properties, name, value);
    }

    QSet<QString> m_names; // may still hold the name of a row that was taken out
    int m_unnamed = 0;
    bool m_namesFound = false;
};

int ZQHTran::idCounter = 1;

ZQHTran::ZQHTran()
{
    static const QJsonObject xml = PreparedPaths({attribute("ID", "NetID"), attribute("Delete")}).storedIn({});
    static const QJsonObject tx = PreparedPaths({attribute("ID", "id"), attribute("Delete")}).storedIn({});
    static const QJsonObject iwb = PreparedPaths({
                                                     attribute("ID", "id"),
                                                     attribute("x"),
                                                     attribute("y"),
                                                     attribute("Width", "width"),
                                                     attribute("Height", "height"),
                                                     attribute("InfiniteClone", "infiniteclone"),
                                                     attribute("Visible", "visible"),
                                                     attribute("LockIn", "lockin"),
                                                 })
                                       .storedIn({});
    xmlKeyMap = xml;
    txKeyMap = tx;
    iwbKeyMap = iwb;
}

ZQHTran::~ZQHTran() = default;

QJsonObject ZQHTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    readKeysFromXml(element, json);
    return json;
}

QJsonObject ZQHTran::tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    readKeysFromTx(element, json);
    return json;
}

QDomElement ZQHTran::tranJSON2ZQTX(QDomElement element, QJsonObject json, QJsonObject)
{
    writeKeysToTx(element, json);
    return element;
}

QDomElement ZQHTran::tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject)
{
    if (element.isNull()) {
        return element;
    }
    if (json.contains(QLatin1String("BoundingBox"))) {
        writeMappedBox(element, json);
    }
    for (auto it = iwbKeyMap.constBegin(); it != iwbKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        const auto value = json.constFind(it.key());
        if (path.size() != 1 || value == json.constEnd()) {
            continue;
        }
        if (it.key() == QLatin1String("Visible")) {
            element.setAttribute(path.first().toString(), value->toBool() ? QStringLiteral("1") : QStringLiteral("0"));
        } else {
            element.setAttribute(path.first().toString(), value->toString());
        }
    }
    return element;
}

QJsonObject ZQHTran::tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject)
{
    if (element.hasAttribute(QStringLiteral("transform"))) {
        if (const auto angle = angleOfTransform(element.attribute(QStringLiteral("transform")))) {
            json.insert(QLatin1String("Angle"), *angle);
        }
    }
    for (auto it = iwbKeyMap.constBegin(); it != iwbKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        if (path.isEmpty() || path.size() > 3) {
            continue;
        }
        QDomElement holder = element;
        for (int i = 0; i + 1 < path.size(); ++i) {
            // Only the last element on the way is a leaf.
            holder = childByTagAndContent(holder, path.at(i).toString(), i + 2 < path.size());
        }
        readAttribute(holder, path.last().toString(), it.key(), json);
    }
    return json;
}

QString ZQHTran::nextGeneratedId()
{
    // Unsigned arithmetic, so that a counter at its end wraps around.
    idCounter = int(uint(idCounter) + 1U);
    return QString::number(QDateTime::currentMSecsSinceEpoch() + qint64(idCounter));
}

void ZQHTran::appendIwbRecord(QDomDocument &document, const QString &tag, const QJsonObject &record)
{
    QDomElement iwb = document.firstChildElement(QStringLiteral("iwb"));
    QDomElement element = document.createElement(tag);
    element.setAttribute(QStringLiteral("ref"), record.value(QLatin1String("ref")).toString());
    if (record.contains(QLatin1String("iwb_locked"))) {
        const bool locked = record.value(QLatin1String("iwb_locked")).toBool();
        element.setAttribute(QStringLiteral("locked"), locked ? QStringLiteral("true") : QStringLiteral("false"));
    }
    if (record.contains(QLatin1String("iwb_background"))) {
        element.setAttribute(QStringLiteral("backgorund"), record.value(QLatin1String("iwb_background")).toString());
    }
    if (record.contains(QLatin1String("file"))) {
        element.setAttribute(QStringLiteral("file"), record.value(QLatin1String("file")).toString());
    }
    iwb.appendChild(element);
}

void ZQHTran::setLinkHref(QDomElement &link, const QString &kind, const QString &value, const QString &tmpFilePath)
{
    link.setAttribute(QStringLiteral("xlink:href"), linkTarget(kind, value, tmpFilePath));
}

void ZQHTran::readKeysFromXml(QDomElement &element, QJsonObject &json) const
{
    for (auto it = xmlKeyMap.constBegin(); it != xmlKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        if (path.isEmpty()) {
            continue;
        }
        const QString first = path.first().toString();
        if (path.size() > 1) {
            QDomElement holder = element;
            for (int i = 0; i + 1 < path.size(); ++i) {
                holder = descendantByTag(holder, path.at(i).toString());
            }
            readAttribute(holder, path.last().toString(), it.key(), json);
        } else if (first.startsWith(QLatin1Char('[')) && first.endsWith(QLatin1Char(']'))) {
            const QString tag = first.mid(1, first.size() - 2);
            const QDomElement found = descendantByTag(element, tag);
            if (!found.isNull()) {
                json.insert(tag, attributesAsJson(found));
            }
        } else if (first.startsWith(QLatin1Char('<')) && first.endsWith(QLatin1Char('>'))) {
            const QString tag = first.mid(1, first.size() - 2);
            const QDomElement found = descendantByTag(element, tag);
            if (!found.isNull()) {
                QJsonArray rows;
                for (QDomElement row = found.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
                    rows.append(attributesAsJson(row));
                }
                json.insert(tag, rows);
            }
        } else {
            readAttribute(element, first, it.key(), json);
        }
    }
    if (!json.contains(QLatin1String("ID"))) {
        const QString id = nextGeneratedId();
        json.insert(QLatin1String("ID"), id);
        element.setAttribute(QStringLiteral("ID"), id);
    }
}

void ZQHTran::readKeysFromTx(const QDomElement &element, QJsonObject &json) const
{
    TxPlaces places(element);
    bool typeMayBeNew = true;
    for (auto it = txKeyMap.constBegin(); it != txKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        if (path.isEmpty()) {
            continue;
        }
        if (const auto text = places.text(path)) {
            const QString key = it.key();
            json.insert(key, *text);
            typeMayBeNew = typeMayBeNew || key == QLatin1String("Type");
        }
        if (typeMayBeNew && path.size() == 1) {
            typeMayBeNew = false;
            ignoreEraserForMathematics(json);
        }
    }
}

void ZQHTran::writeKeysToTx(QDomElement &element, const QJsonObject &json) const
{
    if (element.isNull()) {
        return;
    }
    PropertyRows propertyRows;
    for (auto it = json.constBegin(); it != json.constEnd(); ++it) {
        const QJsonArray path = txKeyMap.value(it.key()).toArray();
        if (path.isEmpty() || path.size() > 3) {
            continue;
        }
        const QString first = path.at(0).toString();
        const QString value = it.value().toString();
        if (path.size() == 1) {
            if (first == QLatin1String("visible")) {
                element.setAttribute(first, it.value().toBool() ? QStringLiteral("1") : QStringLiteral("0"));
            } else {
                element.setAttribute(first, value);
            }
            continue;
        }
        if (element.firstChildElement().isNull()) {
            continue;
        }
        QDomElement child = childByTag(element, first);
        if (child.isNull()) {
            child = element.appendChild(newElement(first)).toElement();
        }
        if (path.size() == 2) {
            child.setAttribute(path.at(1).toString(), value);
        } else {
            writeThreeSegmentPath(child, value, path, propertyRows);
        }
    }
}

void ZQHTran::writeThreeSegmentPath(QDomElement child, const QString &value, const QJsonArray &path,
                                    PropertyRows &propertyRows)
{
    if (path.at(0).toString() == propertiesTag) {
        propertyRows.write(child, path.at(2).toString(), value);
    } else {
        childByTag(child, path.at(1).toString()).setAttribute(path.at(2).toString(), value);
    }
}
