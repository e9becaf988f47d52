#include "xmlloader.h"

#include "lessonerror.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

void checkXml(const QByteArray &text, const QString &name)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            throw LessonError(QStringLiteral("The document has a document type declaration, which lessons don't use"),
                              QStringLiteral("Remove the <!DOCTYPE ...> part"))
                .in(name, int(reader.lineNumber()));
        case QXmlStreamReader::StartElement:
            if (++depth > maximumXmlDepth) {
                throw LessonError(QStringLiteral("Elements are nested deeper than %1 levels").arg(maximumXmlDepth),
                                  QStringLiteral("Take some groups apart, or check that this is a lesson"))
                    .in(name, int(reader.lineNumber()));
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        throw LessonError(QStringLiteral("This is not well-formed XML: %1 (column %2)")
                              .arg(reader.errorString())
                              .arg(reader.columnNumber()),
                          QStringLiteral("Check that the file is complete"))
            .in(name, int(reader.lineNumber()));
    }
}

} // namespace

QDomDocument loadXml(const QByteArray &text, const QString &displayName)
{
    checkXml(text, displayName);
    QDomDocument document;
    QString error;
    int line = 0;
    if (!document.setContent(text, false, &error, &line)) {
        throw LessonError(QStringLiteral("This is not well-formed XML: %1").arg(error),
                          QStringLiteral("Check that the file is complete"))
            .in(displayName, line);
    }
    return document;
}

QDomDocument loadXmlFile(const QString &fileName, const QString &displayName)
{
    const QString name = displayName.isEmpty() ? fileName : displayName;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        throw LessonError(QStringLiteral("The file can't be read: %1").arg(file.errorString()),
                          QStringLiteral("Check that it exists and that you may read it"))
            .in(name);
    }
    if (file.size() > maximumXmlSize) {
        throw LessonError(QStringLiteral("The file is larger than %1 MiB").arg(maximumXmlSize / (1024 * 1024)),
                          QStringLiteral("Check that this is a lesson"))
            .in(name);
    }
    return loadXml(file.readAll(), name);
}
