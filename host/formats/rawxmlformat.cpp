// SPDX-License-Identifier: MIT
#include "formats/lessonformats.h"

#include "files/domtools.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagesource.h"
#include "files/xmlparts.h"
#include "formats/keptitem.h"
#include "formats/rawattributes.h"
#include "formats/rawecho.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemtypes.h"
#include "lesson/itemvalues.h"
#include "lesson/pageplace.h"
#include "lesson/pagesize.h"
#include "lesson/slidelimits.h"
#include "losses/carriedcheck.h"
#include "losses/slidelosses.h"
#include "threads/readahead.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String rootTag("presentation");
const QLatin1String slideTag("slide");
const QLatin1String groupSons("GroupSonItems");
const QLatin1String resourceFolder("resources");
const QLatin1String netId("NetID");

// What a raw presentation says in attributes of its own; the plug-in reads none of them.
constexpr const char *presentationAttributes[] = {"Width",  "Height", "Version",       "Version_app",
                                                  "Author", "Date",   "Date_modified", "Title"};

// The plug-in finds the files of a list in the lesson's folder; a single file comes as the element names it.
void findSingleFile(const QDomElement &element, QJsonObject &item)
{
    const QLatin1String key("MultiMediaFile");
    const QString file = element.attribute(key);
    if (item.value(key) == QJsonValue(file)) {
        const int slash = file.lastIndexOf(QLatin1Char('/'));
        const QString name = file.mid((slash >= 0 ? slash : file.lastIndexOf(QLatin1Char('\\'))) + 1);
        item.insert(key, name.isEmpty() ? QString() : resourceFolder + QLatin1Char('/') + name);
    }
}

// The same in the script of a slide, by the order of its actions.
QJsonObject withStableActions(QJsonObject slide)
{
    static const QRegularExpression actionIndex(QStringLiteral("(?<=\"actionIndex\": \")[0-9]*(?=\")"));
    const QLatin1String key("objAnimationData");
    const QString script = slide.value(key).toString();
    QString stable;
    int number = 0;
    int end = 0;
    for (auto matches = actionIndex.globalMatch(script); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        stable += script.midRef(end, match.capturedStart() - end) + QString::number(++number);
        end = match.capturedEnd();
    }
    if (number > 0) {
        slide.insert(key, QString(stable + script.midRef(end)));
    }
    return slide;
}

/*!
 * Goes through a raw lesson: its slides are the parts.
 */
class RawVisitor : public XmlVisitor
{
public:
    void beginDocument() override
    {
        firstSlide.clear();
        ids.clear();
    }

    Way begin(const QDomElement &element) override
    {
        takeId(element.attribute(netId));
        const bool isSlide = element.tagName() == slideTag && element.parentNode().parentNode().isDocument();
        if (isSlide && firstSlide.isNull()) {
            firstSlide = element.cloneNode(false).toElement();
        }
        return isSlide ? Part : Inside;
    }

    Fate end(const QDomElement &) override { return Kept; }

    void pass(const Passed &passed) override { takeId(passed.attribute(netId)); }

    QDomElement firstSlide; // without what it holds
    QSet<qint64> ids; // of all elements, as far as they are numbers

private:
    void takeId(const QString &id)
    {
        const qint64 number = id.toLongLong();
        if (QString::number(number) == id) {
            ids.insert(number);
        }
    }
};

/*!
 * A lesson in raw XML: <presentation> with <slide> elements, whose children are the items; files in the folder
 * "resources" beside it.
 */
class RawXmlReader : public LessonReader
{
public:
    RawXmlReader(const QString &path, const LessonContext &context)
        : m_context(context)
        , m_path(path)
        , m_parts(path, path, m_visitor)
        , m_losses(context.losses)
        , m_echo(context.plugin)
        , m_attributes(context.plugin, resourceFolder + QLatin1Char('/'))
    {
        const QDomElement root = m_parts.outline();
        if (root.tagName() != rootTag) {
            throw LessonError(
                say("The document begins with <%1> where a raw lesson has <%2>").arg(root.tagName(), rootTag),
                say("Check that this is a lesson in raw XML"))
                .in(path);
        }
        // Reading gives an element without an identifier one.
        m_presentation = readPresentation(root.cloneNode(true).toElement());
        setStableId(m_presentation, root);
        if (context.verify && context.losses) {
            CarriedCheck(m_losses.presentation(), CarriedCheck::InOwnWords)
                .compare(QString(rootTag), root, m_echo.ofPresentation(root, m_presentation));
        }
        addPageSize();
    }

