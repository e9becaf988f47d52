// SPDX-License-Identifier: MIT
#ifndef PLAINXML_H
#define PLAINXML_H

#include "files/xmlsource.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <array>
#include <optional>

namespace lessonhost {

/*!
 * An attribute of the element that was just read.
 */
class ReadAttribute
{
public:
    ReadAttribute() = default;
    ReadAttribute(const QString &itsName, const QString &value)
        : name(itsName)
        , m_value(value)
    {
    }
    //! letters: in ASCII, and there for as long as this is.
    ReadAttribute(const QString &itsName, QLatin1String letters)
        : name(itsName)
        , m_letters(letters)
    {
    }

    //! Made when it is asked for.
    QString value() const { return m_letters.data() ? QString(m_letters) : m_value; }
    int size() const { return m_letters.data() ? m_letters.size() : m_value.size(); }

    QString name;

private:
    QString m_value;
    QLatin1String m_letters;
};

/*!
 * Goes through XML in UTF-8 as most programs write it, in a tenth of the time that a parser takes. Whatever is rare or
 * wrong is left to the parser, which begins anew: what is read here is what it would read.
 */
class PlainXml
{
public:
    enum Step {
        Start,
        End,
        Text, //!< a part of a text between two tags, which may have several
        Section, //!< a CDATA section
        Finished, //!< the document is complete
        Unknown //!< only a parser can tell what stands here, or what is wrong with it
    };

    //! document: open, and outliving this.
    explicit PlainXml(QIODevice *document);

    //! None may follow Finished or Unknown. An empty element has a start and an end.
    Step next();

    //! Of the element that has just begun.
    const QString &name() const { return m_open.last(); }
    const QVector<ReadAttribute> &attributes() const { return m_attributes; }
    //! Of the element that has just begun or ended; of an empty element it is one for both.
    const XmlTag &tag() const { return m_tag; }

    //! Puts the text or section that was just read behind others.
    void appendTo(QString &text) const;
    int textSize() const { return m_letters.data() ? m_letters.size() : m_text.size(); }

private:
    std::optional<Step> takeStep();
    std::optional<Step> takeText();
    std::optional<Step> takeStart();
    std::optional<Step> takeEnd();
    std::optional<Step> takeMark();
    std::optional<Step> takeSection();
    std::optional<Step> takeComment();
    std::optional<Step> takeDeclaration();
    std::optional<const char *> takeAttribute(const char *at);
    Step setLetters(Step step, const char *begin, const char *end, unsigned found);
    const char *endOfName(const char *begin) const;
    const char *behindBlanks(const char *at) const;
    const QString &sharedName(const char *begin, const char *end);
    qint64 placeOf(const char *at) const { return m_pieceBegin + (at - m_piece.constData()); }
    XmlTag tagUpTo(XmlTag::Kind kind, const char *end) const;
    bool read();

    QIODevice *m_document;
    QByteArray m_piece; // of the document
    const char *m_at; // what is to be read next, in the piece
    const char *m_end;
    qint64 m_pieceBegin = 0; // in the document
    qint64 m_begin = 0; // behind a byte order mark
    bool m_isWhole = false; // nothing comes behind the piece

    QVector<QString> m_open; // names of the elements around what is to be read next
    bool m_hasRoot = false;
    bool m_isEmpty = false; // the element that has just begun
    XmlTag m_tag;
    QVector<ReadAttribute> m_attributes;
    QLatin1String m_letters; // of a text in ASCII
    QString m_text; // another
    std::array<QString, 256> m_names; // known ones, so that elements of a kind share theirs
};

} // namespace lessonhost

#endif // PLAINXML_H
