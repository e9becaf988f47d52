// SPDX-License-Identifier: MIT
#include "files/xmlloader.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/xmlbuilder.h"

#include <QBuffer>

namespace lessonhost {

void checkXmlSize(qint64 size, const QString &displayName)
{
    if (size > maximumXmlSize) {
        throw LessonError(say("It would be larger than the %1 MiB that are read from one file of XML")
                              .arg(maximumXmlSize / 1024 / 1024),
                          say("Divide the slide or the lesson"))
            .in(displayName);
    }
}

QDomDocument loadXml(const QByteArray &text, const QString &displayName, XmlBlanks blanks)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return XmlBuilder(&buffer, displayName, blanks).build();
}

void checkXml(const QByteArray &text, const QString &displayName)
{
    class Check : public XmlBuilder
    {
    public:
        using XmlBuilder::XmlBuilder;

    protected:
        void startElement() override { }
        void endElement() override { }
    };
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    Check(&buffer, displayName).build();
}

QDomDocument loadXmlFile(const QString &fileName, const QString &displayName)
{
    const QString name = displayName.isEmpty() ? fileName : displayName;
    InputFile file(fileName, name);
    checkXmlFileSize(file.size(), name);
    try {
        const QDomDocument document = XmlBuilder(&file, name).build();
        file.check();
        return document;
    } catch (const LessonError &) {
        // A disk that fails is no lesson that is cut short.
        file.check();
        throw;
    }
}

} // namespace lessonhost
