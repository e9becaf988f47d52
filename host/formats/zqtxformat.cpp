// SPDX-License-Identifier: MIT
#include "formats/lessonformats.h"

#include "files/domtools.h"
#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/packagesource.h"
#include "files/packagetarget.h"
#include "files/xmlloader.h"
#include "files/xmlreadback.h"
#include "files/xmltext.h"
#include "formats/zqtxitems.h"
#include "izqtransformation.h"
#include "lesson/activitypictures.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/pageplace.h"
#include "lesson/slidelimits.h"
#include "lesson/writableforms.h"
#include "losses/carriedcheck.h"
#include "losses/comparison.h"
#include "losses/lossplaces.h"
#include "losses/slidelosses.h"
#include "svg/pluginoutlines.h"
#include "threads/readahead.h"
#include "threads/workbehind.h"

#include <QFileInfo>
#include <QSet>

namespace lessonhost {

namespace {

const QLatin1String indexFile("index.xml");
const QLatin1String indexTag("main");
const QLatin1String slideFileTag("slide");
const QLatin1String itemsTag("items");
const QLatin1String slidesTag("slides");
// How many elements stand around an item.
constexpr int itemDepth = 2;

QString slideFile(const QString &id)
{
    return QLatin1String("slides/") + id + QLatin1String(".xml");
}

QDomElement rootOf(const QDomDocument &document, const QString &tag, const QString &file)
{
    const QDomElement root = document.documentElement();
    if (root.tagName() != tag) {
        throw LessonError(say("The document begins with <%1> where a lesson has <%2>").arg(root.tagName(), tag),
                          say("Check that this is a ZQTX lesson"))
            .in(file);
    }
    return root;
}

/*!
 * A ZQTX slide document and its two forms: the model and the XML.
 */
class ZqtxSlides
{
public:
    ZqtxSlides(IZQTransformation *plugin, const QJsonObject &presentation)
        : m_plugin(plugin)
        , m_items(plugin, presentation)
        , m_presentation(presentation)
    {
    }

    LessonSlide read(const QDomElement &root, const QString &path, const CarriedCheck *check) const
    {
        const QJsonObject context{{QStringLiteral("pres"), m_presentation}, {QStringLiteral("path"), path}};
        const QDomElement items = root.firstChildElement(itemsTag);
        QVector<QDomElement> elements = takeElements(items, items.firstChildElement());
        LessonSlide slide;
        slide.properties = readProperties(root, context);
        if (check) {
            check->compare({slideFileTag, slide.properties.value(SlideKeys::id).toString()}, root,
                           writeProperties(slide.properties).documentElement());
        }
        QJsonObject itemContext = context;
        itemContext.insert(QStringLiteral("slide"), slide.properties);
        for (QDomElement &element : elements) {
            slide.items.append(m_items.read(element, itemContext, check));
            element.clear(); // while the memory is at hand
        }
        return slide;
    }

    bool isHeld(const QString &type) const { return m_items.isHeld(type); }

    // Item by item, so that no more than one of them is there as a DOM unless tree is to hold them all; it may be null.
    // number, name: for messages.
    QByteArray write(const LessonSlide &slide, int number, const QString &name, QDomDocument *tree) const
    {
        const QDomDocument document = writeProperties(slide.properties);
        if (tree) {
            *tree = document;
        }
        const QDomElement root = document.documentElement();
        checkDepth(root, 0, number, name);
        QDomElement items = root.firstChildElement(itemsTag);
        if (slide.items.isEmpty() || items.isNull()) {
            return xmlDocumentText(root);
        }
        const QDomElement mark = items.appendChild(looseElement(itemsTag)).toElement();
        QByteArray text = xmlDocumentText(root);
        const QByteArray marked = xmlLines(mark, itemDepth);
        const int place = text.lastIndexOf(marked);
        const QByteArray end = text.mid(place + marked.size());
        text.truncate(place);
        items.removeChild(mark);
        for (const QJsonValue &item : slide.items) {
            const QDomElement element = m_items.write(item.toObject());
            checkDepth(element, itemDepth, number, name);
            text += xmlLines(element, itemDepth);
            checkSlideSize(text.size(), number, name);
            if (tree) {
                items.appendChild(element);
            }
        }
        return text + end;
    }

private:
    static void checkDepth(const QDomElement &element, int around, int number, const QString &name)
    {
        if (elementDepth(element) + around > maximumXmlDepth) {
            throw LessonError(
                say("The items of slide %1 are nested deeper than %2 levels of XML").arg(number).arg(maximumXmlDepth),
                say("Take some groups or branches apart"))
                .in(name);
        }
    }

