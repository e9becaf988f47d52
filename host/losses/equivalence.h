// SPDX-License-Identifier: MIT
#ifndef EQUIVALENCE_H
#define EQUIVALENCE_H

#include <QJsonValue>
#include <QString>

namespace lessonhost {

// What is the same in another dress. What keys of the model say is compared by modelvalues.

/*!
 * The form of a value, which says which texts of it are the same.
 */
enum class ValueForm {
    Text, //!< the same characters
    Flag, //!< 0 or 1
    Number,
    Numbers, //!< with commas between; a comma at the end stands before none
    Points, //!< the same, in single precision
    InkColor, //!< #aarrggbb or another name of the colour that is the same in eight bits a channel
    InkWidth, //!< which may bear the mark "[ ,]"
    SubjectColor, //!< a,r,g,b; r,g,b is opaque
    Json, //!< the same values
};

/*!
 * Where a text stands in XML.
 */
struct XmlPlace
{
    QString parent; //!< tag of the element around the element; empty for a child of the outermost one
    QString tag; //!< of the element; empty for the outermost one
    QString attribute; //!< empty for the text of the element
};

//! The form of values in ZQTX.
ValueForm formOfPlace(const XmlPlace &place);

//! What an attribute says there that is empty or missing; an empty text where that says nothing.
QString impliedText(const XmlPlace &place);

//! True if two texts say the same in that form. A text that is not of the form is the same as itself alone.
bool isSameText(ValueForm form, const QString &given, const QString &found);

} // namespace lessonhost

#endif // EQUIVALENCE_H
