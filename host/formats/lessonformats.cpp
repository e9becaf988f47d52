// SPDX-License-Identifier: MIT
#include "formats/lessonformats.h"

#include "files/lessonerror.h"

#include <QFileInfo>

#include <algorithm>

namespace lessonhost {

const QVector<LessonFormat> &lessonFormats()
{
    static const QVector<LessonFormat> formats{
        jsonFormat(),
        zqtxFormat(),
        rawXmlFormat(),
        iwbFormat(),
    };
    return formats;
}

namespace {

QStringList namesOfFormats(bool (LessonFormat::*canDo)() const)
{
    QStringList names;
    for (const LessonFormat &format : lessonFormats()) {
        if ((format.*canDo)()) {
            names.append(format.name);
        }
    }
    return names;
}

const LessonFormat *formatByExtension(const QString &path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    const auto &formats = lessonFormats();
    const auto found = std::find_if(formats.cbegin(), formats.cend(), [&extension](const LessonFormat &format) {
        return format.extensions.contains(extension);
    });
    return found == formats.cend() ? nullptr : &*found;
}

// Null for what no format holds.
const LessonFormat *formatOfContent(const LessonContent &content)
{
    const auto &formats = lessonFormats();
    const auto found = std::find_if(formats.cbegin(), formats.cend(),
                                    [&content](const LessonFormat &format) { return format.holds(content); });
    return found == formats.cend() ? nullptr : &*found;
}

[[noreturn]] void failWithoutFormat(const QString &path, const QString &option, const QStringList &names)
{
    throw LessonError(say("The format can't be told from the name"),
                      say("Say which it is with %1 (one of %2)").arg(option, listed(names)))
        .in(path);
}

} // namespace

const LessonFormat &lessonFormatByName(const QString &name)
{
    const auto &formats = lessonFormats();
    const auto found = std::find_if(formats.cbegin(), formats.cend(),
                                    [&name](const LessonFormat &format) { return format.name == name; });
    if (found == formats.cend()) {
        throw LessonError(say("There is no format \"%1\"").arg(name),
                          say("Use one of %1").arg(listed(namesOfFormats(&LessonFormat::canRead))));
    }
    return *found;
}

const LessonFormat &lessonFormatOfInput(const QString &path)
{
    if (!QFileInfo::exists(path)) {
        throw LessonError(say("There is no such file or folder"), say("Check the path")).in(path);
    }
    const bool isFolder = QFileInfo(path).isDir();
    for (const LessonFormat &format : lessonFormats()) {
        if (isFolder && format.recognizes && format.recognizes(path)) {
            return format;
        }
    }
    const LessonContent content = isFolder ? LessonContent() : lessonContent(path);
    if (const LessonFormat *format = formatOfContent(content)) {
        return *format;
    }
    if (const LessonFormat *format = formatByExtension(path)) {
        return *format;
    }
    if (!content.names.isEmpty()) {
        throw LessonError(say("This archive is no lesson: it has neither index.xml nor content.xml"),
                          say("Unpack it if lessons are in it, and convert those"))
            .in(path);
    }
    if (isFolder) {
        throw LessonError(say("This folder is no lesson: it has neither index.xml nor content.xml"),
                          say("To convert all lessons in a folder, say --to FORMAT --out-dir FOLDER"))
            .in(path);
    }
    failWithoutFormat(path, QStringLiteral("--from"), namesOfFormats(&LessonFormat::canRead));
}

const LessonFormat *lessonFormatByContent(const QString &file, bool *isKnown)
{
    const LessonContent content = lessonContent(file);
    const LessonFormat *format = formatOfContent(content);
    if (!format && isKnown) {
        *isKnown = content.isKnown();
    }
    return format;
}

Sentence remarkOnName(const QString &path, const LessonFormat &format)
{
    const LessonFormat *named = formatByExtension(path);
    return !named || named->name == format.name
        ? Sentence()
        : say("%1 is called like a lesson in the format %2 and is one in %3").arg(path, named->name, format.name);
}

void checkUseOf(const QStringList &options, const LessonFormat &format)
{
    for (const QString &option : options) {
        if (format.options.contains(option)) {
            continue;
        }
        QStringList takers;
        for (const LessonFormat &other : lessonFormats()) {
            if (other.options.contains(option)) {
                takers.append(other.name);
            }
        }
        throw LessonError(say("%1 changes nothing about %2").arg(QString(QLatin1String("--") + option), format.name),
                          say("Leave it out; it is for %1").arg(listedWithAnd(takers)));
    }
}

const LessonFormat &lessonFormatOfOutput(const QString &path)
{
    if (const LessonFormat *format = formatByExtension(path)) {
        return *format;
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        return lessonFormatByName(QStringLiteral("zqtx"));
    }
    failWithoutFormat(path, QStringLiteral("--to"), namesOfFormats(&LessonFormat::canWrite));
}

} // namespace lessonhost
