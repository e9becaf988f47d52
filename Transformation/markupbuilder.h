// SPDX-License-Identifier: MIT
#ifndef MARKUPBUILDER_H
#define MARKUPBUILDER_H

#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QVector>

//! Whether a parser gives back the very same value if it is put between the double quotes of an attribute.
bool isPlainAttributeValue(const QString &value);

//! Whether a parser gives back the very same value if it is all the text that an element has.
bool isPlainText(const QString &value);

/*!
 * Makes an element of a text into which values are put without escaping, so that markup in a value becomes part of the
 * text. As long as no value has any, the elements are made without a parser, which costs a fraction.
 */
class MarkupBuilder
{
public:
    //! Begins an element. Its attributes come next, then its content.
    void open(QLatin1String tag);
    void attribute(QLatin1String name, const QString &value);
    void text(const QString &value);
    void cdata(const QString &value);
    //! Ends the element that was opened last.
    void close();

    //! The document element of the text, as elementFromXml gives it.
    QDomElement element() const;

private:
    void endTag();
    void dropTree();

    QString m_text;
    QVector<QLatin1String> m_open; //!< the tags of the elements that aren't closed yet
    bool m_isInTag = false;
    bool m_hasTree = true; //!< until the first value that only a parser can place
    QDomDocument m_document;
    QDomNode m_current;
};

#endif // MARKUPBUILDER_H
