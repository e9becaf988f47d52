// SPDX-License-Identifier: MIT
#ifndef FOLDER_H
#define FOLDER_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <sys/stat.h>

namespace lessonhost {

/*!
 * A folder that is held open. What is done in it reaches no other one, whatever takes the place of its path meanwhile,
 * and no link in it is followed.
 */
class Folder
{
public:
    struct Entry
    {
        QByteArray name; //!< as the disk has it
        mode_t mode = 0; //!< its kind; 0 where it went meanwhile

        bool isFolder() const { return S_ISDIR(mode); }
        bool isFile() const { return S_ISREG(mode); }
        bool isLink() const { return S_ISLNK(mode); }
        //! The name, or an empty text where it is none in the encoding of file names.
        QString text() const;
        //! The name for messages.
        QString shown() const;
    };

    //! As the user called it: links on the way are followed.
    explicit Folder(const QString &path);
    //! A folder in this one, which must not be a link.
    Folder(const Folder &parent, const QByteArray &name);
    ~Folder();
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    //! Why it isn't open, an errno.
    int error() const { return m_error; }
    //! Whether it belongs to the user who runs this.
    bool isOwn() const;

    //! What is in it, ascending, without "." and "..". error gets an errno where it can't be told.
    QVector<Entry> entries(int *error = nullptr) const;

    //! Moves an entry into another folder on the same disk if there is none of the name there.
    bool moveTo(const Folder &other, const QByteArray &name) const;

    //! Removes an entry with everything in it. Folders may lie in each other as deep as they like.
    bool remove(const QByteArray &name) const;
    //! Removes everything in it, in the same way. Whether it is empty then.
    bool clear() const;

private:
    int m_descriptor;
    int m_error;
};

//! Removes a folder with everything in it; its own path may be anything but a link.
void removeFolder(const QString &path);

} // namespace lessonhost

#endif // FOLDER_H
