// SPDX-License-Identifier: MIT
#include "files/staging.h"

#include "files/lessonerror.h"

#include <QFile>
#include <QRandomGenerator>
#include <QVector>

#include <cerrno>

#include <sys/stat.h>

namespace lessonhost {

namespace {

const char *const prefix = ".lessonconv-";
const char *const lockSuffix = ".lock";
constexpr int mostLockTries = 100;

/*!
 * What stays between two targets, and whether anything does.
 */
struct Kept
{
    bool isOn = false;
    std::unique_ptr<Staging> staging;
};

Kept &kept()
{
    static Kept kept;
    return kept;
}

// What a killed run had moved aside to make place goes back, if nothing took its place since.
void restoreReplaced(const Folder &staging, const Folder &parent)
{
    const Folder replaced(staging, Staging::replacedName);
    const QVector<Folder::Entry> left = replaced.entries();
    for (const Folder::Entry &entry : left) {
        replaced.moveTo(parent, entry.name);
    }
}

} // namespace

Staging::Keeping::Keeping()
{
    kept().isOn = true;
}

Staging::Keeping::~Keeping()
{
    kept() = {};
}

std::unique_ptr<Staging> Staging::beside(const QString &parent)
{
    std::unique_ptr<Staging> staging = std::move(kept().staging);
    if (staging && staging->m_parentPath == parent && staging->isThere()) {
        return staging;
    }
    staging.reset(new Staging(parent));
    if (const int error = staging->make()) {
        throw LessonError(say("Nothing can be written in this folder: %1").arg(systemReason(error)),
                          say("Check that you may write there and that there is room"))
            .in(parent)
            .ofMachine();
    }
    return staging;
}

void Staging::leave(std::unique_ptr<Staging> staging)
{
    if (kept().isOn && staging && Folder(staging->m_parent, staging->m_name).clear()) {
        kept().staging = std::move(staging);
    }
}

Staging::Staging(const QString &parent)
    : m_parentPath(parent)
    , m_parent(parent)
{
}

Staging::~Staging()
{
    if (m_lock && !m_parent.remove(m_name)) {
        m_lock->leave();
    }
}

// Returns an errno, or 0.
int Staging::make()
{
    // The sweep of another run may take a lock file in the moment between its making and its locking.
    for (int tries = 0; tries < mostLockTries && !(m_lock && (m_lock->isHeld() || m_lock->error())); ++tries) {
        m_name = prefix + QByteArray::number(QRandomGenerator::system()->generate64(), 36);
        m_lock = std::make_unique<StagingLock>(m_parent, m_name + lockSuffix, StagingLock::Own);
    }
    m_path = m_parentPath + QLatin1Char('/') + QString::fromLatin1(m_name);
    // Nobody else has anything to do in it.
    const bool isMade = m_lock->isHeld() && ::mkdirat(m_parent.descriptor(), m_name.constData(), 0700) == 0;
    return m_lock->error() ? m_lock->error() : isMade ? 0 : errno;
}

// Whoever tidies up the folder of results may have removed it, or moved all of it elsewhere.
bool Staging::isThere() const
{
    struct stat there = {};
    return m_lock->isThere() && ::lstat(QFile::encodeName(m_path).constData(), &there) == 0 && S_ISDIR(there.st_mode);
}

void Staging::sweep(const QString &folder)
{
    const Folder parent(folder);
    const QVector<Folder::Entry> entries = parent.entries();
    for (const Folder::Entry &entry : entries) {
        if (!entry.isFile() || !entry.name.startsWith(prefix) || !entry.name.endsWith(lockSuffix)) {
            continue;
        }
        StagingLock lock(parent, entry.name, StagingLock::Left);
        const QByteArray name = entry.name.chopped(int(qstrlen(lockSuffix)));
        const Folder staging(parent, name);
        if (lock.isHeld() && staging.isOpen() && staging.isOwn()) {
            restoreReplaced(staging, parent);
            if (!parent.remove(name)) {
                lock.leave();
            }
        }
    }
}

} // namespace lessonhost
