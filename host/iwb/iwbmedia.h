// SPDX-License-Identifier: MIT
#ifndef IWBMEDIA_H
#define IWBMEDIA_H

#include "files/lessonfiles.h"

#include <QImage>
#include <QVector>

#include <utility>

namespace lessonhost {

/*!
 * The files that pages refer to: those of the lesson, and the references under which pages name them. Pages are made
 * without a package; who stores one takes the files from here.
 */
class IwbMedia
{
public:
    struct File
    {
        QString source; //!< on disk
        bool isConverted = false; //!< goes into the package as a png picture
        QImage picture; //!< the picture until it is stored
        bool isMade = false; //!< no file of the lesson, but a picture of an item
    };

    //! What came up in a while.
    struct Additions
    {
        QVector<std::pair<QString, QString>> files; //!< of the lesson: paths in it and on disk
        QVector<std::pair<QString, File>> placed; //!< by their references
    };

    void add(const QString &relativePath, const QString &sourceFile);

    //! The file on disk that an item's reference means, or nothing.
    QString find(const QString &reference) { return m_files.find(reference); }

    //! The file that has just this path in the lesson, or nothing.
    QString source(const QString &relativePath) const { return m_files.source(relativePath); }

    //! The reference of a file in a folder of the package, under its own name or the one that is wanted, or one that is
    //! like it where another file has that. The same file gets the same reference again.
    QString place(const QString &folder, const File &file, const QString &wantedName = {});

    //! The file that a reference of a page stands for; without a source where there is none.
    File file(const QString &reference) const { return m_placed.value(reference); }

    //! What came up since the last call. Its pictures are no longer held here.
    Additions takeAdditions();

    //! Of all files, ascending.
    QStringList paths() const { return m_files.paths(); }
    //! The references under which a file of the lesson goes into the package as it is.
    QStringList unchanged(const QString &relativePath) const;

    //! References of pictures of items, ascending.
    QStringList made() const;

    //! Paths of the files that nobody asked for.
    QStringList unused() const { return m_files.unused(); }

private:
    LessonFiles m_files;
    QHash<QString, File> m_placed; // by reference
    QHash<QString, QStringList> m_unchanged; // references of files that go as they are, by their sources
    QVector<std::pair<QString, QString>> m_newFiles;
    QStringList m_newReferences;
};

} // namespace lessonhost

#endif // IWBMEDIA_H
