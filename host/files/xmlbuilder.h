// SPDX-License-Identifier: MIT
#ifndef XMLBUILDER_H
#define XMLBUILDER_H

#include "files/xmlloader.h"
#include "files/xmlsource.h"

#include <QDomElement>
#include <QXmlStreamReader>

namespace lessonhost {

//! Throws LessonError for a file that is too large to be read.
void checkXmlFileSize(qint64 size, const QString &displayName);

/*!
 * Builds the DOM from a stream, so that the text is looked through once and everything that is refused is refused
 * before a node is made for it.
 */
class XmlBuilder
{
public:
    //! text: open, and outliving this. name: of the document in messages.
    XmlBuilder(QIODevice *text, const QString &name, XmlBlanks blanks = XmlBlanks::Dropped);
    virtual ~XmlBuilder() = default;

    //! Throws LessonError.
    QDomDocument build();

protected:
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
    int line() const { return int(m_reader.lineNumber()); }

    XmlSource m_source;
    QXmlStreamReader m_reader;
    QXmlStreamAttributes m_attributes; // of the element that was just read
    QDomDocument m_document;
    QDomNode m_current;
    int m_depth = 0;
    qint64 m_memory = 0; // that the nodes take
    qint64 m_memoryBefore = 0; // without the element that was just read

private:
    void refuseSource() const;
    void characters();
    void flushText();

    QString m_name;
    XmlBlanks m_blanks;
    QString m_text;
};

} // namespace lessonhost

#endif // XMLBUILDER_H
