#ifndef LESSONFORMATS_H
#define LESSONFORMATS_H

#include "lesson/lesson.h"

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
    QString description; //!< a line for "lessonconv formats"
    //! True for a directory or file that is this format whatever its name says; may be empty. Throws LessonError for
    //! what can't be read.
    std::function<bool(const QString &path)> recognizes;
    //! False for a file that has the extension and plainly is something else; may be empty.
    std::function<bool(const QString &path)> mayBe;
    bool measuresText = false; //!< to read or write it takes a QGuiApplication, for its fonts
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

//! The format to write, by the extension; a path without one is a ZQTX directory.
const LessonFormat &lessonFormatOfOutput(const QString &path);

// The rows of lessonFormats(), one function each in the file of its format.
LessonFormat jsonFormat();
LessonFormat zqtxFormat();
LessonFormat rawXmlFormat();
LessonFormat iwbFormat();

} // namespace lessonhost

#endif // LESSONFORMATS_H
