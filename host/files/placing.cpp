// SPDX-License-Identifier: MIT
#include "files/placing.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lessonhost {

namespace {

bool move(const Folder &from, const Folder &to, const QByteArray &name)
{
    return ::renameat(from.descriptor(), name.constData(), to.descriptor(), name.constData()) == 0;
}

} // namespace

Placing::Placing(const Folder &from, const Folder &to, const Folder &aside)
    : m_from(from)
    , m_to(to)
    , m_aside(aside)
{
}

Placing::~Placing()
{
    for (auto name = m_begun.crbegin(); name != m_begun.crend(); ++name) {
        if (!move(m_aside, m_to, *name) && errno == ENOENT) {
            move(m_to, m_from, *name);
        }
    }
}

// What is there already stays beside the new file, under a second name where the file system knows such.
bool Placing::place(const QByteArray &name)
{
    const bool isAside = ::linkat(m_to.descriptor(), name.constData(), m_aside.descriptor(), name.constData(), 0) == 0
        || errno == ENOENT || move(m_to, m_aside, name) || errno == ENOENT;
    if (isAside) {
        m_begun.append(name);
    }
    return isAside && move(m_from, m_to, name);
}

PlacingBeside::PlacingBeside(const Folder &package, const Folder &parent, const Folder &replaced,
                             const QByteArray &name)
    : m_parent(parent)
    , m_name(name)
    , m_isMade(::mkdirat(parent.descriptor(), name.constData(), 0777) == 0)
    , m_error(m_isMade || errno == EEXIST ? 0 : errno)
    , m_isAsideMade(::mkdirat(replaced.descriptor(), name.constData(), 0700) == 0)
    , m_asideError(m_isAsideMade ? 0 : errno)
    , m_from(package, name)
    , m_to(parent, name)
    , m_aside(replaced, name)
{
    m_placing.emplace(m_from, m_to, m_aside);
}

PlacingBeside::~PlacingBeside()
{
    m_placing.reset();
    if (m_isMade) {
        ::unlinkat(m_parent.descriptor(), m_name.constData(), AT_REMOVEDIR); // only if it is empty
    }
}

bool PlacingBeside::place(const QByteArray &name)
{
    int error = m_error ? m_error : m_asideError;
    for (const Folder *folder : {&m_from, &m_to, &m_aside}) {
        error = error || folder->isOpen() ? error : folder->error();
    }
    if (error) {
        errno = error;
        return false;
    }
    return m_placing->place(name);
}

} // namespace lessonhost