    QJsonObject readProperties(const QDomElement &root, const QJsonObject &context) const
    {
        return withReferencesOf(root, m_plugin->tranSlideZQTX2JSON(root, context));
    }

    QDomDocument writeProperties(const QJsonObject &properties) const
    {
        return m_plugin->tranSlideJSON2ZQTX({}, writableProperties(properties));
    }

    IZQTransformation *m_plugin;
    ZqtxItems m_items;
    QJsonObject m_presentation;
};

QJsonObject readIndex(IZQTransformation *plugin, const QDomElement &root, const QString &path)
{
    QJsonObject presentation = plugin->tranPresZQTX2JSON(root, QJsonObject{{QStringLiteral("path"), path}});
    // The model of the plug-in has no title.
    const QString title = root.attribute(QStringLiteral("title"));
    if (!title.isEmpty()) {
        presentation.insert(HostKeys::title, title);
    }
    return presentation;
}

QDomDocument writeIndex(IZQTransformation *plugin, const QJsonObject &presentation, const QStringList &slideIds)
{
    QJsonObject written = writableProperties(presentation);
    QJsonArray slides;
    for (const QString &id : slideIds) {
        slides.append(QJsonObject{{SlideKeys::id, id}});
    }
    written.insert(QStringLiteral("Slides"), slides);
    QDomDocument document = plugin->tranPresJSON2ZQTX({}, written);
    document.documentElement().setAttribute(QStringLiteral("title"), written.value(HostKeys::title).toString());
    return document;
}

class ZqtxReader : public LessonReader
{
public:
    ZqtxReader(const QString &path, const LessonContext &context)
        : m_context(context)
        , m_source(path)
        , m_losses(context.losses)
    {
        const QDomDocument document = m_source.xml(indexFile);
        const QDomElement root = rootOf(document, indexTag, m_source.displayName(indexFile));
        readSlideList(root);
        m_presentation = readIndex(context.plugin, root, location());
        if (context.verify && context.losses) {
            CarriedCheck(m_losses.presentation())
                .compare(QStringLiteral("presentation"), root,
                         writeIndex(m_context.plugin, m_presentation, {}).documentElement());
        }
        m_slides = std::make_unique<ZqtxSlides>(context.plugin, m_presentation);
    }

    QJsonObject presentation() override { return m_presentation; }
    int slideCount() override { return m_files.size(); }

    LessonSlide slide(int index) override
    {
        const QString file = m_files.at(index);
        const QDomDocument document = m_documents.take(index, m_files.size());
        const QDomElement root = rootOf(document, slideFileTag, m_source.displayName(file));
        const SlideLosses losses = m_losses.slide(index + 1);
        const CarriedCheck check(losses);
        const bool isChecked = m_context.verify && losses.isHeard();
        LessonSlide slide = m_slides->read(root, location(), isChecked ? &check : nullptr);
        checkSlideItems(slide.items, index + 1, m_source.displayName(file));
        if (slide.properties.value(SlideKeys::id).toString().isEmpty()) {
            slide.properties.insert(SlideKeys::id, QFileInfo(file).completeBaseName());
        }
        noteRenamedFile(index, slide.properties.value(SlideKeys::id).toString(), losses);
        return slide;
    }

    QStringList resources() override
    {
        QStringList files = m_source.files();
        const QSet<QString> documents(m_files.cbegin(), m_files.cend());
        const auto end = std::remove_if(files.begin(), files.end(), [&documents](const QString &file) {
            return file == indexFile || documents.contains(file);
        });
        files.erase(end, files.end());
        return files;
    }

    QString resourceFile(const QString &relativePath) override { return m_source.file(relativePath); }

private:
    QDomDocument document(int index) const
    {
        const QString &file = m_files.at(index);
        checkSlideSize(m_source.size(file), index + 1, m_source.displayName(file));
        return m_source.xml(file);
    }

    QString location() const { return m_source.directory() + QLatin1Char('/') + indexFile; }

