// SPDX-License-Identifier: MIT
#ifndef LESSONERROR_H
#define LESSONERROR_H

#include "sentences/sentence.h"

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
    explicit LessonError(const Sentence &problem, const Sentence &remedy = {});

    //! Names the file and, with a line above 0, the line in it.
    LessonError &in(const QString &file, int line = 0);
    //! Says that it lies at the machine, such as at a full disk, and tells nothing of a lesson or a format.
    LessonError &ofMachine();

    QString file() const { return m_file; }
    int line() const { return m_line; }
    bool isOfMachine() const { return m_isOfMachine; }
    Sentence problem() const { return m_problem; }
    Sentence remedy() const { return m_remedy; }

    //! "FILE, line N: PROBLEM. REMEDY." without the parts that aren't known.
    Sentence message() const;
    //! {"file", "line", "problem", "remedy", "message"} without the parts that aren't known, in English.
    QJsonObject toJson() const;
    const char *what() const noexcept override;

private:
    QString m_file;
    Sentence m_problem;
    Sentence m_remedy;
    QByteArray m_what;
    int m_line = 0;
    bool m_isOfMachine = false;
};

//! What nobody has thought of.
LessonError unexpected(const std::exception &error);

//! Why the system refused, for an errno.
Sentence systemReason(int error);

//! That a file can't be written: an output, or one among the temporary files that a lesson needs.
LessonError writeError(const QString &shownName, int error, bool isTemporary = false);

} // namespace lessonhost

#endif // LESSONERROR_H
