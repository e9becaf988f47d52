// SPDX-License-Identifier: MIT
#include "files/staginglock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

StagingLock::StagingLock(const Folder &folder, const QByteArray &name, Kind kind)
    : m_folder(folder)
    , m_name(name)
    , m_descriptor(::openat(folder.descriptor(), name.constData(),
                            O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | (kind == Own ? O_CREAT | O_EXCL : 0), 0666))
{
    m_error = m_descriptor < 0 ? errno : 0;
    if (m_descriptor < 0) {
        return;
    }
    // Where the file system knows no locks, a run may go on, and nothing is swept.
    const bool isLocked = ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0 || (kind == Own && errno != EWOULDBLOCK);
    m_isHeld = isLocked && isThere();
}

StagingLock::~StagingLock()
{
    if (m_isHeld) {
        ::unlinkat(m_folder.descriptor(), m_name.constData(), 0);
    }
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

// A sweep may have removed it between the two steps.
bool StagingLock::isThere() const
{
    struct stat opened = {};
    struct stat there = {};
    return ::fstat(m_descriptor, &opened) == 0
        && ::fstatat(m_folder.descriptor(), m_name.constData(), &there, AT_SYMLINK_NOFOLLOW) == 0
        && opened.st_ino == there.st_ino && opened.st_dev == there.st_dev && opened.st_uid == ::geteuid()
        && S_ISREG(opened.st_mode);
}

} // namespace lessonhost