    // Takes the files out of the index, so that what is left there is the presentation's own.
    void readSlideList(const QDomElement &root)
    {
        const QString name = m_source.displayName(indexFile);
        const QString hrefAttribute = QStringLiteral("href");
        QDomElement list = root.firstChildElement(slidesTag);
        QSet<QString> known;
        QDomElement next;
        for (QDomElement entry = list.firstChildElement(QStringLiteral("file")); !entry.isNull(); entry = next) {
            next = entry.nextSiblingElement(QStringLiteral("file"));
            const QString file = entry.attribute(hrefAttribute);
            const Sentence problem = problemWithPackagePath(file);
            if (!problem.isEmpty()) {
                throw LessonError(say("The slide \"%1\" can't be opened: %2").arg(file, problem),
                                  say("Name a file of the package, such as slides/1.xml"))
                    .in(name);
            }
            if (known.contains(file)) {
                throw LessonError(say("The slide \"%1\" is named twice").arg(file), say("Remove one of the two lines"))
                    .in(name);
            }
            if (!m_source.contains(file)) {
                throw LessonError(say("The slide \"%1\" is missing from the package").arg(file),
                                  say("Put the file back, or remove its line"))
                    .in(name);
            }
            m_files.append(file);
            known.insert(file);
            entry.removeAttribute(hrefAttribute);
            if (entry.attributes().isEmpty() && !entry.hasChildNodes()) {
                list.removeChild(entry);
            }
        }
    }

    void noteRenamedFile(int index, const QString &id, const SlideLosses &losses) const
    {
        if (slideFile(id) == m_files.at(index)) {
            return;
        }
        losses.note(QString(slideFileTag),
                    say("the file %1 is called %2 when it is written again").arg(m_files.at(index), slideFile(id)),
                    SlideKeys::id);
    }

    LessonContext m_context;
    PackageSource m_source;
    LessonLosses m_losses;
    QStringList m_files;
    QJsonObject m_presentation;
    std::unique_ptr<ZqtxSlides> m_slides;
    ReadAhead<QDomDocument> m_documents{m_context.readsAhead, [this](int index) { return document(index); }};
};

// An archive for a name that ends in .zqtx, a folder for others.
bool isArchiveName(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("zqtx"), Qt::CaseInsensitive) == 0;
}

bool isZqtxFolder(const QString &path)
{
    const QString file = path + QLatin1Char('/') + indexFile;
    if (!QFileInfo(file).isFile()) {
        return false;
    }
    const QByteArray text = InputFile(file).all();
    try {
        return loadXml(text, file).documentElement().tagName() == indexTag;
    } catch (const LessonError &) {
        return false;
    }
}

class ZqtxWriter : public LessonWriter
{
public:
    ZqtxWriter(const QString &path, const LessonContext &context)
        : m_context(context)
        , m_losses(context.losses)
        , m_target(path, isArchiveName(path) ? PackageTarget::Archive : PackageTarget::Directory, isZqtxFolder)
        , m_places(context.losses)
        , m_behind(context.readsAhead)
    {
    }

    void expect(int slides, int resources) override { m_target.expectFiles(qint64(slides) + resources + 1); }

    void begin(const QJsonObject &presentation) override
    {
        m_presentation = presentation;
        m_slides = std::make_unique<ZqtxSlides>(m_context.plugin, presentation);
    }

    void addResource(const QString &relativePath, const QString &sourceFile) override
    {
        if (!m_context.isTrial) {
            m_target.copy(relativePath, sourceFile, relativePath);
        }
    }

    void writeSlide(const LessonSlide &slide) override
    {
        try {
            write(slide);
        } catch (const LessonError &) {
            settle();
            throw;
        }
    }

    // So that all is told of the slides that are written.
    void settle() override
    {
        m_behind.finish();
        m_places.finish();
    }

    void finish() override
    {
        settle();
        const QByteArray text = xmlDocumentText(writeIndex(m_context.plugin, m_presentation, m_ids).documentElement());
        if (!m_context.isTrial) {
            m_target.write(indexFile, text);
        }
        if (m_context.verify && m_losses.presentation().isHeard()) {
            const QString name = m_target.target() + QLatin1Char('/') + indexFile;
            Comparison(m_losses.presentation())
                .compareProperties(QStringLiteral("presentation"), m_presentation,
                                   readIndex(m_context.plugin, loadXml(text, name).documentElement(), name));
        }
        notePlacedItems();
        if (!m_context.isTrial) {
            m_target.commit();
        }
    }

private:
    // Such that few slides wait for it.
    static constexpr qint64 bytesOfSlide = qint64(16) * 1024 * 1024;

