// SPDX-License-Identifier: MIT
#ifndef WRITEWATCH_H
#define WRITEWATCH_H

/*!
 * While one lives, the program ends with a message as soon as a library makes, opens for writing, links or renames a
 * file outside a folder.
 */
class WriteWatch
{
public:
    //! folder: an absolute path without links, which must outlive the object.
    explicit WriteWatch(const char *folder);
    ~WriteWatch();
    WriteWatch(const WriteWatch &) = delete;
    WriteWatch &operator=(const WriteWatch &) = delete;
};

#endif // WRITEWATCH_H
