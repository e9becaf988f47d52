// SPDX-License-Identifier: MIT
#ifndef INPUTGUARD_H
#define INPUTGUARD_H

#include <QHash>
#include <QPair>
#include <QString>

namespace lessonhost {

/*!
 * What a run reads and where its report goes, and whether what it writes would take the place of any of it. Paths are
 * told by what they lead to, through links and other spellings.
 */
class InputGuard
{
public:
    //! A file, or a folder with all that is in it. What doesn't exist is let pass.
    void add(const QString &input);
    //! A lesson, with the folder beside it that belongs to its format, if there is one.
    void addLesson(const QString &input, const QString &folderBeside);

    //! Where the report goes.
    void addReport(const QString &report) { m_report = report; }

    //! Throws LessonError if the output is an input, lies in one, or holds one, whether it is there already or not, and
    //! like checkReport().
    void check(const QString &output) const;
    //! Throws LessonError if the report would stand in the place of the output or in it.
    void checkReport(const QString &output) const;

private:
    using Identity = QPair<quint64, quint64>; // device and number on it

    QHash<Identity, QString> m_inputs; // as the user called them
    QHash<Identity, QString> m_parents; // the folders that hold an input, and one input of each
    QString m_report; // empty where there is none
};

//! Whether two paths lead to one place, whether something is there already or not.
bool isSamePlace(const QString &one, const QString &other);

//! Whether a path leads to something within a folder that is there.
bool liesIn(const QString &path, const QString &folder);

} // namespace lessonhost

#endif // INPUTGUARD_H