    void write(const LessonSlide &slide)
    {
        const int number = m_ids.size() + 1;
        LessonSlide written = slideInPageForm(slide, pluginOutlines(m_context.plugin), &m_placedItems,
                                              [this](const QString &type) { return isHeld(type); });
        written.properties = withShortPictures(written.properties);
        const QString id = usableId(valueText(slide.properties.value(SlideKeys::id)), number);
        written.properties.insert(SlideKeys::id, id);
        const QString name = m_target.target() + QLatin1Char('/') + slideFile(id);
        const bool isVerified = m_context.verify && m_losses.presentation().isHeard();
        QDomDocument tree;
        const QByteArray text = m_slides->write(written, number, name, isVerified ? &tree : nullptr);
        checkSlideSize(text.size(), number, name);
        m_ids.append(id);
        m_usedIds.insert(id);
        const SlideLosses losses(isVerified ? m_places.next() : nullptr, number);
        m_behind.give(bytesOfSlide, [this, slide, written, tree, text, name, isVerified, losses] {
            if (!m_context.isTrial) {
                m_target.write(slideFile(written.properties.value(SlideKeys::id).toString()), text);
            }
            if (isVerified) {
                check(slide, written, tree, text, name, losses);
            }
        });
    }

    // Reads back what was written. Any thread may do it. tree: what the text was written from.
    void check(const LessonSlide &slide, const LessonSlide &written, const QDomDocument &tree, const QByteArray &text,
               const QString &name, const SlideLosses &losses) const
    {
        // What the text says is what stands in the tree, in most cases.
        const QDomDocument document = readsBackAs(text, tree.documentElement()) ? tree : loadXml(text, name);
        const LessonSlide found = m_slides->read(document.documentElement(), m_target.target(), nullptr);
        QJsonObject given = keptInPageForm(slide.properties, written.properties);
        const QLatin1String activity("activity");
        if (given.value(activity).toObject().value(QLatin1String("templet")).isObject()) {
            given.insert(activity, written.properties.value(activity)); // pictures by their short names
        }
        const Comparison comparison(losses);
        const QString id = written.properties.value(SlideKeys::id).toString();
        comparison.compareProperties({slideFileTag, id}, given, found.properties);
        comparison.compareItems(slide.items, written.items, found.items);
    }

    void notePlacedItems() const
    {
        if (m_placedItems > 0) {
            m_losses.presentation().note(
                QStringLiteral("items"),
                sayNumber("%n had a matrix, which is worked into where they stand", m_placedItems));
        }
    }

    // The identifier names the slide's file.
    QString usableId(const QString &id, int number) const
    {
        if (id.isEmpty()) {
            QString free = QString::number(number);
            while (m_usedIds.contains(free)) {
                free.prepend(QLatin1Char('0'));
            }
            return free;
        }
        const Sentence problem = problemWithFileName(id);
        if (!problem.isEmpty()) {
            throw LessonError(
                say("The identifier \"%1\" of slide %2 can't name a file: %3").arg(id).arg(number).arg(problem),
                say("Give the slide another ID"))
                .in(m_target.target());
        }
        if (m_usedIds.contains(id)) {
            throw LessonError(say("Slide %1 has the identifier \"%2\" of a slide before it").arg(number).arg(id),
                              say("Give the slide another ID"))
                .in(m_target.target());
        }
        return id;
    }

    bool isHeld(const QString &type)
    {
        const auto known = m_heldTypes.constFind(type);
        return known == m_heldTypes.constEnd() ? *m_heldTypes.insert(type, m_slides->isHeld(type)) : *known;
    }

    LessonContext m_context;
    LessonLosses m_losses;
    PackageTarget m_target;
    QHash<QString, bool> m_heldTypes;
    QJsonObject m_presentation;
    QStringList m_ids;
    QSet<QString> m_usedIds;
    int m_placedItems = 0;
    std::unique_ptr<ZqtxSlides> m_slides;
    LossPlaces m_places;
    WorkBehind m_behind; // packs and checks slides; ends before what it uses
};

} // namespace

LessonFormat zqtxFormat()
{
    LessonFormat format;
    format.name = QStringLiteral("zqtx");
    format.extensions = QStringList{QStringLiteral("zqtx")};
    format.description = say("lesson package: a folder with index.xml and slides/, or the same zipped as .zqtx");
    format.recognizes = [](const QString &path) { return QFileInfo(path + QLatin1Char('/') + indexFile).isFile(); };
    format.holds = [](const LessonContent &content) { return content.names.contains(indexFile); };
    format.open = [](const QString &path, const LessonContext &context) -> std::unique_ptr<LessonReader> {
        return std::make_unique<ZqtxReader>(path, context);
    };
    format.create = [](const QString &path, const LessonContext &context) -> std::unique_ptr<LessonWriter> {
        return std::make_unique<ZqtxWriter>(path, context);
    };
    return format;
}

} // namespace lessonhost
