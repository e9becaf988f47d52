// SPDX-License-Identifier: MIT
#include "iwbformat.h"

#include <QDomDocument>
#include <QHash>
#include <QRectF>
#include <QRegularExpression>
#include <QSet>
#include <QVector>

namespace {

const QString iwbNamespace = "http://www.becta.org.uk/iwb";
const QString svgNamespace = "http://www.w3.org/2000/svg";
const QString xlinkNamespace = "http://www.w3.org/1999/xlink";

QStringList words(const char *text)
{
    return QString(text).split(' ', Qt::SkipEmptyParts);
}

// Attributes of several elements.
#define LINE " stroke stroke-width stroke-opacity stroke-dasharray stroke-linecap stroke-linejoin transform"
#define FILL " fill fill-opacity" LINE
#define FONT " fill font-family font-size font-style font-weight font-stretch"
#define SHAPES " circle ellipse image line polygon polyline rect text textarea video"

struct Form
{
    const char *name;
    const char *required;
    const char *optional;
    const char *children;
    bool hasText = false;
};
const Form forms[] = {
    {"svg", "viewbox", "width height", "pageset a g switch" SHAPES},
    {"pageset", "", "", "page"},
    {"page", "", "id", "a g switch" SHAPES},
    {"g", "", FILL, "a g switch" SHAPES},
    {"a", "href", "id requiredExtensions", "tbreak tspan" SHAPES, true},
    {"switch", "", "", "g" SHAPES},
    {"line", "x1 y1 x2 y2", "id" LINE, ""},
    {"polyline", "points", "id" LINE, ""},
    {"polygon", "points", "id" FILL, ""},
    {"rect", "x y width height", "id" FILL, ""},
    {"circle", "cx cy r", "id" FILL, ""},
    {"ellipse", "cx cy rx ry", "id" FILL, ""},
    {"image", "href x y width height", "id fill-opacity requiredExtensions" LINE, ""},
    {"video", "href x y width height", "id requiredExtensions" LINE, ""},
    {"text", "x y", "id transform" FONT, "tspan a", true},
    {"textarea", "x y width height", "id transform text-align space" FONT, "tbreak tspan a", true},
    {"tspan", "", "id text-align" FONT, "tbreak tspan a", true},
    {"tbreak", "", "", ""},
};

#define NUMBER "-?(\\d+(\\.\\d*)?|\\.\\d+)(e[-+]?\\d+)?"
#define COLOR "none|[a-z]+|#[0-9a-fA-F]{3}|#[0-9a-fA-F]{6}|rgb\\((\\d+,\\d+,\\d+|\\d+%,\\d+%,\\d+%)\\)"

// What the values of attributes look like; of others, anything goes.
struct Values
{
    const char *attributes;
    const char *pattern;
};
const Values values[] = {
    {"x y x1 y1 x2 y2 cx cy", NUMBER},
    {"width height r rx ry stroke-width font-size", "(?!-)" NUMBER},
    {"viewbox", NUMBER "([ ,]" NUMBER "){3}"},
    {"points", NUMBER "," NUMBER "( " NUMBER "," NUMBER ")*"},
    {"fill stroke background-fill highlight-fill list-style-type-fill", COLOR},
    {"fill-opacity stroke-opacity", "0(\\.\\d+)?|1|\\d(\\.\\d+)?e-\\d+"},
    {"stroke-dasharray", NUMBER "(," NUMBER ")*"},
    {"stroke-linecap", "butt|round|square"},
    {"stroke-linejoin", "miter|round|bevel"},
    {"font-style", "normal|italic|oblique"},
    {"font-weight", "normal|bold|bolder|lighter|[1-9]00"},
    {"font-stretch", "normal|wider|narrower|((ultra|extra|semi)-)?(condensed|expanded)"},
    {"text-align", "start|end|center|justify"},
    {"transform", "((translate\\(" NUMBER "," NUMBER "\\)|rotate\\(" NUMBER "(," NUMBER "," NUMBER ")?\\)) ?)+"},
    {"locked replicate background revealer freehand highlight editable", "true|false"},
    {"background-posture", "scaled-to-fit|stretched-to-fill|repeated|by-position"},
    {"flip", "none|horizontal|vertical|both"},
    {"stroke-lineshape-start stroke-lineshape-end", "none|arrow|circle|line"},
    {"file", "internal|external"},
    {"id ref", ".+"},
    {"space", "preserve"},
};

// Which elements a record may say something of.
struct Targets
{
    const char *attributes;
    const char *elements;
};
const Targets targets[] = {
    {"locked replicate", "circle ellipse image line polygon polyline rect text textarea video"},
    {"background", "rect image"},
    {"background-posture flip", "image"},
    {"revealer", "rect"},
    {"freehand highlight", "polyline"},
    {"stroke-lineshape-start stroke-lineshape-end", "line polyline"},
    {"background-fill highlight-fill editable list-style-type list-style-type-fill", "text textarea"},
    {"background-fill highlight-fill list-style-type list-style-type-fill type", "tspan"},
};

struct Folder
{
    const char *name;
    const char *suffixes; // null for all
};
const Folder folders[] = {{"images", "jpg jpeg bmp gif png wmf emf tif tiff"},
                          {"videos", "mpg mpeg"},
                          {"audio", "wav mp3"},
                          {"flash", "swf"},
                          {"thumbnails", "png bmp"},
                          {"additional", nullptr}};

class Checker
{
public:
    explicit Checker(const QMap<QString, QByteArray> &files)
        : m_files(files)
    {
    }

