// SPDX-License-Identifier: MIT
#ifndef PLACING_H
#define PLACING_H

#include "files/folder.h"

#include <QByteArray>
#include <QVector>

#include <optional>

namespace lessonhost {

/*!
 * Files that are put in their places one after the other, and all of them back if one can't be. The folders outlive it.
 */
class Placing
{
public:
    //! aside: for what stands in their places.
    Placing(const Folder &from, const Folder &to, const Folder &aside);
    ~Placing();
    Placing(const Placing &) = delete;
    Placing &operator=(const Placing &) = delete;

    //! False with errno where it can't be.
    bool place(const QByteArray &name);

    //! From here on, all of them stay.
    void keep() { m_begun.clear(); }

private:
    const Folder &m_from;
    const Folder &m_to;
    const Folder &m_aside;
    QVector<QByteArray> m_begun;
};

/*!
 * The files that go into a folder beside the target, which is made for them if it isn't there.
 */
class PlacingBeside
{
public:
    //! name: the folder's, in the package and beside it.
    PlacingBeside(const Folder &package, const Folder &parent, const Folder &replaced, const QByteArray &name);
    ~PlacingBeside();
    PlacingBeside(const PlacingBeside &) = delete;
    PlacingBeside &operator=(const PlacingBeside &) = delete;

    //! False with errno where it can't be.
    bool place(const QByteArray &name);
    void keep() { m_placing->keep(); }

private:
    const Folder &m_parent;
    QByteArray m_name;
    bool m_isMade;
    int m_error;
    bool m_isAsideMade;
    int m_asideError;
    Folder m_from;
    Folder m_to;
    Folder m_aside;
    std::optional<Placing> m_placing;
};

} // namespace lessonhost

#endif // PLACING_H
