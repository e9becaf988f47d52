// SPDX-License-Identifier: MIT
#include "files/workfolder.h"

#include "files/folder.h"
#include "files/lessonerror.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <mutex>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

const char *const namePrefix = "lessonconv-work-";
constexpr int mostTries = 100;

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
    const Folder parent(QDir::tempPath());
    const QVector<Folder::Entry> entries = parent.entries();
    for (const Folder::Entry &entry : entries) {
        if (!entry.isFolder() || !entry.name.startsWith(namePrefix)) {
            continue;
        }
        const Folder left(parent, entry.name);
        if (left.isOpen() && left.isOwn() && lock(left.descriptor(), LOCK_EX | LOCK_NB)) {
            parent.remove(entry.name);
        }
    }
}

} // namespace

QString WorkFolder::path() const
{
    const std::scoped_lock lock(m_mutex);
    if (m_path.isEmpty()) {
        make();
    }
    return m_path;
}

void WorkFolder::make() const
{
    static std::once_flag swept;
    std::call_once(swept, sweep);
    // The sweep of another run may take a folder in the moment between its making and its locking.
    for (int tries = 0; tries < mostTries && m_path.isEmpty(); ++tries) {
        QByteArray name = QFile::encodeName(QDir::tempPath()) + '/' + namePrefix + "XXXXXX";
        if (!::mkdtemp(name.data())) {
            throw LessonError(say("No temporary folder can be made: %1").arg(systemReason(errno)),
                              say("Make room in the folder for temporary files"))
                .in(QDir::tempPath())
                .ofMachine();
        }
        m_lock = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (m_lock >= 0) {
            lock(m_lock, LOCK_EX);
        }
        if (QFileInfo(QFile::decodeName(name)).isDir()) {
            m_path = QFile::decodeName(name);
            return;
        }
        ::close(m_lock);
        m_lock = -1;
    }
}

WorkFolder::~WorkFolder()
{
    if (m_path.isEmpty()) {
        return;
    }
    removeFolder(m_path);
    if (m_lock >= 0) {
        ::close(m_lock);
    }
}

} // namespace lessonhost