    QJsonObject presentation() override { return m_presentation; }
    int slideCount() override { return m_parts.count(); }

    LessonSlide slide(int index) override
    {
        const SlideLosses losses = m_losses.slide(index + 1);
        const CarriedCheck slideCheck(losses, CarriedCheck::InOwnWords);
        const CarriedCheck *check = m_context.verify && losses.isHeard() ? &slideCheck : nullptr;

        // It stands alone: reading changes elements.
        const XmlPart part = m_slides.take(index, m_parts.count());
        const QDomElement element = part.element;
        element.parentNode().removeChild(element);
        QVector<QDomElement> items = takeElements(element, element.firstChildElement());
        LessonSlide slide;
        m_nextId = (index + 1) * idsOfSlide;
        const QDomElement untouched = element.cloneNode(true).toElement();
        slide.properties = withStableActions(m_context.plugin->tranSlideXML2JSON(element, context()));
        setStableId(slide.properties, untouched);
        if (check) {
            check->compare({slideTag, untouched.attribute(netId)}, untouched,
                           m_echo.ofSlide(untouched, slide.properties));
        }
        QJsonObject itemContext = context();
        itemContext.insert(QStringLiteral("slide"), slide.properties);
        for (QDomElement &item : items) {
            slide.items.append(readItem(item, itemContext, check));
            item.clear(); // while the memory is at hand
        }
        tellInkWithoutPoints(slide.items, losses);
        checkSlideItems(slide.items, index + 1, m_path);
        return slide;
    }

    QStringList resources() override
    {
        const QFileInfo folder(QFileInfo(m_path).absolutePath() + QLatin1Char('/') + resourceFolder);
        if (!folder.isDir()) {
            return {};
        }
        QStringList files = PackageSource(folder.filePath()).files();
        for (QString &file : files) {
            file.prepend(resourceFolder + QLatin1Char('/'));
        }
        return files;
    }

    QString resourceFile(const QString &relativePath) override
    {
        return PackageSource(QFileInfo(m_path).absolutePath()).file(relativePath);
    }

private:
    XmlPart part(int index) const
    {
        checkSlideSize(m_parts.size(index), index + 1, m_path);
        return m_parts.part(index);
    }

    static constexpr qint64 idsOfSlide = 1000000;

    // The identifiers that the plug-in makes up are others each time; a lesson that is read twice has the same.
    void setStableId(QJsonObject &object, const QDomElement &element)
    {
        if (element.hasAttribute(netId)) {
            return;
        }
        while (m_visitor.ids.contains(m_nextId)) {
            ++m_nextId;
        }
        object.insert(ItemKeys::id, QString::number(m_nextId++));
    }

    // References to files get the folder as their only directory, wherever they pointed to on the machine they are
    // from.
    QJsonObject context() const
    {
        return {{QStringLiteral("pres"), m_presentation},
                {QStringLiteral("path"), QString(resourceFolder + QLatin1Char('/'))}};
    }

    QJsonObject readPresentation(const QDomElement &root) const
    {
        QJsonObject presentation = m_context.plugin->tranPresXML2JSON(root, context());
        for (const char *name : presentationAttributes) {
            const QLatin1String key(name);
            if (root.hasAttribute(key) && !presentation.contains(key)) {
                presentation.insert(key, root.attribute(key));
            }
        }
        return presentation;
    }

