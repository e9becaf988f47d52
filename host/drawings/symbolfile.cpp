// SPDX-License-Identifier: MIT
#include "drawings/symbolfile.h"

#include "files/xmlloader.h"
#include "svg/svgpath.h"
#include "svg/svgvalues.h"

#include <QDir>
#include <QFile>

// Outside of all namespaces, as the macro wants it.
static void makeSymbolsKnown()
{
    Q_INIT_RESOURCE(symbols);
}

namespace lessonhost {

namespace {

const QLatin1String folder(":/symbols/");
const QLatin1String suffix(".svg");

/*!
 * Which keys the colours of a family's symbols come from: words of a role, a colon and keys with commas between. A file
 * may have others of its own.
 */
struct FamilyColors
{
    const char *prefix; //!< of the names of its types
    const char *colors;
};

constexpr FamilyColors familyColors[] = {
    {"ZQPhysics", "edge:ArtObj_Color0 fill:ArtObj_Color1"},
    {"ZQChemistry", "liquid:ArtObj_LiquidColor"},
    {"ZQVector", "edge:ArtVectObj_FrameColor fill:ArtVectObj_RegionColor"},
};

void addColors(QHash<QString, QStringList> &keys, const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        keys.insert(word.section(QLatin1Char(':'), 0, 0),
                    word.section(QLatin1Char(':'), 1).split(QLatin1Char(','), Qt::SkipEmptyParts));
    }
}

std::optional<QPointF> pointIn(const QDomElement &element, const QString &attribute)
{
    const QVector<double> numbers = svgNumbers(element.attribute(attribute));
    return numbers.size() == 2 ? std::optional<QPointF>(QPointF(numbers.at(0), numbers.at(1))) : std::nullopt;
}

void readCondition(SymbolPart &part)
{
    const QString unless = part.element.attribute(QStringLiteral("data-unless"));
    const QString condition = unless.isEmpty() ? part.element.attribute(QStringLiteral("data-if")) : unless;
    part.key = condition.section(QLatin1Char('='), 0, 0);
    part.value = part.key == condition ? QString() : condition.section(QLatin1Char('='), 1);
    part.isUnless = !unless.isEmpty();
    part.isUsual = part.element.attribute(QStringLiteral("display")) != QLatin1String("none");
}

SymbolPart::Kind kindOf(const QDomElement &element)
{
    if (element.hasAttribute(QStringLiteral("data-scale"))) {
        return SymbolPart::Kind::Scale;
    }
    if (element.hasAttribute(QStringLiteral("data-repeat-x"))
        || element.hasAttribute(QStringLiteral("data-repeat-y"))) {
        return SymbolPart::Kind::Repeated;
    }
    if (element.hasAttribute(QStringLiteral("data-vessel"))) {
        return SymbolPart::Kind::Liquid;
    }
    const QString tag = element.tagName();
    return tag == QLatin1String("text")                            ? SymbolPart::Kind::Word
        : tag == QLatin1String("svg") || tag == QLatin1String("g") ? SymbolPart::Kind::Group
                                                                   : SymbolPart::Kind::Outline;
}

// With what it has from the parts around it: their style, and their roles where it says no colour of its own.
SymbolPart readPart(const QDomElement &element, const SvgStyle &above, const SymbolPart &around)
{
    const auto ignore = [](const Sentence &) {};
    const SvgStyle style = above.child(element, element.attribute(QStringLiteral("transform")), ignore);
    SymbolPart part;
    part.element = element;
    part.kind = kindOf(element);
    readCondition(part);
    part.paint = svgPaint(style, false, ignore);
    part.matrix = style.matrix;
    part.fontPixels = style.fontPixels();
    part.lineRole = element.hasAttribute(QStringLiteral("stroke")) ? QString() : around.lineRole;
    part.fillRole = element.hasAttribute(QStringLiteral("fill")) ? QString() : around.fillRole;
    const QStringList roles = element.attribute(QStringLiteral("class")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &role : roles) {
        (role.startsWith(QLatin1String("edge")) ? part.lineRole : part.fillRole) = role;
    }
    part.kept = pointIn(element, QStringLiteral("data-keep"));
    part.upright = pointIn(element, QStringLiteral("data-upright"));
    const auto outline = part.kind == SymbolPart::Kind::Liquid
        ? svgPath(element.attribute(QStringLiteral("data-vessel")))
        : svgOutline(element);
    part.outline = style.matrix.map(outline.value_or(QPainterPath()));
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        part.children.append(readPart(child, style, part));
    }
    return part;
}

