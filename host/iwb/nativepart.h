// SPDX-License-Identifier: MIT
#ifndef NATIVEPART_H
#define NATIVEPART_H

#include "iwb/elementmark.h"
#include "iwb/iwbpagewriter.h"
#include "lesson/lesson.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <optional>

namespace lessonhost {

class IwbMedia;
class IwbPackage;
class PackageTarget;

/*!
 * What a page of an IWB document was made of.
 */
struct NativePage
{
    //! An element that stands for an item, or for one of those that a group holds.
    struct Part
    {
        QString id; //!< empty for an item that the document has no form for
        QStringList marks; //!< of the element as it was written, behind those of its parts
        QJsonObject item; //!< the same by itself, without the group
    };
    struct Entry
    {
        QJsonObject item;
        QVector<Part> parts;
        bool isGroup = false; //!< its elements were a group of the document
    };

    QJsonObject slide; //!< properties
    QStringList backgroundIds;
    QString backgroundMark;
    QVector<Entry> entries; //!< from back to front
};

/*!
 * The lesson itself, beside the document of an IWB package, in files that programs of other boards pass over:
 *
 *     additional/native/lesson.json   {"form": 1, "presentation": {...}, "size": [w, h], "files": {path in the lesson:
 * path in the package}, "copies": {further path in the package: path in the lesson}, "made": [pictures of items],
 * "document": checksum of content.xml} additional/native/page1.json {"slide": {...}, "background": {"ids", "mark"},
 * "items": [{"item", "parts"}]} additional/native/files/...     files of the lesson that no page shows as they are
 *
 * Each item is bound to the elements that stand for it by their identifiers and marks. Where several stand for one, the
 * marks of the others come before that of the one with its identifier, in the order of the page.
 */
class NativePartWriter
{
public:
    explicit NativePartWriter(PackageTarget &target);

    //! page: with the records about it in its document. False, and nothing is written, for a slide that JSON can't
    //! hold.
    bool writePage(int number, const LessonSlide &slide, const QVector<IwbPageWriter::WrittenItem> &items,
                   const QDomElement &page);
    //! size: of the pages; document: the checksum of what was written. Throws LessonError.
    void finish(const QJsonObject &presentation, const QSizeF &size, const IwbMedia &media, const QByteArray &document);

private:
    PackageTarget &m_target;
};

/*!
 * The same, read. What isn't such a part, or was made by a later version, counts as none.
 */
class NativePart
{
public:
    explicit NativePart(const IwbPackage &package);

    bool isThere() const { return m_isThere; }
    const QJsonObject &presentation() const { return m_presentation; }
    //! Of the pages, as it was written.
    QSizeF size() const { return m_size; }
    //! Of the pages that were written, in their order. Those whose files are missing are among them, as far as others
    //! or the document tell.
    const QStringList &pageIds() const { return m_pageIds; }
    //! Whether that one's file is there.
    bool hasPage(const QString &pageId) const;
    //! What the page with that identifier was made of; nothing where its part is damaged. Throws LessonError where the
    //! file can't be read.
    std::optional<NativePage> page(const QString &pageId) const;

    //! Paths of the lesson's files in the package, by those in the lesson.
    const QHash<QString, QString> &files() const { return m_files; }
    //! Paths of the same files in the lesson, by further ones in the package.
    const QHash<QString, QString> &copies() const { return m_copies; }
    //! Whether a picture stands for an item, and is no file of the lesson.
    bool isMade(const QString &packagePath) const { return m_made.contains(packagePath); }
    //! Whether the document is, byte for byte, what was written.
    bool isUntouched() const { return m_isUntouched; }
    static bool isPart(const QString &packagePath);

private:
    int pageCount() const;

    const IwbPackage &m_package;
    bool m_isThere = false;
    QJsonObject m_presentation;
    QSizeF m_size;
    QHash<QString, QString> m_files;
    QHash<QString, QString> m_copies;
    QSet<QString> m_made;
    QStringList m_pageIds;
    bool m_isUntouched = false;
};

//! The marks of elements, with blanks between them.
QString marksOf(const QVector<QDomElement> &elements, const QHash<QString, RecordText> &records);

} // namespace lessonhost

#endif // NATIVEPART_H