    QStringList problems()
    {
        QDomDocument document;
        QString error;
        if (!document.setContent(m_files.value("content.xml"), true, &error)) {
            return {"content.xml: " + error};
        }
        checkFiles();
        checkRoot(document.documentElement());
        return m_problems;
    }

private:
    void tell(const QDomElement &element, const QString &what)
    {
        m_problems.append('<' + element.tagName() + ' ' + element.attribute("id", element.attribute("ref")) + "> "
                          + what);
    }

    void checkFiles()
    {
        for (auto it = m_files.begin(); it != m_files.end(); ++it) {
            const QString folder = it.key().section('/', 0, 0);
            const QString suffix = it.key().section('.', -1).toLower();
            bool isKnown = it.key() == "content.xml";
            for (const Folder &row : folders) {
                isKnown = isKnown
                    || (folder == row.name && it.key().contains('/')
                        && (!row.suffixes || words(row.suffixes).contains(suffix)));
            }
            if (!isKnown || (folder == "thumbnails" && !it.key().startsWith("thumbnails/thumbnail"))) {
                m_problems.append(it.key() + " has no place in the package");
            }
        }
    }

    void checkRoot(const QDomElement &root)
    {
        if (root.tagName() != "iwb" || root.attribute("version") != "1.0") {
            tell(root, "is no root");
        }
        int step = 0;
        QVector<QDomElement> records;
        for (QDomElement child = root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            const bool isSvg = child.namespaceURI() == svgNamespace && child.localName() == "svg";
            const bool isMeta = child.namespaceURI() == iwbNamespace && child.localName() == "meta";
            const int own = isMeta ? 0 : isSvg ? 1 : 2;
            if (own < step || (isSvg && step == 1)) {
                tell(child, "stands in the wrong order");
            }
            step = own;
            if (isSvg) {
                checkElement(child, {});
            } else if (!isMeta) {
                records.append(child);
            } else if (child.attribute("name").isEmpty() || !child.hasAttribute("content")) {
                tell(child, "says nothing");
            }
        }
        for (const QDomElement &record : records) {
            checkRecord(record);
        }
        for (const QDomElement &link : m_links) {
            checkLink(link);
        }
        for (const QDomElement &page : m_pages) {
            checkBackground(page);
        }
    }

