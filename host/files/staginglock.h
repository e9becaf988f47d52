// SPDX-License-Identifier: MIT
#ifndef STAGINGLOCK_H
#define STAGINGLOCK_H

#include "files/folder.h"

#include <QByteArray>

namespace lessonhost {

/*!
 * A lock file that the system gives up when its process ends, at whatever moment that is. Who holds it removes it.
 */
class StagingLock
{
public:
    enum Kind { Own, Left }; //!< a new one, or one that is there and whose run may be no more

    //! folder: outlives it.
    StagingLock(const Folder &folder, const QByteArray &name, Kind kind);
    ~StagingLock();
    StagingLock(const StagingLock &) = delete;
    StagingLock &operator=(const StagingLock &) = delete;

    bool isHeld() const { return m_isHeld; }
    //! Whether the file is still this one, and of this user.
    bool isThere() const;
    //! Lets the file be, for the next sweep.
    void leave() { m_isHeld = false; }
    //! An errno, where it can't be made.
    int error() const { return m_error; }

private:
    const Folder &m_folder;
    QByteArray m_name;
    int m_descriptor;
    int m_error = 0;
    bool m_isHeld = false;
};

} // namespace lessonhost

#endif // STAGINGLOCK_H
