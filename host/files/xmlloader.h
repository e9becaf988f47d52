// SPDX-License-Identifier: MIT
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

//! Throws LessonError for a text that is larger, before it is written.
void checkXmlSize(qint64 size, const QString &displayName);

//! So are elements with more attributes: telling whether two have the same name takes time for each pair of them.
constexpr int maximumXmlAttributes = 1000;

//! And documents whose DOM would take more memory, in bytes: one of many small elements takes forty times its size.
constexpr qint64 maximumXmlMemory = qint64(512) * 1024 * 1024;

//! The document in an XML file, without namespace processing. Well-formed, no document type, and none of the limits
//! above passed: a document is refused before a node is made that passes one. Throws LessonError with file and line.
//! displayName stands for the file in messages; if empty, fileName does.
QDomDocument loadXmlFile(const QString &fileName, const QString &displayName = {});

//! Texts of blanks between elements: mere layout, as in lessons, or words apart, as in drawings.
enum class XmlBlanks { Dropped, Kept };

//! The same for a text in memory.
QDomDocument loadXml(const QByteArray &text, const QString &displayName, XmlBlanks blanks = XmlBlanks::Dropped);

//! Throws what loadXml() would throw, without a document.
void checkXml(const QByteArray &text, const QString &displayName);

} // namespace lessonhost

#endif // XMLLOADER_H
