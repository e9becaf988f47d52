// SPDX-License-Identifier: MIT
#ifndef STAGING_H
#define STAGING_H

#include "files/folder.h"
#include "files/staginglock.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace lessonhost {

/*!
 * A folder beside what is written, in which it lies until it is complete. A lock beside it tells other runs that it is
 * in use; it goes with the object, and all that is in it.
 */
class Staging
{
public:
    /*!
     * While there is one of these, the folder that was used last stays for what is written beside it next: a run over
     * many lessons makes one in place of one for each.
     */
    class Keeping
    {
    public:
        Keeping();
        ~Keeping();
        Keeping(const Keeping &) = delete;
        Keeping &operator=(const Keeping &) = delete;
    };

    //! One with nothing in it. Throws LessonError.
    static std::unique_ptr<Staging> beside(const QString &parent);
    //! Gives it back.
    static void leave(std::unique_ptr<Staging> staging);
    ~Staging();
    Staging(const Staging &) = delete;
    Staging &operator=(const Staging &) = delete;

    //! Where it lies, for messages and for what takes paths, without a separator at its end.
    QString path() const { return m_path; }
    QByteArray name() const { return m_name; }
    const Folder &parent() const { return m_parent; }

    //! Removes what runs that are no more left behind in a folder: folders of this user, no links and nothing that a
    //! link leads to.
    static void sweep(const QString &folder);

    //! Within a staging folder: what it moved aside to make place, which goes back if its run is killed.
    static constexpr const char *replacedName = "replaced";

private:
    explicit Staging(const QString &parent);
    int make();
    bool isThere() const;

    QString m_parentPath;
    Folder m_parent;
    QByteArray m_name;
    QString m_path;
    std::unique_ptr<StagingLock> m_lock; // null where there can't be any
};

} // namespace lessonhost

#endif // STAGING_H
