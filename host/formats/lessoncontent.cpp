// SPDX-License-Identifier: MIT
#include "formats/lessoncontent.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/packagenames.h"
#include "files/ziparchive.h"

#include <QXmlStreamReader>

namespace lessonhost {

namespace {

// Enough for what stands before a document's root.
constexpr qint64 mostBytes = qint64(64) * 1024;

QStringList namesIn(const QString &archive)
{
    try {
        const QStringList names = namesInZip(archive);
        const QString outer = outerFolder(names);
        QStringList inner;
        for (const QString &name : names) {
            if (name.startsWith(outer)) {
                inner.append(name.mid(outer.size()));
            }
        }
        return inner;
    } catch (const LessonError &) {
        return {}; // whoever opens it will tell
    }
}

} // namespace

LessonContent lessonContent(const QString &path)
{
    LessonContent content;
    InputFile file(path);
    const QByteArray bytes = file.bytes(0, qMin(file.size(), mostBytes));
    if (bytes.startsWith("PK\3\4") || bytes.startsWith("PK\5\6")) {
        content.names = namesIn(path);
        return content;
    }
    const QByteArray text = (bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes).trimmed();
    content.isJson = text.startsWith('{');
    if (!content.isJson) {
        QXmlStreamReader xml(bytes);
        if (xml.readNextStartElement()) {
            content.rootTag = xml.name().toString();
        }
    }
    return content;
}

} // namespace lessonhost