    // A raw lesson says how large its slides were; the model wants the page that they are fitted into.
    void addPageSize()
    {
        if (m_visitor.firstSlide.isNull() || m_presentation.contains(PresentationKeys::width)
            || m_presentation.contains(PresentationKeys::height)) {
            return;
        }
        const QJsonObject slide = m_context.plugin->tranSlideXML2JSON(m_visitor.firstSlide, context());
        const QSize size = pageOfSourceRect(valueText(slide.value(SlideKeys::sourceRect)));
        m_presentation.insert(PresentationKeys::width, QString::number(size.width()));
        m_presentation.insert(PresentationKeys::height, QString::number(size.height()));
    }

    QJsonObject readItem(QDomElement element, const QJsonObject &context, const CarriedCheck *check)
    {
        QVector<QDomElement> nested;
        QDomElement sons;
        if (isContainer(element.tagName())) {
            sons = element.firstChildElement(groupSons);
            nested = takeElements(sons, sons.firstChildElement());
        }
        const bool isCopied = check && isChangedByReading(element);
        const QDomElement untouched = isCopied ? element.cloneNode(true).toElement() : element;
        QJsonObject item = readSingle(element, context);
        if (item.isEmpty()) {
            for (const QDomElement &son : qAsConst(nested)) {
                sons.appendChild(son);
            }
            return keptItem(element, element.tagName(), netId);
        }
        setStableId(item, untouched);
        findSingleFile(untouched, item);
        if (check) {
            takeEmptied(untouched, groupSons);
            m_echo.compareItem({element.tagName(), item.value(ItemKeys::id).toString()}, untouched, item, *check);
        }
        nameMediaFile(item);
        // The order of a raw group's sons is from front to back.
        QJsonArray children;
        for (auto son = nested.crbegin(); son != nested.crend(); ++son) {
            children.append(readItem(*son, context, check));
        }
        if (!children.isEmpty()) {
            item.insert(HostKeys::children, children);
        }
        return item;
    }

    // Reading takes the drawing out of a vector shape and gives an element without an identifier one.
    static bool isChangedByReading(const QDomElement &element)
    {
        const QString drawing = QStringLiteral("ArtVectObj_Manager");
        return !element.hasAttribute(netId) || !element.elementsByTagName(drawing).isEmpty();
    }

    // What held the items of a group and says nothing of its own.
    static void takeEmptied(QDomElement group, const QString &tag)
    {
        const QDomElement child = group.firstChildElement(tag);
        if (!child.hasAttributes() && !child.hasChildNodes()) {
            group.removeChild(child);
        }
    }

    // The form has no place for them.
    static void tellInkWithoutPoints(const QJsonArray &items, const SlideLosses &losses)
    {
        for (const QJsonValue &value : items) {
            const QJsonObject item = value.toObject();
            if (isInk(item.value(ItemKeys::type).toString()) && valueText(item.value(ItemKeys::steps)).isEmpty()) {
                losses.absent(item, ItemKeys::steps, say("the points are not in the file"));
            }
            tellInkWithoutPoints(item.value(HostKeys::children).toArray(), losses);
        }
    }

    QJsonObject readSingle(const QDomElement &element, const QJsonObject &context)
    {
        QJsonObject item = m_context.plugin->tranItemXML2JSON(element, context);
        if (!item.isEmpty()) {
            m_attributes.addTo(item, element);
            makeNumbersFinite(item);
        }
        return item;
    }

    LessonContext m_context;
    QString m_path;
    RawVisitor m_visitor;
    XmlParts m_parts;
    LessonLosses m_losses;
    RawEcho m_echo;
    RawAttributes m_attributes;
    qint64 m_nextId = 1;
    QJsonObject m_presentation;
    ReadAhead<XmlPart> m_slides{m_context.readsAhead, [this](int index) { return part(index); }};
};

} // namespace

LessonFormat rawXmlFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("rawxml");
    format.extensions = QStringList{QStringLiteral("xml")};
    format.description = say("flat XML in one file, files in the folder \"resources\" beside it; only read");
    format.holds = [](const LessonContent &content) { return content.rootTag == rootTag; };
    format.isCommonEnding = true;
    format.folderBeside = resourceFolder;
    format.open = [](const QString &path, const LessonContext &context) -> std::unique_ptr<LessonReader> {
        return std::make_unique<RawXmlReader>(path, context);
    };
    return format;
}

} // namespace lessonhost
