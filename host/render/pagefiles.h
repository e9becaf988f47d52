// SPDX-License-Identifier: MIT
#ifndef PAGEFILES_H
#define PAGEFILES_H

#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

namespace lessonhost {

/*!
 * The files of a lesson that its page plays or opens, each once, under the names that they have beside the page. None
 * of these names makes a browser take a file for a page or a script.
 */
class PageFiles
{
public:
    struct File
    {
        QString source; //!< on disk
        QString name; //!< in the lesson
        QString stored; //!< beside the page
        QString type; //!< as in "audio/x-wav"
    };

    //! The number of a file, counted from 0. reference: as the lesson names it. Throws LessonError where the disk fails.
    int add(const QString &source, const QString &reference);

    const QVector<File> &all() const { return m_files; }

private:
    QVector<File> m_files;
    QHash<QString, int> m_numbers; // by source
    QSet<QString> m_stored; // in small letters
};

//! The name of the folder beside a page that they go into.
QString filesFolderOfPage(const QString &page);

} // namespace lessonhost

#endif // PAGEFILES_H
