// SPDX-License-Identifier: MIT
// Makes one call of the system fail, as a full or broken disk does. Loaded into the command by LD_PRELOAD.
//
//   FAULT_FOLDER   calls that change something below this folder are counted, those of worker processes as well
//   FAULT_COUNTER  a file of a long integer, in which they are counted
//   FAULT_READS    if set, calls that read below the folder are counted instead
//   FAULT_AT       the number of the call that fails, counted from 1; 0 for none
//   FAULT_ERROR    the error that it fails with, as a number
//   FAULT_STAYS    if set, all calls from there on fail, but those that remove something
//   FAULT_THREADS  no more threads than this many can be made, if it is set; this needs nothing of the above
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

static const char *folder;
static size_t folderLength;
static long *counter;
static long failAt;
static int failError;
static int countsReads;
static int stays;

__attribute__((constructor)) static void begin(void)
{
    const char *name = getenv("FAULT_COUNTER");
    const int file = name ? open(name, O_RDWR | O_CLOEXEC) : -1;
    void *place = file < 0 ? MAP_FAILED : mmap(NULL, sizeof(long), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    folder = getenv("FAULT_FOLDER");
    if (!folder || place == MAP_FAILED) {
        folder = NULL;
        return;
    }
    folderLength = strlen(folder);
    counter = place;
    failAt = getenv("FAULT_AT") ? atol(getenv("FAULT_AT")) : 0;
    failError = getenv("FAULT_ERROR") ? atoi(getenv("FAULT_ERROR")) : EIO;
    countsReads = getenv("FAULT_READS") != NULL;
    stays = getenv("FAULT_STAYS") != NULL;
}

enum Kind { Reads, Writes, Removes };

// Counts a call, and says whether it is to fail.
static int fails(enum Kind kind)
{
    if (countsReads != (kind == Reads)) {
        return 0;
    }
    const long number = __atomic_add_fetch(counter, 1, __ATOMIC_SEQ_CST);
    if (failAt == 0 || (number != failAt && !(stays && kind == Writes && number > failAt))) {
        return 0;
    }
    errno = failError;
    return 1;
}

static int isBelow(const char *path)
{
    return strncmp(path, folder, folderLength) == 0 && (path[folderLength] == '/' || path[folderLength] == '\0');
}

static int isFileBelow(int descriptor)
{
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t size = folder ? readlink(link, path, sizeof path - 1) : -1;
    if (size < 0) {
        return 0;
    }
    path[size] = '\0';
    return isBelow(path);
}

static int isPathBelow(int parent, const char *path)
{
    char current[PATH_MAX];
    if (!folder || !path) {
        return 0;
    }
    if (path[0] == '/') {
        return isBelow(path);
    }
    return parent == AT_FDCWD ? getcwd(current, sizeof current) && isBelow(current) : isFileBelow(parent);
}

#define ON_FILE(type, name, kind, parameters, arguments)                                                               \
    type name parameters                                                                                               \
    {                                                                                                                  \
        static type(*real) parameters;                                                                                 \
        if (!real) {                                                                                                   \
            *(void **)&real = dlsym(RTLD_NEXT, #name);                                                                 \
        }                                                                                                              \
        if (isFileBelow(file) && fails(kind)) {                                                                        \
            return -1;                                                                                                 \
        }                                                                                                              \
        return real arguments;                                                                                         \
    }

ON_FILE(ssize_t, write, Writes, (int file, const void *bytes, size_t size), (file, bytes, size))
ON_FILE(ssize_t, pwrite, Writes, (int file, const void *bytes, size_t size, off_t at), (file, bytes, size, at))
ON_FILE(ssize_t, pwrite64, Writes, (int file, const void *bytes, size_t size, off64_t at), (file, bytes, size, at))
ON_FILE(ssize_t, writev, Writes, (int file, const struct iovec *parts, int count), (file, parts, count))
ON_FILE(ssize_t, read, Reads, (int file, void *bytes, size_t size), (file, bytes, size))
ON_FILE(ssize_t, pread, Reads, (int file, void *bytes, size_t size, off_t at), (file, bytes, size, at))
ON_FILE(ssize_t, pread64, Reads, (int file, void *bytes, size_t size, off64_t at), (file, bytes, size, at))
ON_FILE(int, fsync, Writes, (int file), (file))
ON_FILE(int, fdatasync, Writes, (int file), (file))
ON_FILE(int, syncfs, Writes, (int file), (file))
ON_FILE(int, ftruncate, Writes, (int file, off_t size), (file, size))
ON_FILE(int, ftruncate64, Writes, (int file, off64_t size), (file, size))
ON_FILE(int, fchmod, Writes, (int file, mode_t mode), (file, mode))

// The descriptor is gone after a failure, as with the system's.
int close(int file)
{
    static int (*real)(int);
    if (!real) {
        *(void **)&real = dlsym(RTLD_NEXT, "close");
    }
    const int flags = folder ? fcntl(file, F_GETFL) : -1;
    const int isWritten = flags >= 0 && (flags & O_ACCMODE) != O_RDONLY;
    if (isWritten && isFileBelow(file) && fails(Writes)) {
        const int error = errno;
        real(file);
        errno = error;
        return -1;
    }
    return real(file);
}

static int makesFile(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

static int isOpenFailing(int parent, const char *path, int flags)
{
    const int isWritten = (flags & O_ACCMODE) != O_RDONLY || makesFile(flags);
    return isPathBelow(parent, path) && fails(isWritten ? Writes : Reads);
}

#define OPEN(name, parent, parameters, arguments)                                                                      \
    int name parameters                                                                                                \
    {                                                                                                                  \
        static int(*real) parameters;                                                                                  \
        if (!real) {                                                                                                   \
            *(void **)&real = dlsym(RTLD_NEXT, #name);                                                                 \
        }                                                                                                              \
        mode_t mode = 0;                                                                                               \
        if (makesFile(flags)) {                                                                                        \
            va_list list;                                                                                              \
            va_start(list, flags);                                                                                     \
            mode = va_arg(list, mode_t);                                                                               \
            va_end(list);                                                                                              \
        }                                                                                                              \
        return isOpenFailing(parent, path, flags) ? -1 : real arguments;                                               \
    }

OPEN(open, AT_FDCWD, (const char *path, int flags, ...), (path, flags, mode))
OPEN(open64, AT_FDCWD, (const char *path, int flags, ...), (path, flags, mode))
OPEN(openat, parent, (int parent, const char *path, int flags, ...), (parent, path, flags, mode))
OPEN(openat64, parent, (int parent, const char *path, int flags, ...), (parent, path, flags, mode))

#define ON_PATH(name, kind, parent, path, parameters, arguments)                                                       \
    int name parameters                                                                                                \
    {                                                                                                                  \
        static int(*real) parameters;                                                                                  \
        if (!real) {                                                                                                   \
            *(void **)&real = dlsym(RTLD_NEXT, #name);                                                                 \
        }                                                                                                              \
        return isPathBelow(parent, path) && fails(kind) ? -1 : real arguments;                                         \
    }

char *mkdtemp(char *path)
{
    static char *(*real)(char *);
    if (!real) {
        *(void **)&real = dlsym(RTLD_NEXT, "mkdtemp");
    }
    return isPathBelow(AT_FDCWD, path) && fails(Writes) ? NULL : real(path);
}

ON_PATH(rename, Writes, AT_FDCWD, to, (const char *from, const char *to), (from, to))
ON_PATH(renameat, Writes, newParent, to, (int oldParent, const char *from, int newParent, const char *to),
        (oldParent, from, newParent, to))
ON_PATH(renameat2, Writes, newParent, to,
        (int oldParent, const char *from, int newParent, const char *to, unsigned flags),
        (oldParent, from, newParent, to, flags))
ON_PATH(link, Writes, AT_FDCWD, to, (const char *from, const char *to), (from, to))
ON_PATH(linkat, Writes, newParent, to, (int oldParent, const char *from, int newParent, const char *to, int flags),
        (oldParent, from, newParent, to, flags))
ON_PATH(symlink, Writes, AT_FDCWD, to, (const char *from, const char *to), (from, to))
ON_PATH(mkdir, Writes, AT_FDCWD, path, (const char *path, mode_t mode), (path, mode))
ON_PATH(mkdirat, Writes, parent, path, (int parent, const char *path, mode_t mode), (parent, path, mode))
ON_PATH(chmod, Writes, AT_FDCWD, path, (const char *path, mode_t mode), (path, mode))
ON_PATH(unlink, Removes, AT_FDCWD, path, (const char *path), (path))
ON_PATH(rmdir, Removes, AT_FDCWD, path, (const char *path), (path))
ON_PATH(unlinkat, Removes, parent, path, (int parent, const char *path, int flags), (parent, path, flags))

int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*work)(void *), void *argument)
{
    static int (*real)(pthread_t *, const pthread_attr_t *, void *(*)(void *), void *);
    static int made;
    if (!real) {
        *(void **)&real = dlsym(RTLD_NEXT, "pthread_create");
    }
    const char *most = getenv("FAULT_THREADS");
    return most && __atomic_add_fetch(&made, 1, __ATOMIC_SEQ_CST) > atoi(most)
        ? EAGAIN
        : real(thread, attributes, work, argument);
}
