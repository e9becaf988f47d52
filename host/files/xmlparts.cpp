// SPDX-License-Identifier: MIT
#include "files/xmlparts.h"

#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/workfolder.h"
#include "files/xmlbuilder.h"

#include <QBuffer>

#include <algorithm>

namespace lessonhost {

namespace {

// What is remembered of an element that is dropped, in bytes.
constexpr qint64 rememberedMemory = 300;
const QString copyName = QStringLiteral("document.xml");

/*!
 * Builds the DOM of one part within the elements around it.
 */
class PartBuilder : public XmlBuilder
{
public:
    PartBuilder(QIODevice *text, const QString &name, const QDomElement &holder)
        : XmlBuilder(text, name)
    {
        for (QDomElement at = holder; !at.isNull(); at = at.parentNode().toElement()) {
            m_around.prepend(at);
        }
    }

    XmlPart part()
    {
        const QDomDocument document = build();
        return {document, m_holder.isNull() ? document.documentElement() : m_holder.lastChildElement()};
    }

protected:
    void begin() override
    {
        XmlBuilder::begin();
        for (const QDomElement &element : qAsConst(m_around)) {
            enterNode(m_document.importNode(element, false));
        }
        m_holder = m_current;
    }

private:
    QVector<QDomElement> m_around;
    QDomNode m_holder; // in the part's document
};

} // namespace

QDomElement XmlVisitor::Passed::node() const
{
    QDomElement holder = m_holder;
    QDomElement element = holder.appendChild(holder.ownerDocument().createElement(name)).toElement();
    for (const ReadAttribute &attribute : attributes) {
        element.setAttribute(attribute.name, attribute.value());
    }
    return element;
}

QString XmlVisitor::Passed::attribute(QLatin1String itsName) const
{
    const auto found = std::find_if(attributes.cbegin(), attributes.cend(),
                                    [itsName](const ReadAttribute &attribute) { return attribute.name == itsName; });
    return found == attributes.cend() ? QString() : found->value();
}

/*!
 * Goes through the document and makes nodes of what is outside of its parts.
 */
class XmlParts::Builder : public XmlBuilder
{
public:
    Builder(QIODevice *text, const QString &name, XmlVisitor &visitor, QVector<Place> &places)
        : XmlBuilder(text, name)
        , m_displayName(name)
        , m_visitor(visitor)
        , m_places(places)
    {
    }

    // Throws LessonError if the document couldn't be copied.
    void checkCopy() const
    {
        if (m_copy) {
            m_copy->check();
        }
    }

    // The folder that holds the document in UTF-8, or null for a document that is in it.
    std::unique_ptr<WorkFolder> takeCopy()
    {
        if (m_copy) {
            m_copy->finish();
        }
        return std::move(m_work);
    }

protected:
    void begin() override
    {
        XmlBuilder::begin();
        m_places.clear();
        m_open.clear();
        m_isEmpty = false;
        m_passed = 0;
        m_visitor.beginDocument();
    }

    void beginParsing(XmlSource &source) override
    {
        if (!source.isUtf8()) {
            m_work = std::make_unique<WorkFolder>();
            m_copy = std::make_unique<OutputFile>(m_work->filePath(copyName), m_displayName, OutputFile::Temporary);
        }
        source.keepTags(m_copy.get());
    }

    bool makesNodes() const override { return m_passed == 0; }

    void startElement() override
    {
        const XmlTag tag = takeTag();
        m_isEmpty = tag.kind == XmlTag::Empty;
        if (m_passed > 0) {
            QDomElement around = m_current.toElement();
            m_visitor.pass({tagName(), attributes(), m_passed, around});
            while (around.hasChildNodes()) {
                around.removeChild(around.firstChild());
            }
            ++m_passed;
            return;
        }
        const QDomElement element = makeElement();
        const XmlVisitor::Way way = m_visitor.begin(element);
        m_open.append({way, tag.begin, tag.end, m_memoryBefore});
        m_passed = way == XmlVisitor::Inside ? 0 : 1;
    }

    void endElement() override
    {
        const qint64 end = m_isEmpty ? -1 : takeTag().end;
        m_isEmpty = false;
        if (m_passed > 1) {
            --m_passed;
            return;
        }
        m_passed = 0;
        const QDomElement element = m_current.toElement();
        m_current = m_current.parentNode();
        const Open open = m_open.takeLast();
        const XmlVisitor::Fate fate = open.way == XmlVisitor::Inside ? m_visitor.end(element)
            : open.way == XmlVisitor::Part                           ? XmlVisitor::LatePart
                                                                     : XmlVisitor::Dropped;
        if (fate == XmlVisitor::Kept) {
            return;
        }
        m_memory = open.memory;
        takeMemory(rememberedMemory);
        if (fate == XmlVisitor::LatePart) {
            m_places.append({open.begin, end < 0 ? open.tagEnd : end, m_current.toElement()});
        }
        m_current.removeChild(element);
    }

private:
    struct Open
    {
        XmlVisitor::Way way;
        qint64 begin;
        qint64 tagEnd;
        qint64 memory; // up to it
    };

    QString m_displayName;
    XmlVisitor &m_visitor;
    QVector<Place> &m_places;
    std::unique_ptr<WorkFolder> m_work;
    std::unique_ptr<OutputFile> m_copy;
    QVector<Open> m_open; // elements that have a node
    bool m_isEmpty = false; // the element that was just read
    int m_passed = 0; // levels below the innermost node, which is one of them
};

XmlParts::XmlParts(const QString &fileName, const QString &displayName, XmlVisitor &visitor)
    : m_name(displayName)
    , m_file(std::make_unique<InputFile>(fileName, displayName))
{
    checkXmlFileSize(m_file->size(), displayName);
    Builder builder(m_file.get(), displayName, visitor, m_places);
    try {
        m_outline = builder.build();
    } catch (const LessonError &) {
        // A disk that fails is no lesson that is cut short.
        m_file->check();
        builder.checkCopy();
        throw;
    }
    m_file->check();
    m_work = builder.takeCopy();
    if (m_work) {
        m_file = std::make_unique<InputFile>(m_work->filePath(copyName), displayName);
    }
}

XmlParts::~XmlParts() = default;

XmlPart XmlParts::part(int index) const
{
    const Place &place = m_places.at(index);
    QBuffer text;
    text.setData(m_file->bytes(place.begin, place.end - place.begin));
    text.open(QIODevice::ReadOnly);
    return PartBuilder(&text, m_name, place.holder).part();
}

} // namespace lessonhost
