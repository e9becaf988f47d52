// SPDX-License-Identifier: MIT
#ifndef LESSONFILES_H
#define LESSONFILES_H

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace lessonhost {

/*!
 * The files of a lesson that is being written, found by what items call them, and the names that they get in the
 * package.
 */
class LessonFiles
{
public:
    void add(const QString &relativePath, const QString &sourceFile);

    //! The file on disk that a reference means: its path in the lesson or, where only one file has it, its bare name.
    //! Empty if the lesson has no such file.
    QString find(const QString &reference);
    //! The file on disk that has just this path in the lesson, or nothing.
    QString source(const QString &relativePath) const { return m_sources.value(relativePath); }

    //! A name in a folder of the package that no other file there has: the file's own, the one that is wanted, or one
    //! like it. The same file gets the same name again.
    QString nameIn(const QString &folder, const QString &sourceFile, const QString &wantedName = {});

    //! Of all files, ascending.
    QStringList paths() const;

    //! Paths of the files that nobody asked for.
    QStringList unused() const;

private:
    QHash<QString, QString> m_sources; // by path
    QHash<QString, QStringList> m_pathsByName;
    QSet<QString> m_used;
    QHash<QString, QString> m_names; // by folder and file
    QSet<QString> m_takenNames; // folder and name in lower case
};

} // namespace lessonhost

#endif // LESSONFILES_H