    void checkElement(const QDomElement &element, const QDomElement &page)
    {
        const QString name = element.localName();
        const Form *form =
            std::find_if(std::begin(forms), std::end(forms), [&name](const Form &row) { return name == row.name; });
        if (element.namespaceURI() != svgNamespace || form == std::end(forms)) {
            tell(element, "is no element of the format");
            return;
        }
        checkAttributes(element, words(form->required), words(form->optional));
        const QString id = element.attribute("id");
        if (!id.isEmpty() && m_byId.contains(id)) {
            tell(element, "has the identifier of another");
        }
        m_byId.insert(id, element);
        m_pageOf.insert(id, m_pages.size());
        if (name == "page") {
            m_pages.append(element);
        } else if (name == "a") {
            m_links.append(element);
        } else if (name == "svg") {
            m_viewBox = numbersIn(element.attribute("viewbox"));
            const double width = element.attribute("width").toDouble();
            const double height = element.attribute("height").toDouble();
            if (qAbs(width * m_viewBox.value(3) - height * m_viewBox.value(2)) > 1e-3 * width * height) {
                tell(element, "has units that aren't square");
            }
        } else if ((name == "image" || name == "video") && !m_files.contains(hrefOf(element))) {
            tell(element, "shows no file of the package: " + hrefOf(element));
        } else if (words("circle ellipse rect polygon").contains(name) && element.hasAttribute("stroke-linecap")
                   && !element.hasAttribute("stroke-dasharray")) {
            tell(element, "has caps and no ends");
        }
        for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
            const QDomElement child = node.toElement();
            const bool isInText = form->hasText && (name != "a" || page.localName() == "textarea");
            if (node.isText() && !isInText && !node.nodeValue().trimmed().isEmpty()) {
                tell(element, "holds a text");
            } else if (!child.isNull() && !words(form->children).contains(child.localName())) {
                tell(element, "holds a <" + child.tagName() + '>');
            } else if (!child.isNull()) {
                checkElement(child, element);
            }
        }
    }

    static QString hrefOf(const QDomElement &element) { return element.attributeNS(xlinkNamespace, "href"); }

    static QVector<double> numbersIn(const QString &text)
    {
        QVector<double> numbers;
        for (const QString &number : text.split(QRegularExpression("[ ,]"))) {
            numbers.append(number.toDouble());
        }
        return numbers;
    }

