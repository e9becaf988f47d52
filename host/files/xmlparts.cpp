// SPDX-License-Identifier: MIT
#include "files/xmlparts.h"

#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/workfolder.h"
#include "files/xmlbuilder.h"

#include <QBuffer>

namespace lessonhost {

namespace {

// What is remembered of an element that is dropped, in bytes.
constexpr qint64 rememberedMemory = 300;

QDomElement withAttributes(QDomElement element, const QXmlStreamAttributes &attributes)
{
    for (const QXmlStreamAttribute &attribute : attributes) {
        element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    }
    return element;
}

/*!
 * Builds the DOM of one part within the elements around it.
 */
class PartBuilder : public XmlBuilder
{
public:
    PartBuilder(QIODevice *text, const QString &name, const QDomElement &holder)
        : XmlBuilder(text, name)
    {
        QVector<QDomElement> around;
        for (QDomElement at = holder; !at.isNull(); at = at.parentNode().toElement()) {
            around.prepend(at);
        }
        for (const QDomElement &element : qAsConst(around)) {
            enterNode(m_document.importNode(element, false));
        }
    }

    XmlPart part()
    {
        const QDomNode holder = m_current;
        const QDomDocument document = build();
        return {document, holder.isNull() ? document.documentElement() : holder.lastChildElement()};
    }
};

} // namespace

QDomElement XmlVisitor::Passed::node() const
{
    QDomElement holder = m_holder;
    return withAttributes(holder.appendChild(holder.ownerDocument().createElement(name)).toElement(), attributes);
}

/*!
 * Goes through the document and makes nodes of what is outside of its parts.
 */
class XmlParts::Builder : public XmlBuilder
{
public:
    Builder(QIODevice *text, const QString &name, XmlVisitor &visitor, QVector<Place> &places)
        : XmlBuilder(text, name)
        , m_visitor(visitor)
        , m_places(places)
    {
    }

    XmlSource &source() { return m_source; }

protected:
    bool makesNodes() const override { return m_passed == 0; }

    void startElement() override
    {
        const XmlTag tag = m_source.takeTag();
        m_isEmpty = tag.kind == XmlTag::Empty;
        if (m_passed > 0) {
            m_name = m_reader.qualifiedName().toString();
            QDomElement around = m_current.toElement();
            m_visitor.pass({m_name, m_attributes, m_passed, around});
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
        const qint64 end = m_isEmpty ? -1 : m_source.takeTag().end;
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

    XmlVisitor &m_visitor;
    QVector<Place> &m_places;
    QVector<Open> m_open; // elements that have a node
    QString m_name;
    bool m_isEmpty = false; // the element that was just read
    int m_passed = 0; // levels below the innermost node, which is one of them
};

XmlParts::XmlParts(const QString &fileName, const QString &displayName, XmlVisitor &visitor)
    : m_name(displayName)
    , m_file(std::make_unique<InputFile>(fileName, displayName))
{
    checkXmlFileSize(m_file->size(), displayName);
    Builder builder(m_file.get(), displayName, visitor, m_places);
    std::unique_ptr<OutputFile> copy;
    QString copyName;
    if (!builder.source().isUtf8()) {
        m_work = std::make_unique<WorkFolder>();
        copyName = m_work->filePath(QStringLiteral("document.xml"));
        copy = std::make_unique<OutputFile>(copyName, displayName, OutputFile::Temporary);
    }
    builder.source().keepTags(copy.get());
    try {
        m_outline = builder.build();
    } catch (const LessonError &) {
        // A disk that fails is no lesson that is cut short.
        m_file->check();
        if (copy) {
            copy->check();
        }
        throw;
    }
    m_file->check();
    if (copy) {
        copy->finish();
        m_file = std::make_unique<InputFile>(copyName, displayName);
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
