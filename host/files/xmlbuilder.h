// SPDX-License-Identifier: MIT
#ifndef XMLBUILDER_H
#define XMLBUILDER_H

#include "files/expatreader.h"
#include "files/xmlloader.h"
#include "files/xmlsource.h"

#include <QDomElement>
#include <QVector>

#include <memory>

class QXmlStreamReader;

namespace lessonhost {

//! Throws LessonError for a file that is too large to be read.
void checkXmlFileSize(qint64 size, const QString &displayName);

/*!
 * Builds the DOM from a stream, so that the text is looked through once and everything that is refused is refused
 * before a node is made for it. A document that is written as most are is read by expat. One that isn't, or is refused, is
 * begun again with Qt's parser, which tells what is wrong with it.
 */
class XmlBuilder
{
public:
    //! text: open, seekable, and outliving this. name: of the document in messages.
    XmlBuilder(QIODevice *text, const QString &name, XmlBlanks blanks = XmlBlanks::Dropped);
    virtual ~XmlBuilder();

    //! Throws LessonError.
    QDomDocument build();
    //! The same by Qt's parser alone.
    QDomDocument parse();

protected:
    //! Before the first element is read, and again where it is begun again.
    virtual void begin();
    //! What the parser is about to read.
    virtual void beginParsing(XmlSource &) { }
    virtual void startElement();
    virtual void endElement();
    //! False where what is read gets no nodes.
    virtual bool makesNodes() const { return true; }

    //! Checks the element that was just read against the bounds, and counts what a node of it takes.
    void enterElement();
    //! A node of it, which is the current one then.
    QDomElement makeElement();
    //! Puts a node into the current one, or into the document, and makes it the current one.
    void enterNode(const QDomNode &node);
    void takeMemory(qint64 bytes);
    //! That of the element which was just told to start or to end, and wasn't taken before; of an empty element it is
    //! one for both. The source has to keep the tags.
    XmlTag takeTag();

    //! The element that was just read.
    const QString &tagName() const;
    const QVector<ReadAttribute> &attributes() const;

    QDomDocument m_document;
    QDomNode m_current;
    int m_depth = 0;
    qint64 m_memory = 0; // that the nodes take
    qint64 m_memoryBefore = 0; // without the element that was just read

private:
    bool buildByExpat();
    void take(ExpatReader::Step step);
    void takeStartElement();
    void characters();
    void refuseSource() const;
    void addSection(const QString &text);
    void flushText();
    int line() const;

    QIODevice *m_device;
    QString m_name;
    XmlBlanks m_blanks;
    QString m_text;
    std::unique_ptr<ExpatReader> m_expat; // null where the parser reads
    std::unique_ptr<XmlSource> m_source;
    std::unique_ptr<QXmlStreamReader> m_reader;
    QString m_parsedName; // of the element that the parser has just read
    QVector<ReadAttribute> m_parsedAttributes;
};

} // namespace lessonhost

#endif // XMLBUILDER_H
