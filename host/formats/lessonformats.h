// SPDX-License-Identifier: MIT
#ifndef LESSONFORMATS_H
#define LESSONFORMATS_H

#include "formats/lessoncontent.h"
#include "lesson/lesson.h"
#include "sentences/sentence.h"

#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

namespace lessonhost {

/*!
 * A format as lessonconv offers it.
 */
struct LessonFormat
{
    QString name;
    QStringList extensions; //!< lower case, without the point
    Sentence description; //!< a line for "lessonconv formats"
    //! True for a folder that is a lesson in this format; may be empty. Throws LessonError for what can't be read.
    std::function<bool(const QString &path)> recognizes;
    //! True for what a file in this format holds.
    std::function<bool(const LessonContent &content)> holds;
    bool isModel = false; //!< it holds all that a reader holds
    bool takesPictures = false; //!< of items that it has no form for
    bool isCommonEnding = false; //!< files with such a name often are no lessons
    bool measuresText = false; //!< to read or write it takes a QGuiApplication, for its fonts
    QStringList options; //!< of the command that are for it, by name
    QString folderBeside; //!< the name of a folder beside a file that belongs to it; may be empty
    std::function<std::unique_ptr<LessonReader>(const QString &path, const LessonContext &context)> open;
    //! Empty where the format is only read.
    std::function<std::unique_ptr<LessonWriter>(const QString &path, const LessonContext &context)> create;

    bool canRead() const { return bool(open); }
    bool canWrite() const { return bool(create); }
};

//! All formats, each added by one line in lessonformats.cpp.
const QVector<LessonFormat> &lessonFormats();

//! The format of that name. Throws LessonError for a name that no format has.
const LessonFormat &lessonFormatByName(const QString &name);

//! The format of a lesson on disk, by what it holds or, failing that, by its extension.
const LessonFormat &lessonFormatOfInput(const QString &path);

//! The format of a file by what it holds alone; null where that says nothing, or something that no format knows.
//! isKnown: set to true in the second case.
const LessonFormat *lessonFormatByContent(const QString &file, bool *isKnown = nullptr);

//! Where a file's name says another format than the one it is read in: a sentence for the user. Empty otherwise.
Sentence remarkOnName(const QString &path, const LessonFormat &format);

//! The format to write, by the extension; a path without one is a ZQTX directory.
const LessonFormat &lessonFormatOfOutput(const QString &path);

//! Throws LessonError for the first of the options, by name, of which the format makes no use.
void checkUseOf(const QStringList &options, const LessonFormat &format);

// The rows of lessonFormats(), one function each in the file of its format.
LessonFormat jsonFormat();
LessonFormat zqtxFormat();
LessonFormat rawXmlFormat();
LessonFormat iwbFormat();

} // namespace lessonhost

#endif // LESSONFORMATS_H
