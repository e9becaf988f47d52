#ifndef WORKFOLDER_H
#define WORKFOLDER_H

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace lessonhost {

/*!
 * A folder among the temporary files to unpack into and work in. It goes with the object.
 *
 * What killed runs left behind goes when a later run makes its first folder.
 */
class WorkFolder
{
public:
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;

    //! Whether the folder could be made. If not, errorString() says why.
    bool isValid() const { return m_folder->isValid(); }
    QString errorString() const { return m_folder->errorString(); }

    //! Without a separator at its end.
    QString path() const { return m_folder->path(); }
    QString filePath(const QString &name) const { return m_folder->filePath(name); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_lock = -1; // descriptor of the folder, locked as long as this run lives
};

} // namespace lessonhost

#endif // WORKFOLDER_H
