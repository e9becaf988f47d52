// SPDX-License-Identifier: MIT
#ifndef WORKFOLDER_H
#define WORKFOLDER_H

#include <QString>

#include <mutex>

namespace lessonhost {

/*!
 * A folder among the temporary files to unpack into and work in. It is made when somebody asks for it, in any thread,
 * and goes with the object.
 *
 * What killed runs left behind goes when a later run makes its first folder.
 */
class WorkFolder
{
public:
    WorkFolder() = default;
    ~WorkFolder();
    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;

    //! Without a separator at its end. Throws LessonError.
    QString path() const;
    QString filePath(const QString &name) const { return path() + QLatin1Char('/') + name; }

private:
    void make() const;

    mutable std::mutex m_mutex;
    mutable QString m_path; // empty until then
    mutable int m_lock = -1; // descriptor of the folder, locked as long as this run lives
};

} // namespace lessonhost

#endif // WORKFOLDER_H
