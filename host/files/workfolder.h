// SPDX-License-Identifier: MIT
#ifndef WORKFOLDER_H
#define WORKFOLDER_H

#include <QString>

namespace lessonhost {

/*!
 * A folder among the temporary files to unpack into and work in. It goes with the object.
 *
 * What killed runs left behind goes when a later run makes its first folder.
 */
class WorkFolder
{
public:
    //! Throws LessonError.
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;

    //! Without a separator at its end.
    QString path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + QLatin1Char('/') + name; }

private:
    QString m_path;
    int m_lock = -1; // descriptor of the folder, locked as long as this run lives
};

} // namespace lessonhost

#endif // WORKFOLDER_H