    void checkAttributes(const QDomElement &element, const QStringList &required, const QStringList &optional)
    {
        QStringList found;
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomAttr attribute = attributes.item(i).toAttr();
            if (attribute.name().startsWith("xmlns")) {
                continue;
            }
            const QString name = attribute.localName().isEmpty() ? attribute.name() : attribute.localName();
            const bool isOfOthers = !attribute.namespaceURI().isEmpty()
                && !(name == "href" && attribute.namespaceURI() == xlinkNamespace) && name != "space";
            found.append(name);
            if (isOfOthers || !(required + optional).contains(name)) {
                tell(element, "has an attribute \"" + attribute.name() + '"');
            } else if (!isValue(name, attribute.value())) {
                tell(element, "has " + name + "=\"" + attribute.value() + '"');
            }
        }
        for (const QString &name : required) {
            if (!found.contains(name)) {
                tell(element, "has no \"" + name + '"');
            }
        }
    }

    static bool isValue(const QString &name, const QString &value)
    {
        static const QHash<QString, QRegularExpression> patterns = [] {
            QHash<QString, QRegularExpression> all;
            for (const Values &row : values) {
                for (const QString &attribute : words(row.attributes)) {
                    all.insert(attribute, QRegularExpression(QRegularExpression::anchoredPattern(row.pattern)));
                }
            }
            return all;
        }();
        return !patterns.contains(name) || patterns.value(name).match(value).hasMatch();
    }

    void checkRecord(const QDomElement &record)
    {
        const QString name = record.localName();
        if (record.namespaceURI() != iwbNamespace || !words("element group link tspan").contains(name)) {
            tell(record, "is no record");
        } else if (name == "group") {
            checkGroup(record);
        } else if (name == "link") {
            checkAttributes(record, {"ref"}, {"file"});
            m_linkFiles.insert(record.attribute("ref"), record.attribute("file", "internal"));
            if (m_byId.value(record.attribute("ref")).localName() != "a") {
                tell(record, "is about no link");
            }
        } else {
            checkElementRecord(record);
        }
    }

    void checkElementRecord(const QDomElement &record)
    {
        QStringList known;
        const QString target = m_byId.value(record.attribute("ref")).localName();
        for (const Targets &row : targets) {
            if (words(row.elements).contains(target)) {
                known += words(row.attributes);
            }
        }
        if (target.isEmpty()) {
            tell(record, "is about nothing");
        } else if ((target == "tspan") != (record.localName() == "tspan")) {
            tell(record, "is about a <" + target + ">");
        }
        checkAttributes(record, {"ref"}, known);
        if (record.attribute("background") == "true") {
            m_backgrounds.insert(record.attribute("ref"));
        }
    }

    void checkGroup(const QDomElement &group)
    {
        QSet<int> pages;
        int members = 0;
        checkAttributes(group, {}, {});
        for (QDomElement member = group.firstChildElement(); !member.isNull(); member = member.nextSiblingElement()) {
            const QString id = member.attribute("ref");
            checkElementRecord(member);
            if (member.localName() != "element" || m_grouped.contains(id)) {
                tell(member, "can't be in a group");
            }
            m_grouped.insert(id);
            pages.insert(m_pageOf.value(id));
            ++members;
        }
        if (members < 2 || pages.size() != 1) {
            tell(group, "is no group of a page");
        }
    }

    void checkLink(const QDomElement &link)
    {
        const QString target = hrefOf(link);
        const bool isWeb = QRegularExpression("^https?://").match(target).hasMatch();
        const bool isPlace = target.startsWith('#') && m_byId.contains(target.mid(1));
        const bool isOutside = m_linkFiles.value(link.attribute("id")) == "external";
        if (!isWeb && !isPlace && !isOutside && !m_files.contains(target)) {
            tell(link, "leads nowhere: " + target);
        }
        if (link.firstChild().isNull()) {
            tell(link, "shows nothing");
        }
    }

    // At most one colour, which comes first and covers the page, and a picture right behind it.
    void checkBackground(const QDomElement &page)
    {
        int at = 0;
        for (QDomElement child = page.firstChildElement(); !child.isNull(); child = child.nextSiblingElement(), ++at) {
            const QString id = child.attribute("id");
            if (!m_backgrounds.contains(id)) {
                continue;
            }
            const bool isColor = child.localName() == "rect";
            const QDomElement before = child.previousSiblingElement();
            const bool isBehind = before.localName() == "rect" && m_backgrounds.contains(before.attribute("id"));
            QVector<double> box;
            for (const char *name : {"x", "y", "width", "height"}) {
                box.append(child.attribute(name).toDouble());
            }
            if ((at != 0 && (isColor || !isBehind)) || box != m_viewBox || m_grouped.contains(id)) {
                tell(child, "is no background");
            }
        }
    }

    const QMap<QString, QByteArray> &m_files;
    QStringList m_problems;
    QVector<double> m_viewBox;
    QHash<QString, QDomElement> m_byId;
    QHash<QString, int> m_pageOf;
    QVector<QDomElement> m_pages;
    QVector<QDomElement> m_links;
    QHash<QString, QString> m_linkFiles;
    QSet<QString> m_backgrounds;
    QSet<QString> m_grouped;
};

} // namespace

QStringList formatProblems(const QMap<QString, QByteArray> &files)
{
    return Checker(files).problems();
}