QByteArray contentOf(const QString &type)
{
    QFile file(folder + type + suffix);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SymbolFile::SymbolFile(const QDomDocument &document, const QString &type)
    : m_document(document)
    , m_root(document.documentElement())
{
    const QVector<double> box = svgNumbers(m_root.attribute(QStringLiteral("viewBox")));
    m_size = QSizeF(box.value(2), box.value(3));
    // Without a word about it, all of a side stretches.
    const auto stretching = [this](const QString &name, double side) {
        return m_root.hasAttribute(name) ? svgNumbers(m_root.attribute(name)) : QVector<double>{0, side};
    };
    m_across = stretching(QStringLiteral("data-stretch-x"), m_size.width());
    m_down = stretching(QStringLiteral("data-stretch-y"), m_size.height());
    m_keys.insert(QStringLiteral("edge"), {});
    for (const FamilyColors &family : familyColors) {
        if (type.startsWith(QLatin1String(family.prefix))) {
            addColors(m_keys, QLatin1String(family.colors));
        }
    }
    addColors(m_keys, m_root.attribute(QStringLiteral("data-colors")));
    // What is filled or written with the colour of lines.
    for (const QString &role : {QStringLiteral("ink"), QStringLiteral("text")}) {
        if (!m_keys.contains(role)) {
            m_keys.insert(role, m_keys.value(QStringLiteral("edge")));
        }
    }
    m_whole = readPart(m_root, {}, {});
}

std::shared_ptr<const SymbolFile> SymbolFile::ofType(const QString &type)
{
    makeSymbolsKnown();
    static QHash<QString, std::shared_ptr<const SymbolFile>> known;
    const auto found = known.constFind(type);
    if (found != known.constEnd()) {
        return *found;
    }
    // A name of a lesson is none of a file before it is known.
    const QByteArray text = types().contains(type) ? contentOf(type) : QByteArray();
    if (text.isEmpty()) {
        return nullptr;
    }
    const std::shared_ptr<const SymbolFile> file(new SymbolFile(loadXml(text, type + suffix, XmlBlanks::Kept), type));
    known.insert(type, file);
    return file;
}

QStringList SymbolFile::types()
{
    makeSymbolsKnown();
    static const QStringList types = [] {
        QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
        for (QString &name : names) {
            name.chop(suffix.size());
        }
        return names;
    }();
    return types;
}

std::optional<QColor> SymbolFile::color(const QString &role, const ItemView &item) const
{
    // Only a fill can be taken away by itself.
    if (role == QLatin1String("fill") && !item.isFilled()) {
        return QColor(Qt::transparent);
    }
    const QStringList keys = m_keys.value(role);
    for (const QString &key : keys) {
        if (const auto color = itemColor(item.json().value(key))) {
            return color;
        }
    }
    return std::nullopt;
}

bool SymbolPart::isShownFor(const ItemView &item) const
{
    const QJsonValue told = key.isEmpty() ? QJsonValue() : item.json().value(key);
    if (isEmptyValue(told)) {
        return isUsual;
    }
    const QString text = valueText(told);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    // A text is set as a number is that isn't 0.
    const bool holds = value.isNull() ? !isNumber || number != 0 : text == value;
    return holds != isUnless;
}

} // namespace lessonhost
