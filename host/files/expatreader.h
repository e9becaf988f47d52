// SPDX-License-Identifier: MIT
#ifndef EXPATREADER_H
#define EXPATREADER_H

#include "files/xmlsource.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <array>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>

struct XML_ParserStruct;

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
 * Goes through XML in UTF-8 by expat, which takes a fraction of the time that Qt's parser takes. Whatever these two may
 * see differently, or is wrong, is left to Qt's parser, which begins anew: what is read here is what it would read.
 */
class ExpatReader
{
public:
    enum Step {
        Start,
        End,
        Text, //!< a part of a text between two tags, which may have several
        Section //!< a CDATA section
    };

    //! document: open, a file or buffer, and outliving this. take: is told each step; an empty element has a start and
    //! an end.
    ExpatReader(QIODevice *document, std::function<void(Step)> take);
    ~ExpatReader();

    //! Once. False where only the other parser can tell what stands in the document, or what is wrong with it. Throws
    //! what take does.
    bool read();

    //! Of the element that has just begun, for as long as that is told.
    const QString &name() const { return *m_name; }
    const QVector<ReadAttribute> &attributes() const { return m_attributes; }
    //! Of the element that has just begun or ended; of an empty element it is one for both.
    const XmlTag &tag() const { return m_tag; }

    //! Puts the text or section that is told behind others.
    void appendTo(QString &text) const;
    int textSize() const { return m_letters.data() ? m_letters.size() : m_text.size(); }

private:
    struct Calls; // what expat calls
    struct Release
    {
        void operator()(XML_ParserStruct *parser) const;
    };

    void start(const char *name, const char **attributes);
    bool takeAttribute(const char *name, const char *value);
    void end();
    void text(const char *letters, int size);
    void beginSection();
    void endSection();
    void declaration(const char *version, const char *encoding);
    void leave();
    const QString *sharedName(const char *name);
    bool beginsPlainly() const;

    QIODevice *m_document;
    std::function<void(Step)> m_take;
    std::unique_ptr<XML_ParserStruct, Release> m_parser;
    bool m_isLeft = false; // to the other parser
    std::exception_ptr m_failure; // of take: it may not pass through expat
    bool m_hasStepped = false; // in the last piece of the document

    using Names = std::map<std::string, QString, std::less<>>;
    using Name = Names::value_type;
    Names m_names; // so that elements of a kind share theirs
    std::array<const Name *, 128> m_recentNames{}; // some of them, to be found at once
    const QString *m_name = nullptr;
    QVector<ReadAttribute> m_attributes;
    XmlTag m_tag;
    QLatin1String m_letters; // of a text in ASCII
    QString m_text; // another
    bool m_isSection = false; // around what is read
    QString m_section;
};

} // namespace lessonhost

#endif // EXPATREADER_H
