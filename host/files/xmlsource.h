// SPDX-License-Identifier: MIT
#ifndef XMLSOURCE_H
#define XMLSOURCE_H

#include <QIODevice>

#include <memory>

class QTextDecoder;

namespace lessonhost {

//! What makes a document not worth parsing.
enum class XmlProblem { None, TooLarge, TooManyAttributes, DocumentType, OddEncoding, Unreadable };

/*!
 * Looks through a document that comes in pieces for what a parser takes too long over: tags with many attributes, and
 * document types. It needs to follow a text only as long as that is well-formed: where it isn't, a parser stops.
 */
class XmlScan
{
public:
    //! No piece may follow one with a problem.
    template <typename Char> XmlProblem take(const Char *begin, const Char *end);

    //! Where it is.
    int line() const { return m_line; }

private:
    enum Place { Text, Open, Mark, Comment, CData, Instruction, Tag, Value };

    XmlProblem takeCharacter(ushort c);
    void takeOpen(ushort c);
    XmlProblem takeMark(ushort c);
    void takeUntilEnd(ushort c, ushort repeated, int times);

    Place m_place = Text;
    ushort m_quote = 0;
    int m_run = 0; // of the character that a mark or its end begins with
    int m_values = 0; // in the tag
    int m_line = 1;
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
    qint64 m_size = 0;
    XmlProblem m_problem = XmlProblem::None;
};

} // namespace lessonhost

#endif // XMLSOURCE_H
