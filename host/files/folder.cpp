// SPDX-License-Identifier: MIT
#include "files/folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace lessonhost {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

bool removeFile(const Folder &folder, const QByteArray &name)
{
    return ::unlinkat(folder.descriptor(), name.constData(), 0) == 0;
}

bool removeEmptyFolder(const Folder &folder, const QByteArray &name)
{
    return ::unlinkat(folder.descriptor(), name.constData(), AT_REMOVEDIR) == 0;
}

// Most file systems tell the kind with the name; the others are asked about each.
mode_t kindOf(int folder, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN) {
        return DTTOIF(entry.d_type);
    }
    struct stat there = {};
    return ::fstatat(folder, entry.d_name, &there, AT_SYMLINK_NOFOLLOW) == 0 ? there.st_mode & S_IFMT : 0;
}

} // namespace

QString Folder::Entry::text() const
{
    const QString decoded = QFile::decodeName(name);
    return QFile::encodeName(decoded) == name ? decoded : QString();
}

QString Folder::Entry::shown() const
{
    return QString::fromUtf8(name);
}

Folder::Folder(const QString &path)
    : m_descriptor(::open(QFile::encodeName(path).constData(), folderFlags))
    , m_error(errno)
{
}

Folder::Folder(const Folder &parent, const QByteArray &name)
    : m_descriptor(::openat(parent.m_descriptor, name.constData(), folderFlags | O_NOFOLLOW))
    , m_error(errno)
{
}

Folder::~Folder()
{
    if (isOpen()) {
        ::close(m_descriptor);
    }
}

bool Folder::isOwn() const
{
    struct stat there = {};
    return ::fstat(m_descriptor, &there) == 0 && there.st_uid == ::geteuid();
}

QVector<Folder::Entry> Folder::entries(int *error) const
{
    QVector<Entry> found;
    // A descriptor of its own, which begins at the first entry.
    const int copy = !isOpen() ? -1 : ::openat(m_descriptor, ".", folderFlags);
    DIR *list = copy < 0 ? nullptr : ::fdopendir(copy);
    int failure = list ? 0 : isOpen() ? errno : m_error;
    while (list) {
        errno = 0;
        // Each list is read by one thread.
        const dirent *next = ::readdir(list); // NOLINT(concurrency-mt-unsafe)
        if (!next) {
            failure = errno;
            break;
        }
        const bool isSelf = std::strcmp(next->d_name, ".") == 0 || std::strcmp(next->d_name, "..") == 0;
        if (!isSelf) {
            found.append({next->d_name, kindOf(m_descriptor, *next)});
        }
    }
    if (list) {
        ::closedir(list);
    } else if (copy >= 0) {
        ::close(copy);
    }
    if (error) {
        *error = failure;
    }
    std::sort(found.begin(), found.end(), [](const Entry &one, const Entry &other) { return one.name < other.name; });
    return found;
}

bool Folder::moveTo(const Folder &other, const QByteArray &name) const
{
    if (::renameat2(m_descriptor, name.constData(), other.m_descriptor, name.constData(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    struct stat there = {};
    // Not all file systems know how to move without replacing.
    return errno == EINVAL && ::fstatat(other.m_descriptor, name.constData(), &there, AT_SYMLINK_NOFOLLOW) != 0
        && ::renameat(m_descriptor, name.constData(), other.m_descriptor, name.constData()) == 0;
}

bool Folder::remove(const QByteArray &name) const
{
    if (removeFile(*this, name) || errno == ENOENT) {
        return true;
    }
    Folder(*this, name).clear();
    return removeEmptyFolder(*this, name);
}

bool Folder::clear() const
{
    // Folders within come to the top, so that no depth takes descriptors or the stack.
    QByteArray mark;
    int moved = 0;
    int error = 0;
    QVector<Entry> left = entries(&error);
    bool isProgress = true;
    while (isProgress && !left.isEmpty()) {
        isProgress = false;
        for (const Entry &entry : qAsConst(left)) {
            if (!entry.isFolder()) {
                isProgress = removeFile(*this, entry.name) || isProgress;
                continue;
            }
            const Folder inner(*this, entry.name);
            const QVector<Entry> within = inner.entries();
            for (const Entry &one : within) {
                mark = mark.isEmpty() ? QByteArray::number(QRandomGenerator::system()->generate64(), 36) + '-' : mark;
                const QByteArray place = mark + QByteArray::number(++moved);
                const bool isGone = one.isFolder()
                    ? ::renameat(inner.descriptor(), one.name.constData(), m_descriptor, place.constData()) == 0
                    : removeFile(inner, one.name);
                isProgress = isGone || isProgress;
            }
            isProgress = removeEmptyFolder(*this, entry.name) || isProgress;
        }
        left = entries(&error);
    }
    return left.isEmpty() && error == 0;
}

void removeFolder(const QString &path)
{
    const QFileInfo info(path);
    Folder(info.path()).remove(QFile::encodeName(info.fileName()));
}

} // namespace lessonhost
