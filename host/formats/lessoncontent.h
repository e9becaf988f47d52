// SPDX-License-Identifier: MIT
#ifndef LESSONCONTENT_H
#define LESSONCONTENT_H

#include <QString>
#include <QStringList>

namespace lessonhost {

/*!
 * What a file plainly is, whatever it is called.
 */
struct LessonContent
{
    QStringList names; //!< of the files in an archive, without the folder that all of them lie in
    QString rootTag; //!< of an XML document, without a prefix
    bool isJson = false; //!< it begins like an object

    bool isKnown() const { return isJson || !names.isEmpty() || !rootTag.isEmpty(); }
};

//! Looks at a file's first bytes, and at the list of an archive. All is empty for what can't be told. Throws
//! LessonError for what isn't a file that can be read.
LessonContent lessonContent(const QString &file);

} // namespace lessonhost

#endif // LESSONCONTENT_H
