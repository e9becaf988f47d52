// SPDX-License-Identifier: MIT
#include "formats/jsonindex.h"

#include "files/lessonerror.h"

#include <QSet>

namespace lessonhost {

namespace {

constexpr int pieceSize = 64 * 1024;

} // namespace

JsonIndex::JsonIndex(const QString &path)
    : JsonWalker(path, say("Check that the file is complete and is a lesson in JSON"), pieceSize)
    , m_file(path)
{
    setSize(m_file.size());
    if (size() > maximumJsonSize) {
        throw LessonError(say("The file is larger than 1 GiB"), say("Check that this is a lesson")).in(path);
    }
    scan();
}

QByteArray JsonIndex::text(const Range &range)
{
    const QByteArray text = source(range);
    if (!text.startsWith('"')) {
        fail(say("A file of the lesson is no base64 text"), range.begin);
    }
    if (text.contains('\\')) {
        return value(range).toString().toUtf8();
    }
    return text.mid(1, text.size() - 2);
}

void JsonIndex::scan()
{
    skipMark();
    bool hasSlides = false;
    QSet<QString> names;
    eachMember([this, &hasSlides, &names](const QString &name) {
        if (names.contains(name)) {
            fail(say("The lesson has \"%1\" twice").arg(name), position());
        }
        names.insert(name);
        if (name == QLatin1String("Slides")) {
            hasSlides = true;
            eachElement([this] {
                checkCount(slides.size(), TO_SAY("The lesson has more than %1 slides"));
                slides.append(skipValue());
            });
        } else if (name == QLatin1String("Resources")) {
            eachMember([this](const QString &path) {
                checkCount(resources.size(), "files");
                resources.append({path, skipValue()});
            });
        } else {
            members.append({name, skipValue()});
        }
    });
    skipBlanks();
    if (position() != size()) {
        fail(say("This is not JSON: there is something behind the end of the lesson"), position());
    }
    if (!hasSlides) {
        fail(say("This is no lesson: it has no \"Slides\""), 0);
    }
}

void JsonIndex::checkCount(int count, const char *problem)
{
    if (count >= maximumJsonParts) {
        fail(say(problem).arg(maximumJsonParts), position());
    }
}

} // namespace lessonhost
