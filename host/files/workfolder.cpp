#include "files/workfolder.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <mutex>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

const QLatin1String namePrefix("lessonconv-work-");
constexpr int mostTries = 100;

int openFolder(const QString &path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

// The system gives a lock up when its process ends, at whatever moment that is.
bool lock(int folder, int kind)
{
    int result = 0;
    do {
        result = ::flock(folder, kind);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

// Removes the folders of this user that no process holds. Where the file system knows no locks, it removes none.
void sweep()
{
    const QDir parent = QDir::temp();
    const QStringList names = parent.entryList({namePrefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QString path = parent.filePath(name);
        const int folder = openFolder(path);
        struct stat there = {};
        if (folder >= 0 && ::fstat(folder, &there) == 0 && there.st_uid == ::geteuid()
            && lock(folder, LOCK_EX | LOCK_NB)) {
            QDir(path).removeRecursively();
        }
        if (folder >= 0) {
            ::close(folder);
        }
    }
}

} // namespace

WorkFolder::WorkFolder()
{
    static std::once_flag swept;
    std::call_once(swept, sweep);
    // The sweep of another run may take a folder in the moment between its making and its locking.
    for (int tries = 0; tries < mostTries; ++tries) {
        m_folder = std::make_unique<QTemporaryDir>(QDir::temp().filePath(namePrefix + QLatin1String("XXXXXX")));
        m_lock = m_folder->isValid() ? openFolder(m_folder->path()) : -1;
        if (m_lock >= 0) {
            lock(m_lock, LOCK_EX);
        }
        if (!m_folder->isValid() || QDir(m_folder->path()).exists()) {
            return;
        }
        ::close(m_lock);
        m_lock = -1;
    }
}

WorkFolder::~WorkFolder()
{
    m_folder.reset();
    if (m_lock >= 0) {
        ::close(m_lock);
    }
}

} // namespace lessonhost
