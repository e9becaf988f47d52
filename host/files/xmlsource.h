// SPDX-License-Identifier: MIT
#ifndef XMLSOURCE_H
#define XMLSOURCE_H

#include <QIODevice>
#include <QQueue>

#include <memory>

class QTextDecoder;
class QTextEncoder;

namespace lessonhost {

//! What makes a document not worth parsing.
enum class XmlProblem { None, TooLarge, TooManyAttributes, DocumentType, OddEncoding, Unreadable };

/*!
 * Where a tag stands in a document, in bytes.
 */
struct XmlTag
{
    enum Kind { Start, End, Empty };

    Kind kind = Start;
    qint64 begin = 0; //!< of its "<"
    qint64 end = 0; //!< behind its ">"
};

/*!
 * Looks through a document that comes in pieces for what a parser takes too long over: tags with many attributes, and
 * document types. It needs to follow a text only as long as that is well-formed: where it isn't, a parser stops.
 */
class XmlScan
{
public:
    //! A piece in UTF-8. None may follow one with a problem.
    XmlProblem take(const QByteArray &piece);

    //! Where it is.
    int line() const { return m_line; }

    //! Keeps the tags from now on, until they are taken.
    void keepTags() { m_keepsTags = true; }
    //! The first of those that were kept.
    XmlTag takeTag() { return m_tags.isEmpty() ? XmlTag() : m_tags.dequeue(); }

private:
    enum Place { Text, Open, Mark, Comment, CData, Instruction, Tag, Value };

    XmlProblem takeByte(uchar c);
    void takeOpen(uchar c);
    void endTag();
    XmlProblem takeMark(uchar c);
    void takeUntilEnd(uchar c, uchar repeated, int times);

    Place m_place = Text;
    uchar m_quote = 0;
    uchar m_last = 0; // in the tag, outside of its values
    int m_run = 0; // of the character that a mark or its end begins with
    int m_values = 0; // in the tag
    int m_line = 1;
    qint64 m_at = 0;
    XmlTag m_tag;
    bool m_keepsTags = false;
    QQueue<XmlTag> m_tags;
};

/*!
 * The bytes of an XML document on their way to the parser. Where it has a problem, the document ends.
 */
class XmlSource : public QIODevice
{
public:
    //! source: open, and outliving this.
    explicit XmlSource(QIODevice *source);
    ~XmlSource() override;

    XmlProblem problem() const { return m_problem; }
    int line() const { return m_scan.line(); }

    //! False for a document whose bytes aren't UTF-8.
    bool isUtf8() const { return !m_decoder; }
    //! Keeps the tags, whose places are those in the document or, where that isn't UTF-8, in what is written to copy.
    void keepTags(QIODevice *copy);
    //! That of an element which the parser has just told the start or the end of; of an empty element it is one for both.
    XmlTag takeTag() { return m_scan.takeTag(); }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    void findEncoding();
    XmlProblem scan(const char *data, qint64 size);

    QIODevice *m_source;
    XmlScan m_scan;
    std::unique_ptr<QTextDecoder> m_decoder; // null for UTF-8, whose bytes can be scanned as they are
    std::unique_ptr<QTextEncoder> m_encoder; // to UTF-8; null as well
    QIODevice *m_copy = nullptr;
    qint64 m_size = 0;
    XmlProblem m_problem = XmlProblem::None;
};

} // namespace lessonhost

#endif // XMLSOURCE_H
