// SPDX-License-Identifier: MIT
#ifndef XMLPARTS_H
#define XMLPARTS_H

#include "files/inputfile.h"
#include "files/expatreader.h"

#include <QDomElement>
#include <QVector>

#include <memory>

namespace lessonhost {

class WorkFolder;

/*!
 * A part of a document, with the elements around it, which hold nothing else.
 */
struct XmlPart
{
    QDomDocument document; //!< keeps the element alive
    QDomElement element;
};

/*!
 * Is told what a document holds, from front to back, and which elements are its parts.
 */
class XmlVisitor
{
public:
    enum Way {
        Inside, //!< what it holds is told as well
        Part, //!< it is a part
        Past //!< nobody needs it
    };
    enum Fate {
        Kept, //!< it stays in the outline of the document
        Dropped,
        LatePart //!< it is a part after all
    };

    virtual ~XmlVisitor() = default;

    //! Before the first element. What was told before is void: a document that turns out to be an odd one is told
    //! again.
    virtual void beginDocument() = 0;
    //! An element outside of parts, in its place, with its attributes, and without what it holds.
    virtual Way begin(const QDomElement &element) = 0;
    //! The same at its end, if its way was inside. It holds what was kept.
    virtual Fate end(const QDomElement &element) = 0;

    /*!
     * An element in a part, or in one that is passed by.
     */
    class Passed
    {
    public:
        Passed(const QString &qualifiedName, const QVector<ReadAttribute> &itsAttributes, int depth,
               const QDomElement &around)
            : name(qualifiedName)
            , attributes(itsAttributes)
            , level(depth)
            , m_holder(around)
        {
        }
        //! A node of it in the outermost one, for as long as it is told.
        QDomElement node() const;
        //! The value of an attribute, empty where there is none.
        QString attribute(QLatin1String itsName) const;

        const QString &name;
        const QVector<ReadAttribute> &attributes;
        const int level; //!< 1 for a child of the part

    private:
        QDomElement m_holder;
    };
    virtual void pass(const Passed &) { }
};

/*!
 * An XML document on disk that is gone through once, and of which parts are read again, one at a time: no more of it is
 * held than its largest part and its outline. What is refused of documents in xmlloader.h is refused here, too, but
 * that the memory is bounded part by part.
 */
class XmlParts
{
public:
    //! displayName stands for the file in messages. Throws LessonError.
    XmlParts(const QString &fileName, const QString &displayName, XmlVisitor &visitor);
    ~XmlParts();

    //! What was kept of the document.
    QDomElement outline() const { return m_outline.documentElement(); }

    int count() const { return m_places.size(); }
    //! Parts are numbered from 0 in the order in which they were told. Throws LessonError.
    XmlPart part(int index) const;
    //! What a part takes of the document, in bytes.
    qint64 size(int index) const { return m_places.at(index).end - m_places.at(index).begin; }

private:
    class Builder;
    struct Place
    {
        qint64 begin;
        qint64 end;
        QDomElement holder; // in the outline
    };

    QString m_name;
    std::unique_ptr<InputFile> m_file;
    std::unique_ptr<WorkFolder> m_work; // holds the document in UTF-8 where it is in another encoding
    QDomDocument m_outline;
    QVector<Place> m_places;
};

} // namespace lessonhost

#endif // XMLPARTS_H
