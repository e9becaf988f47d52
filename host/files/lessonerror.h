// SPDX-License-Identifier: MIT
#ifndef LESSONERROR_H
#define LESSONERROR_H

#include <QJsonObject>
#include <QString>

#include <exception>

namespace lessonhost {

/*!
 * A failure with the words for it: where, what is wrong, and what to do about it.
 */
class LessonError : public std::exception
{
public:
    //! problem and remedy are whole sentences without a full stop at the end; remedy may be empty.
    explicit LessonError(const QString &problem, const QString &remedy = {});

    //! Names the file and, with a line above 0, the line in it.
    LessonError &in(const QString &file, int line = 0);

    QString file() const { return m_file; }
    int line() const { return m_line; }
    QString problem() const { return m_problem; }
    QString remedy() const { return m_remedy; }

    //! "FILE, line N: PROBLEM. REMEDY." without the parts that aren't known.
    QString message() const;
    //! {"file", "line", "problem", "remedy", "message"} without the parts that aren't known.
    QJsonObject toJson() const;
    const char *what() const noexcept override;

private:
    QString m_file;
    QString m_problem;
    QString m_remedy;
    QByteArray m_what;
    int m_line = 0;
};

//! Why the system refused, in its own words, for an errno.
QString systemReason(int error);

//! That a file can't be written: an output, or one among the temporary files that a lesson needs.
LessonError writeError(const QString &shownName, int error, bool isTemporary = false);

} // namespace lessonhost

#endif // LESSONERROR_H
