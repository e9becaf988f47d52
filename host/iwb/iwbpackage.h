// SPDX-License-Identifier: MIT
#ifndef IWBPACKAGE_H
#define IWBPACKAGE_H

#include "files/packagesource.h"
#include "files/workfolder.h"
#include "files/xmlparts.h"
#include "iwb/elementmark.h"
#include "svg/iwboutline.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

namespace lessonhost {

/*!
 * An opened IWB package: its content document, and the files that the document names. References that leave the package
 * lead nowhere; pictures that stand in the document itself become files.
 */
class IwbPackage
{
public:
    //! Throws LessonError.
    explicit IwbPackage(const QString &path);

    //! What was found otherwise than the document or the archive has it, as sentences without a full stop.
    Sentences remarks() const { return m_source.remarks() + m_remarks; }

    //! What the document says outside of its pages.
    const IwbOutline &outline() const { return m_outline; }
    //! A part of the document, which is a layer of a page. Throws LessonError.
    XmlPart part(int index) const;
    //! What records say of each element, if the package has files beside those of the format.
    const QHash<QString, RecordText> &recordTexts() const { return m_records.texts(); }
    QString displayName() const;

    //! Files but the content, and the pictures of the document itself, as paths in the package.
    QStringList resources() const;
    //! Where the document lies on disk.
    QString contentFile() const;
    bool contains(const QString &path) const { return m_source.contains(path); }
    //! Where a resource lies on disk. Throws LessonError.
    QString file(const QString &resource) const;
    //! Of a file in the package, in bytes, and what is in it. Both throw LessonError.
    qint64 size(const QString &path) const { return m_source.size(path); }
    QByteArray content(const QString &path) const { return m_source.content(path); }

    //! The resource that a reference of the document means, or nothing and the reason as a clause.
    QString resolve(const QString &reference, Sentence *problem) const;

    //! A folder of the program's own to work in.
    QString workFolder() const { return m_work.path(); }

private:
    class Visitor;

    void forgetDocument();
    void takeReference(const QString &reference);
    int findReferences(QDomElement element, int embedded) const;
    QString otherName(const QString &reference) const;
    void saveEmbedded(const QString &uri);

    PackageSource m_source;
    WorkFolder m_work;
    IwbOutline m_outline;
    RecordTexts m_records;
    std::unique_ptr<XmlParts> m_parts;
    QStringList m_files; // of the source
    QHash<QString, QString> m_folded; // the same by their names without capitals
    Sentences m_remarks;
    QHash<QString, QString> m_embedded; // file on disk by path in the package
    QVector<QString> m_embeddedPaths; // in the order of the document
    QVector<int> m_embeddedBefore; // how many there are before each part
};

//! The picture of the first page, for programs that show lists of lessons.
constexpr char thumbnailFile[] = "thumbnails/thumbnail.png";

//! True for a folder that holds the content of an IWB package. Throws LessonError if its content can't be read.
bool isIwbFolder(const QString &path);

} // namespace lessonhost

#endif // IWBPACKAGE_H
