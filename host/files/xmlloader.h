#ifndef XMLLOADER_H
#define XMLLOADER_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>

namespace lessonhost {

//! Deeper XML is refused: the DOM needs stack for each level. A mind map or group of 512 levels has two of XML for
//! each.
constexpr int maximumXmlDepth = 1100;
//! Larger XML files are refused, in bytes.
constexpr qint64 maximumXmlSize = qint64(256) * 1024 * 1024;

//! So are elements with more attributes: telling whether two have the same name takes time for each pair of them.
constexpr int maximumXmlAttributes = 10000;

//! The document in an XML file, without namespace processing. The text is checked before a DOM is built: well-formed,
//! no document type, not too deep, not too large, not too
//! many attributes. Throws LessonError with file and line. displayName stands for the
//! file in messages; if empty, fileName does.
QDomDocument loadXmlFile(const QString &fileName, const QString &displayName = {});

//! The same for a text in memory.
QDomDocument loadXml(const QByteArray &text, const QString &displayName);

} // namespace lessonhost

#endif // XMLLOADER_H
